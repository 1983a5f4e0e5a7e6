#include "orvane/app/fields/values/PastedNumbers.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/query/Expression.h"
#include "meridane/scene/components/FieldComponents.h"

#include <QColor>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace orvane {

namespace {

using meridane::FieldComponents;
using Parts = std::vector<std::string_view>;

constexpr std::string_view blanks = " \t\r\n\f\v";
constexpr std::string_view brackets = "()[]{}<>";

struct PastedNumbersTexts {
    Q_DECLARE_TR_FUNCTIONS(PastedNumbers)
};

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The parts between separators; those that are empty only count between signs.
Parts split(std::string_view text, std::string_view separators)
{
    const bool isBlank = separators.front() == ' ';
    Parts parts;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        const std::string_view part = trimmed(text.substr(start, end - start));
        if (!part.empty() || !isBlank)
            parts.push_back(part);
        start = end + 1;
    }
    if (!parts.empty() && parts.back().empty())
        parts.pop_back(); // after a last separator
    return parts;
}

/// The parts between commas with a blank behind them, so that the others are decimal signs.
Parts splitAtWideCommas(std::string_view text)
{
    Parts parts;
    std::size_t start = 0;
    for (std::size_t comma = text.find(','); comma != std::string_view::npos; comma = text.find(',', comma + 1)) {
        if (comma + 1 == text.size() || blanks.find(text[comma + 1]) == std::string_view::npos)
            continue;
        parts.push_back(trimmed(text.substr(start, comma - start)));
        start = comma + 1;
    }
    parts.push_back(trimmed(text.substr(start)));
    return parts;
}

std::optional<double> flagOf(std::string_view word)
{
    const QString lower = toQString(word).toLower();
    constexpr std::array on{"true", "yes", "on", "1"};
    constexpr std::array off{"false", "no", "off", "0"};
    const auto is = [&lower](const char* candidate) { return lower == QLatin1String(candidate); };
    if (std::ranges::any_of(on, is))
        return 1;
    return std::ranges::any_of(off, is) ? std::optional<double>(0) : std::nullopt;
}

Result<double> numberOf(std::string_view text, const FieldComponents& components, int component)
{
    if (components.number() == FieldComponents::Number::Flag) {
        if (const auto flag = flagOf(text))
            return *flag;
        return Failure{PastedNumbersTexts::tr("\"%1\" is neither yes nor no.").arg(shortLine(toQString(text)))};
    }
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        meridane::Expression::Context context;
        context.variables.clear();
        context.isAngle = components.name(component) == "angle";
        context.mayBeInfinite = !components.isWhole();
        const auto expression = meridane::Expression::parse(text, context);
        const auto value = std::holds_alternative<meridane::Expression>(expression)
            ? std::get<meridane::Expression>(expression).evaluate()
            : std::variant<double, meridane::QueryError>(std::get<meridane::QueryError>(expression));
        if (const auto* const failure = std::get_if<meridane::QueryError>(&value))
            return Failure{
                QStringLiteral("\"%1\": %2").arg(shortLine(toQString(text)), toolkitText(toQString(failure->message)))};
        number = std::get<double>(value);
    }
    if (const auto refusal = components.refusal(number))
        return Failure{QStringLiteral("\"%1\": %2").arg(shortLine(toQString(text)), toolkitText(toQString(*refusal)))};
    return number;
}

bool isColor(const FieldComponents& components)
{
    return components.name(0) == "r";
}

/// `#rgb`, `#rrggbb`, each also with an opacity at the end, and the names that style sheets have.
std::optional<std::vector<double>> colorOf(std::string_view text, const FieldComponents& components)
{
    QString name = toQString(text);
    std::optional<int> alpha;
    if (name.startsWith(u'#') && (name.size() == 5 || name.size() == 9)) {
        const qsizetype digits = name.size() / 4;
        bool isHex = false;
        alpha = name.right(digits).toInt(&isHex, 16) * (digits == 1 ? 17 : 1);
        if (!isHex)
            return {};
        name.chop(digits);
    }
    const QColor color(name);
    if (!color.isValid())
        return {};
    constexpr double most = 255;
    std::vector<double> numbers{color.red() / most, color.green() / most, color.blue() / most};
    if (components.count() > 3)
        numbers.push_back(alpha.value_or(color.alpha()) / most);
    return numbers;
}

/// The numbers of one row; the failure says what isn't one.
class RowReader {
public:
    explicit RowReader(const FieldComponents& components)
        : m_components(components)
        , m_count(static_cast<std::size_t>(components.count()))
    {
    }

