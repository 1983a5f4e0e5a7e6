#include "orvane/app/lists/jobs/PasteJob.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/query/Expression.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace {

QString quotedBriefly(std::string_view cell)
{
    constexpr std::size_t shownBytes = 200;
    return u'"' + orvane::shortLine(orvane::toQString(cell.substr(0, shownBytes)), 40) + u'"';
}

template <typename Number>
bool readWholeNumber(std::string_view text, double& number)
{
    Number read = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, read);
    if (result.ec != std::errc() || result.ptr != end)
        return false;
    number = static_cast<double>(read);
    return true;
}

/// The number of a plain text, with a point or one comma as the decimal sign. The shortest text of the greatest float
/// is a greater number as a double.
bool readPlainNumber(std::string_view text, bool isFloat, double& number)
{
    std::string withPoint;
    const std::size_t comma = text.find(',');
    if (comma != std::string_view::npos && text.find('.') == std::string_view::npos) {
        withPoint = text;
        withPoint[comma] = '.';
        text = withPoint;
    }
    return isFloat ? readWholeNumber<float>(text, number) : readWholeNumber<double>(text, number);
}

} // namespace

PasteJob::PasteJob(NxMField& list, const QString& text, int firstColumn, SliceClock::Clock clock)
    : ListJob(clock)
    , m_columns(list)
    , m_firstColumn(firstColumn)
    , m_reader(text.toStdString(), m_columns.isNumeric() ? TableReader::Content::Numbers : TableReader::Content::Texts)
{
    const QList<ListColumns::Choice> choices = m_columns.choices();
    std::for_each(choices.crbegin(), choices.crend(),
        [this](const ListColumns::Choice& choice) { m_choices.insert(choice.name.toUtf8(), choice.value); });
}

PasteJob::~PasteJob() = default;

bool PasteJob::runPart()
{
    constexpr int rows = 256;
    for (int row = 0; row < rows; ++row) {
        if (!m_reader.readRow(m_cells)) {
            if (m_rows.rows == 0)
                failWith(tr("There is nothing to paste: the clipboard has no text."));
            return false;
        }
        ++m_line;
        if (const orvane::Result<> result = addRow(); !result) {
            failWith(result.error());
            return false;
        }
    }
    return true;
}

orvane::Result<> PasteJob::addRow()
{
    if (m_line == 1) {
        if (orvane::Result<> result = beginTable(); !result)
            return result;
        if (isTitleRow())
            return {};
    }
    const auto count = static_cast<int>(m_cells.size());
    if (count != m_rows.columns) {
        const QString cells = count == 1 ? tr("1 cell") : tr("%1 cells").arg(count);
        return orvane::Failure{
            tr("Line %1 of the clipboard has %2, but the lines before it have %3. Nothing was pasted.")
                .arg(m_line)
                .arg(cells)
                .arg(m_rows.columns)};
    }
    if (!m_columns.isNumeric()) {
        const QString text = orvane::toQString(m_cells[0]);
        if (const QString refusal = m_columns.textRefusal(text); !refusal.isEmpty())
            return orvane::Failure{tr("Line %1: %2 Nothing was pasted.").arg(m_line).arg(refusal)};
        m_rows.texts.append(text);
    }
    for (std::size_t cell = 0; m_columns.isNumeric() && cell < m_cells.size(); ++cell) {
        if (orvane::Result<> result = addNumber(cell); !result)
            return result;
    }
    ++m_rows.rows;
    return {};
}

orvane::Result<> PasteJob::beginTable()
{
    const auto count = static_cast<int>(m_cells.size());
    const int room = m_columns.count() - m_firstColumn;
    m_rows.columns = count;
    m_rows.numbers.resize(m_columns.isNumeric() ? m_cells.size() : 0);
    if (count <= room)
        return {};
    if (m_columns.count() == 1)
        return orvane::Failure{
            tr("The clipboard has %1 columns, and the list has one. Nothing was pasted.").arg(count)};
    return orvane::Failure{
        tr("The clipboard has %1 columns, but from column %2 on the list has %3. Nothing was pasted.")
            .arg(count)
            .arg(m_columns.title(m_firstColumn))
            .arg(room)};
}

bool PasteJob::isTitleRow() const
{
    for (std::size_t cell = 0; cell < m_cells.size(); ++cell) {
        const QString title = m_columns.title(m_firstColumn + static_cast<int>(cell));
        if (m_cells.size() < 2 || orvane::toQString(m_cells[cell]).compare(title, Qt::CaseInsensitive) != 0)
            return false;
    }
    return true;
}

orvane::Result<> PasteJob::addNumber(std::size_t cell)
{
    const int column = m_firstColumn + static_cast<int>(cell);
    const orvane::Result<double> number = numberOf(m_cells[cell], column);
    QString reason = number.error();
    if (number) {
        if (const auto refusal = m_columns.components()->refusal(number.value()))
            reason = orvane::toolkitText(orvane::toQString(*refusal));
    }
    if (reason.isEmpty()) {
        m_rows.numbers[cell].push_back(number.value());
        return {};
    }
    return orvane::Failure{tr("Line %1, column %2: %3 can't be pasted. %4 Nothing was pasted.")
                               .arg(m_line)
                               .arg(m_columns.title(column), quotedBriefly(m_cells[cell]), reason)};
}

orvane::Result<double> PasteJob::numberOf(std::string_view text, int column) const
{
    double number = 0;
    const bool isFloat = m_columns.components()->number() == meridane::FieldComponents::Number::Float;
    if (readPlainNumber(text, isFloat, number))
        return number;
    if (m_columns.kind() == ListColumns::Kind::Flag) {
        const QString word = orvane::toQString(text).toLower();
        if (word == QLatin1String("true") || word == QLatin1String("false"))
            return word == QLatin1String("true") ? 1.0 : 0.0;
        return orvane::Failure{tr("A cell of this list is true or false.")};
    }
    if (m_columns.kind() == ListColumns::Kind::Choice) {
        const auto choice = m_choices.constFind(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
        if (choice != m_choices.constEnd())
            return static_cast<double>(choice.value());
        return orvane::Failure{tr("The enumeration has no such name.")};
    }
    if (text.empty())
        return orvane::Failure{tr("The cell is empty.")};
    meridane::Expression::Context context;
    context.variables.clear();
    context.isAngle = m_columns.components()->name(column) == "angle";
    context.mayBeInfinite = !m_columns.components()->isWhole();
    const auto parsed = meridane::Expression::parse(text, context);
    if (const auto* const error = std::get_if<meridane::QueryError>(&parsed))
        return orvane::Failure{orvane::toolkitText(orvane::toQString(error->message))};
    const auto value = std::get<meridane::Expression>(parsed).evaluate();
    if (const auto* const error = std::get_if<meridane::QueryError>(&value))
        return orvane::Failure{orvane::toolkitText(orvane::toQString(error->message))};
    return std::get<double>(value);
}
