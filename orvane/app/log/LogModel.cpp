#include "orvane/app/log/LogModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/problems/ProblemText.h"
#include "orvane/app/problems/SeverityIcons.h"

#include <QDateTime>

#include <algorithm>

namespace {

const QString timeFormat = QStringLiteral("HH:mm:ss.zzz");

std::size_t indexOf(NxSeverity severity)
{
    return static_cast<std::size_t>(severity);
}

std::size_t linesOf(const LogRecord& record)
{
    return record.droppedLines + record.times.size();
}

} // namespace

LogModel::LogModel(const LogBook& book, QObject* parent)
    : QAbstractTableModel(parent)
    , m_book(book)
{
    connect(&book, &LogBook::changed, this, &LogModel::follow);
    connect(&book, &LogBook::cleared, this, &LogModel::refill);
    refill();
}

void LogModel::setShown(NxSeverity severity, bool isShown)
{
    m_isShown[indexOf(severity)] = isShown;
    refill();
}

void LogModel::setFilter(const QString& words)
{
    m_words = words.simplified().split(u' ', Qt::SkipEmptyParts);
    refill();
}

void LogModel::setFolding(bool isOn)
{
    m_hasFolding = isOn;
    m_unfolded.clear();
    refill();
}

bool LogModel::shows(const LogRecord& record) const
{
    if (!m_isShown[indexOf(record.severity)])
        return false;
    return std::ranges::all_of(m_words, [&record](const QString& word) {
        return record.text.contains(word, Qt::CaseInsensitive) || record.source.contains(word, Qt::CaseInsensitive);
    });
}

bool LogModel::isFolded(std::uint64_t number) const
{
    return m_hasFolding && !m_unfolded.contains(number);
}

void LogModel::addRows(std::deque<Row>& rows, std::uint64_t number, std::size_t from) const
{
    const LogRecord& record = *m_book.record(number);
    if (!shows(record))
        return;
    if (isFolded(number)) {
        rows.push_back({number, allLines});
        return;
    }
    for (std::size_t line = std::max(from, record.droppedLines); line < linesOf(record); ++line)
        rows.push_back({number, line});
}

void LogModel::refill()
{
    beginResetModel();
    m_rows.clear();
    m_unfolded.erase(m_unfolded.begin(), m_unfolded.lower_bound(m_book.firstNumber()));
    for (std::uint64_t number = m_book.firstNumber(); number < m_book.endNumber(); ++number)
        addRows(m_rows, number, 0);
    m_end = m_book.endNumber();
    const LogRecord* const last = m_end > 0 ? m_book.record(m_end - 1) : nullptr;
    m_lastLines = last != nullptr ? linesOf(*last) : 0;
    endResetModel();
}

void LogModel::follow()
{
    removeDropped();
    growLast();
    appendNew();
}

void LogModel::removeDropped()
{
    const std::uint64_t first = m_book.firstNumber();
    const LogRecord* const record = m_book.record(first);
    const std::size_t droppedLines = record != nullptr ? record->droppedLines : 0;
    const auto isLeft
        = [&](const Row& row) { return row.record > first || (row.record == first && row.line >= droppedLines); };
    const auto left = std::ranges::find_if(m_rows, isLeft);
    if (left != m_rows.begin()) {
        beginRemoveRows({}, 0, static_cast<int>(left - m_rows.begin()) - 1);
        m_rows.erase(m_rows.begin(), left);
        endRemoveRows();
    }
    m_unfolded.erase(m_unfolded.begin(), m_unfolded.lower_bound(first));
    // A row of equal lines has fewer of them now.
    if (droppedLines > 0 && !m_rows.empty() && m_rows.front().record == first)
        Q_EMIT dataChanged(index(0, 0), index(0, CountColumn));
}

/// The last record that is known may have got more lines.
void LogModel::growLast()
{
    const LogRecord* const record = m_end > 0 ? m_book.record(m_end - 1) : nullptr;
    if (record == nullptr || linesOf(*record) == m_lastLines)
        return;
    const std::size_t known = std::exchange(m_lastLines, linesOf(*record));
    if (!shows(*record))
        return;
    if (isFolded(m_end - 1)) {
        const int row = rowCount() - 1;
        Q_EMIT dataChanged(index(row, 0), index(row, CountColumn));
        return;
    }
    std::deque<Row> rows;
    addRows(rows, m_end - 1, known);
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    endInsertRows();
}