    Result<std::vector<double>> read(std::string_view row, bool isWholeList) const
    {
        row = trimmed(row);
        if (isColor(m_components)) {
            if (auto color = colorOf(row, m_components))
                return *std::move(color);
        }
        if (m_count == 1 && !isWholeList) {
            const auto number = numberOf(row, m_components, 0);
            return number ? Result(std::vector{number.value()}) : Failure{number.error()};
        }
        Result<std::vector<double>> failure = Failure{QString()};
        for (const Parts& parts : candidates(row)) {
            const bool fits = isWholeList ? !parts.empty() && parts.size() % m_count == 0 : parts.size() == m_count;
            if (!fits)
                continue;
            auto numbers = readParts(parts);
            if (numbers)
                return numbers;
            if (failure.error().isEmpty())
                failure = Failure{numbers.error()};
        }
        if (!failure.error().isEmpty())
            return failure;
        const auto found
            = static_cast<int>(split(row, row.find(';') != std::string_view::npos ? ";" : " ,\t\r\n").size());
        return Failure{PastedNumbersTexts::tr("A value has %1 numbers, and here are %2.").arg(m_count).arg(found)};
    }

private:
    /// How the row may be meant, the most likely way first.
    [[nodiscard]] static std::vector<Parts> candidates(std::string_view row)
    {
        if (row.find(';') != std::string_view::npos)
            return {split(row, ";")};
        if (row.find('\t') != std::string_view::npos)
            return {split(row, "\t"), split(row, " ,\t\r\n")};
        return {splitAtWideCommas(row), split(row, ","), split(row, " \r\n"), split(row, " ,\r\n")};
    }

    [[nodiscard]] Result<std::vector<double>> readParts(const Parts& parts) const
    {
        std::vector<double> numbers;
        numbers.reserve(parts.size());
        for (const std::string_view part : parts) {
            const auto number = numberOf(part, m_components, static_cast<int>(numbers.size() % m_count));
            if (!number)
                return Failure{number.error()};
            numbers.push_back(number.value());
        }
        return numbers;
    }

    const FieldComponents& m_components;
    std::size_t m_count;
};

/// Without the name in front of the brackets, such as `Vec3(1, 2, 3)`, and whether its colours count to 255.
std::pair<std::string_view, bool> withoutName(std::string_view text)
{
    const std::size_t open = text.find('(');
    if (open == std::string_view::npos || open == 0 || text.back() != ')')
        return {text, false};
    const QString name = toQString(trimmed(text.substr(0, open))).toLower();
    const bool isName = std::ranges::all_of(name,
        [](QChar letter) { return letter.isLetterOrNumber() || letter == u'_' || letter == u'.' || letter == u':'; });
    if (!isName || !name.front().isLetter())
        return {text, false};
    return {text.substr(open), name == QLatin1String("rgb") || name == QLatin1String("rgba")};
}

/// The text without brackets; each closing one inside of a list ends a row.
std::string withoutBrackets(std::string_view text, bool isList)
{
    std::string plain(text);
    for (char& sign : plain) {
        const std::size_t bracket = brackets.find(sign);
        if (bracket != std::string_view::npos)
            sign = isList && bracket % 2 == 1 ? '\n' : ' ';
    }
    return plain;
}

/// The lines that aren't empty, without a separator at their ends.
Parts rowsOf(std::string_view text)
{
    Parts rows = split(text, "\n\r");
    for (std::string_view& row : rows) {
        while (!row.empty() && (row.front() == ',' || row.front() == ';'))
            row = trimmed(row.substr(1));
        while (!row.empty() && (row.back() == ',' || row.back() == ';'))
            row = trimmed(row.substr(0, row.size() - 1));
    }
    std::erase(rows, std::string_view());
    return rows;
}

} // namespace

Result<std::vector<double>> pastedNumbers(const FieldComponents& components, std::string_view text, bool isList)
{
    const RowReader reader(components);
    if (!isList) {
        const auto [inner, countsTo255] = withoutName(trimmed(text));
        const bool isFormula = components.count() == 1;
        auto numbers = reader.read(isFormula ? std::string(trimmed(text)) : withoutBrackets(inner, false), false);
        if (!numbers || !countsTo255 || !isColor(components))
            return numbers;
        std::vector<double> parts = std::move(numbers).value();
        constexpr double most = 255;
        std::ranges::transform(
            parts.begin(), parts.begin() + 3, parts.begin(), [](double part) { return part / most; });
        return parts;
    }
    const std::string plain = withoutBrackets(text, true);
    const Parts rows = rowsOf(plain);
    if (rows.size() == 1)
        return reader.read(rows.front(), true);
    std::vector<double> all;
    all.reserve(rows.size() * static_cast<std::size_t>(components.count()));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const auto numbers = reader.read(rows[row], false);
        if (!numbers)
            return Failure{PastedNumbersTexts::tr("Row %1: %2").arg(row + 1).arg(numbers.error())};
        all.insert(all.end(), numbers.value().begin(), numbers.value().end());
    }
    return all;
}

} // namespace orvane
