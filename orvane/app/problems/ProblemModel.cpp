#include "orvane/app/problems/ProblemModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/problems/ProblemText.h"
#include "orvane/app/problems/SeverityIcons.h"

#include <QTimerEvent>

#include <algorithm>
#include <chrono>

namespace {

// With more changed lists at once, all rows are made again, which takes less time than to find each.
constexpr std::size_t mostReplacedLists = 16;
constexpr qsizetype pathLength = 300;
constexpr std::chrono::milliseconds namingTime(1);

std::size_t indexOf(NxSeverity severity)
{
    return static_cast<std::size_t>(severity);
}

} // namespace

ProblemModel::ProblemModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void ProblemModel::setCheck(const NxSceneCheck* check, const NxGroup* scene)
{
    m_check = check;
    m_scene = scene;
    m_namer.clear();
    refill();
}

void ProblemModel::setFilter(const QString& text)
{
    m_words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    refill();
}

void ProblemModel::setShown(NxSeverity severity, bool isShown)
{
    m_isShown[indexOf(severity)] = isShown;
    refill();
}

bool ProblemModel::hidesRows() const
{
    return !m_words.isEmpty() || std::find(m_isShown.begin(), m_isShown.end(), false) != m_isShown.end();
}

const NxSceneProblem* ProblemModel::problem(int row) const
{
    if (m_check == nullptr || row < 0 || row >= rowCount())
        return nullptr;
    const Row& place = m_rows[static_cast<std::size_t>(row)];
    const auto list = m_check->list(place.list);
    // A view may ask while the rows of its change are on their way.
    return place.index < list.size() ? &list[place.index] : nullptr;
}

std::vector<NxSceneProblem> ProblemModel::allOfKind(NxProblemKind kind) const
{
    std::vector<NxSceneProblem> problems;
    for (std::size_t list = 0; m_check != nullptr && list < m_check->listEnd(); ++list) {
        for (const NxSceneProblem& problem : m_check->list(list)) {
            if (problem.kind == kind)
                problems.push_back(problem);
        }
    }
    return problems;
}

bool ProblemModel::accepts(const NxSceneProblem& problem) const
{
    if (!m_isShown[indexOf(problem.about().severity)])
        return false;
    if (m_words.isEmpty())
        return true;
    const QString text = orvane::lineEnd(problem) + u'\n' + orvane::roughPlace(*m_check, *m_scene, problem) + u'\n'
        + QString::fromUtf8(problem.node->getClassName());
    return std::all_of(m_words.begin(), m_words.end(),
        [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

void ProblemModel::appendRows(std::uint32_t list, std::vector<Row>& rows)
{
    const auto problems = m_check->list(list);
    const std::size_t before = rows.size();
    for (std::size_t i = 0; i < problems.size(); ++i) {
        if (accepts(problems[i]))
            rows.push_back({list, static_cast<std::uint32_t>(i)});
    }
    if (m_isListed.size() <= list)
        m_isListed.resize(std::max<std::size_t>(list + std::size_t{1}, 2 * m_isListed.size()));
    m_isListed[list] = rows.size() > before ? 1 : 0;
}

void ProblemModel::insertAtEnd(const std::vector<Row>& rows)
{
    if (rows.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    endInsertRows();
}

void ProblemModel::update(const std::vector<std::uint32_t>& lists)
{
    if (m_check == nullptr)
        return;
    std::vector<std::uint32_t> listed;
    std::vector<Row> added;
    for (const std::uint32_t list : lists) {
        if (list < m_isListed.size() && m_isListed[list] != 0)
            listed.push_back(list);
        else if (!isRefilling() || list < m_next)
            appendRows(list, added);
    }
    if (listed.size() > mostReplacedLists) {
        refill();
        return;
    }
    for (const std::uint32_t list : listed)
        replaceRows(list);
    insertAtEnd(added);
}

// The rows of a list are next to each other. Those that stay keep their places, so that they stay selected.
void ProblemModel::replaceRows(std::uint32_t list)
{
    const auto begin = std::find_if(m_rows.begin(), m_rows.end(), [list](const Row& row) { return row.list == list; });
    const auto end = std::find_if(begin, m_rows.end(), [list](const Row& row) { return row.list != list; });
    const int first = static_cast<int>(begin - m_rows.begin());
    const int old = static_cast<int>(end - begin);
    std::vector<Row> rows;
    appendRows(list, rows);
    const int now = static_cast<int>(rows.size());
    const int kept = std::min(old, now);
    if (old > now) {
        beginRemoveRows({}, first + now, first + old - 1);
        m_rows.erase(begin + now, end);
        endRemoveRows();
    } else if (now > old) {
        beginInsertRows({}, first + old, first + now - 1);
        m_rows.insert(end, rows.begin() + old, rows.end());
        endInsertRows();
    }
    std::copy_n(rows.begin(), kept, m_rows.begin() + first);
    if (kept > 0)
        Q_EMIT dataChanged(index(first, 0), index(first + kept - 1, ColumnCount - 1));
}

bool ProblemModel::isRefilling() const
{
    return m_refill.isActive();
}

void ProblemModel::refill()
{
    beginResetModel();
    m_rows.clear();
    m_isListed.clear();
    m_next = 0;
    endResetModel();
    if (m_check != nullptr && m_check->listEnd() > 0)
        m_refill.start(0, this);
    else
        m_refill.stop();
}

void ProblemModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_naming.timerId()) {
        m_naming.stop();
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0, PlaceColumn), index(rowCount() - 1, PlaceColumn));
        return;
    }
    if (event->timerId() != m_refill.timerId())
        return;
    constexpr std::size_t listsAtOnce = 16;
    const SliceClock slice;
    std::vector<Row> rows;
    const std::size_t end = m_check->listEnd();
    while (m_next < end && !slice.isSpent()) {
        for (const std::size_t stop = std::min(end, m_next + listsAtOnce); m_next < stop; ++m_next)
            appendRows(static_cast<std::uint32_t>(m_next), rows);
    }
    if (m_next >= end)
        m_refill.stop();
    insertAtEnd(rows);
}

int ProblemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProblemModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

// Among a million siblings it takes some slices until it is known whether a name is unique.
QString ProblemModel::pathOf(const NxSceneProblem& problem) const
{
    const std::vector<int> places = m_check->placesOf(problem);
    if (!places.empty() && !m_naming.isActive()) {
        if (const auto path = m_namer.name(*m_scene, places, problem.field, namingTime))
            return orvane::shortLine(orvane::toQString(*path), pathLength);
        m_naming.start(0, const_cast<ProblemModel*>(this)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    return orvane::shortLine(orvane::roughPlace(*m_check, *m_scene, problem), pathLength);
}

QString ProblemModel::line(const NxSceneProblem& problem) const
{
    const auto path
        = m_namer.name(*m_scene, m_check->placesOf(problem), problem.field, std::chrono::nanoseconds::max());
    return orvane::oneLine(orvane::toQString(path.value_or(std::string()))) + u'\t' + orvane::lineEnd(problem);
}

QString ProblemModel::toolTip(const NxSceneProblem& problem) const
{
    const QString mend = orvane::mendText(problem);
    return orvane::plainToolTip(pathOf(problem) + u'\n' + orvane::sentenceOf(problem)
        + (mend.isEmpty() ? QString() : u'\n' + tr("Mend: %1").arg(mend)));
}

QVariant ProblemModel::data(const QModelIndex& index, int role) const
{
    const NxSceneProblem* const shown
        = checkIndex(index, CheckIndexOption::IndexIsValid) ? problem(index.row()) : nullptr;
    if (shown == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == SentenceColumn ? orvane::sentenceOf(*shown)
            : index.column() == PlaceColumn     ? pathOf(*shown)
                                                : orvane::identifierOf(*shown);
    case Qt::ToolTipRole:
        return toolTip(*shown);
    case Qt::DecorationRole:
        return index.column() == SentenceColumn ? QVariant(orvane::severityIcon(shown->about().severity)) : QVariant();
    case Qt::AccessibleTextRole:
        return index.column() == SentenceColumn
            ? QVariant(orvane::toolkitText(orvane::severityName(shown->about().severity)) + QStringLiteral(": ")
                + orvane::sentenceOf(*shown))
            : QVariant();
    default:
        return {};
    }
}

QVariant ProblemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SentenceColumn:
        return tr("Problem");
    case PlaceColumn:
        return tr("Node or Field");
    default:
        return tr("Identifier");
    }
}

Qt::ItemFlags ProblemModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}