void LogModel::appendNew()
{
    std::deque<Row> rows;
    for (std::uint64_t number = std::max(m_end, m_book.firstNumber()); number < m_book.endNumber(); ++number)
        addRows(rows, number, 0);
    if (m_end != m_book.endNumber()) {
        m_end = m_book.endNumber();
        m_lastLines = linesOf(*m_book.record(m_end - 1));
    }
    if (rows.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    endInsertRows();
}

const LogRecord* LogModel::record(int row) const
{
    return row >= 0 && row < rowCount() ? m_book.record(m_rows[static_cast<std::size_t>(row)].record) : nullptr;
}

QString LogModel::shownText(int row) const
{
    const LogRecord* const record = this->record(row);
    return record != nullptr ? orvane::oneLine(record->text.left(longestShown)) : QString();
}

QString LogModel::lineText(int row) const
{
    const LogRecord* const record = this->record(row);
    if (record == nullptr)
        return {};
    const Row& shown = m_rows[static_cast<std::size_t>(row)];
    QStringList parts{QDateTime::fromMSecsSinceEpoch(timeOf(shown, *record)).toString(Qt::ISODateWithMs),
        orvane::severityName(record->severity), record->source, record->text};
    if (shown.line == allLines && record->times.size() > 1)
        parts.append(tr("%1 times").arg(record->times.size()));
    return parts.join(u'\t');
}

std::pair<int, int> LogModel::rowsOf(std::uint64_t number) const
{
    const auto isBefore = [number](const Row& row) { return row.record < number; };
    const auto isNotBehind = [number](const Row& row) { return row.record <= number; };
    const auto first = std::ranges::partition_point(m_rows, isBefore);
    const auto end = std::ranges::partition_point(m_rows, isNotBehind);
    return {static_cast<int>(first - m_rows.begin()), static_cast<int>(end - m_rows.begin())};
}

bool LogModel::canUnfold(int row) const
{
    const LogRecord* const record = this->record(row);
    return record != nullptr && record->times.size() > 1 && m_rows[static_cast<std::size_t>(row)].line == allLines;
}

bool LogModel::canFold(int row) const
{
    return record(row) != nullptr && m_unfolded.contains(m_rows[static_cast<std::size_t>(row)].record);
}

void LogModel::unfold(int row)
{
    if (!canUnfold(row))
        return;
    const std::uint64_t number = m_rows[static_cast<std::size_t>(row)].record;
    m_unfolded.insert(number);
    std::deque<Row> rows;
    addRows(rows, number, 0);
    m_rows[static_cast<std::size_t>(row)] = rows.front();
    rows.pop_front();
    Q_EMIT dataChanged(index(row, 0), index(row, CountColumn));
    if (rows.empty())
        return;
    beginInsertRows({}, row + 1, row + static_cast<int>(rows.size()));
    m_rows.insert(m_rows.begin() + row + 1, rows.begin(), rows.end());
    endInsertRows();
}

int LogModel::fold(int row)
{
    if (!canFold(row))
        return row;
    const std::uint64_t number = m_rows[static_cast<std::size_t>(row)].record;
    const auto [first, end] = rowsOf(number);
    m_unfolded.erase(number);
    if (end - first > 1) {
        beginRemoveRows({}, first + 1, end - 1);
        m_rows.erase(m_rows.begin() + first + 1, m_rows.begin() + end);
        endRemoveRows();
    }
    m_rows[static_cast<std::size_t>(first)].line = allLines;
    Q_EMIT dataChanged(index(first, 0), index(first, CountColumn));
    return first;
}

std::optional<LogModel::Line> LogModel::lineAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return std::nullopt;
    const Row& shown = m_rows[static_cast<std::size_t>(row)];
    return Line{shown.record, shown.line == allLines ? 0 : shown.line};
}

int LogModel::rowNear(const Line& line) const
{
    const auto isAbove = [&line](const Row& row) {
        return row.record < line.record || (row.record == line.record && row.line < line.number);
    };
    const auto found = std::ranges::partition_point(m_rows, isAbove);
    return std::min(static_cast<int>(found - m_rows.begin()), rowCount() - 1);
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

qint64 LogModel::timeOf(const Row& row, const LogRecord& record) const
{
    if (row.line == allLines || row.line < record.droppedLines || row.line >= linesOf(record))
        return record.times.back();
    return record.times[row.line - record.droppedLines];
}

QVariant LogModel::display(const Row& row, const LogRecord& record, int column) const
{
    switch (column) {
    case TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(timeOf(row, record)).toString(timeFormat);
    case SourceColumn:
        return orvane::shortLine(record.source);
    case TextColumn:
        return orvane::oneLine(record.text.left(longestShown));
    default:
        break;
    }
    const bool isFirst = row.line == allLines || row.line == record.droppedLines;
    const bool isOneOfSeveral = row.line == allLines ? record.times.size() > 1 : m_unfolded.contains(row.record);
    if (!isFirst || !isOneOfSeveral)
        return {};
    const QChar mark = row.line == allLines ? QChar(0x25B8) : QChar(0x25BE); // small triangles, right and down
    return QStringLiteral("%1 %2").arg(mark).arg(orvane::countText(record.times.size()));
}

QString LogModel::toolTip(const Row& row, const LogRecord& record) const
{
    const QLocale locale = orvane::userLocale();
    const QString time = locale.toString(QDateTime::fromMSecsSinceEpoch(timeOf(row, record)), QLocale::ShortFormat);
    const QString head = QStringLiteral("%1, %2, %3").arg(time, orvane::severityName(record.severity), record.source);
    return orvane::plainToolTip(head + u'\n' + record.text.left(longestShown * 2));
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    const LogRecord* const record = this->record(index.row());
    if (record == nullptr)
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return display(row, *record, index.column());
    case Qt::DecorationRole:
        return index.column() == SourceColumn ? QVariant(orvane::severityIcon(record->severity)) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(row, *record);
    case Qt::AccessibleTextRole:
        return index.column() == SourceColumn
            ? QVariant(QStringLiteral("%1, %2").arg(orvane::severityName(record->severity), record->source))
            : display(row, *record, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == CountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case SourceColumn:
        return tr("Source");
    case TextColumn:
        return tr("Text");
    case CountColumn:
        return tr("Count");
    default:
        return {};
    }
}
