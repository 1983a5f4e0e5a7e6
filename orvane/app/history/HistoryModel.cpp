#include "orvane/app/history/HistoryModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/tree/NodeIcons.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/journal/Journal.h"

#include <QDateTime>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr int rememberedTexts = 2000;

} // namespace

HistoryModel::HistoryModel(OrvServices& services, QObject* parent)
    : QAbstractTableModel(parent)
    , m_services(services)
    , m_index(services.steps())
    , m_count(services.steps().count() + 1)
    , m_texts(rememberedTexts)
{
    connect(&services.steps(), &OrvStepList::changed, this, &HistoryModel::follow);
    connect(&services.steps(), &OrvStepList::updated, this, &HistoryModel::updateRows);
    m_work.start(0, this);
    orvane::followLanguage(this, [this] { m_texts.clear(); });
}

HistoryModel::~HistoryModel() = default;

void HistoryModel::setOrigin(const QString& text)
{
    m_origin = text;
    updateRows();
}

void HistoryModel::setFilter(const meridane::Query& query)
{
    beginResetModel();
    m_filter.setQuery(query);
    endResetModel();
    if (m_filter.isOn())
        m_work.start(0, this);
    else
        Q_EMIT filtered();
}

int HistoryModel::positionOf(int row) const
{
    return m_filter.isOn() ? static_cast<int>(m_filter.found()[static_cast<std::size_t>(row)]) : row;
}

int HistoryModel::rowOf(int position) const
{
    if (!m_filter.isOn())
        return position < m_count ? position : -1;
    const auto& found = m_filter.found();
    const std::size_t row = m_filter.countBefore(static_cast<std::size_t>(position));
    return row < found.size() && found[row] == static_cast<std::uint32_t>(position) ? static_cast<int>(row) : -1;
}

std::optional<PastState::History> HistoryModel::history()
{
    const meridane::Journal* const journal = m_services.document().journal();
    if (journal == nullptr)
        return std::nullopt;
    m_index.run(std::chrono::hours(1));
    return PastState::History{m_services.steps(), m_index, *journal};
}

void HistoryModel::follow(int dropped, int first)
{
    constexpr std::chrono::milliseconds atOnce{1}; // enough for the steps of a user
    m_index.follow(dropped, first);
    m_index.run(atOnce);
    removeFirst(std::min(dropped, m_count - 1));
    const int count = m_services.steps().count() + 1;
    const int changed = std::min(first + 1, m_count); // of the states that stay
    if (m_filter.isOn())
        filterAgainFrom(changed);
    else
        resizeTo(count);
    m_count = count;
    updateRows();
    m_work.start(0, this);
}

// The state after them becomes the first one.
void HistoryModel::removeFirst(int states)
{
    if (states == 0)
        return;
    const auto gone = static_cast<std::size_t>(states);
    const int rows = m_filter.isOn() ? static_cast<int>(m_filter.countBefore(gone + 1)) : states;
    m_gone = states;
    if (rows > 0)
        beginRemoveRows({}, 0, rows - 1);
    m_filter.removeFirst(gone);
    m_count -= states;
    m_gone = 0;
    if (rows > 0)
        endRemoveRows();
}

void HistoryModel::filterAgainFrom(int position)
{
    const int rows = rowCount();
    const auto kept = static_cast<int>(m_filter.countBefore(static_cast<std::size_t>(position)));
    if (kept < rows)
        beginRemoveRows({}, kept, rows - 1);
    m_filter.restartFrom(static_cast<std::size_t>(position));
    if (kept < rows)
        endRemoveRows();
}

void HistoryModel::resizeTo(int states)
{
    if (states > m_count) {
        beginInsertRows({}, m_count, states - 1);
        m_count = states;
        endInsertRows();
    } else if (states < m_count) {
        beginRemoveRows({}, states, m_count - 1);
        m_count = states;
        endRemoveRows();
    }
}

void HistoryModel::updateRows()
{
    if (const int rows = rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, ColumnCount - 1));
}

void HistoryModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_work.timerId())
        return;
    if (!m_index.isComplete()) {
        if (!m_index.run(SliceClock()))
            updateRows(); // their values can be read now
        return;
    }
    const auto count = static_cast<std::size_t>(m_count);
    if (!m_filter.isOn() || m_filter.isDone(count)) {
        m_work.stop();
        return;
    }
    const auto found = m_filter.find(count, [this](std::size_t state) { return rowText(static_cast<int>(state)); });
    if (!found.empty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(found.size()) - 1);
        m_filter.append(found);
        endInsertRows();
    }
    if (m_filter.isDone(count))
        Q_EMIT filtered();
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_filter.isOn() ? static_cast<int>(m_filter.found().size()) : m_count;
}

int HistoryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QString HistoryModel::rowText(int position) const
{
    const StepText values = makeValues(position);
    return stateText(position) + u'\n' + stepLabel(position) + u'\n' + values.before + u'\n' + values.after;
}

QString HistoryModel::text(int position, int column) const
{
    switch (column) {
    case StateColumn:
        return stateText(position);
    case StepColumn:
        return stepLabel(position);
    case BeforeColumn:
        return values(position).before;
    case AfterColumn:
        return values(position).after;
    default:
        return timeText(position);
    }
}

QString HistoryModel::stateText(int position) const
{
    const OrvStepList& steps = m_services.steps();
    const bool isNow = position == steps.position();
    if (steps.isSavedAt(position))
        return isNow ? tr("Now, saved") : tr("Saved");
    if (isNow)
        return tr("Now");
    return position > steps.position() ? tr("Undone") : QString();
}

QString HistoryModel::stepLabel(int position) const
{
    if (position == 0)
        return m_services.steps().hasDropped() ? tr("The oldest state that is kept") : m_origin;
    const QString label = m_services.steps().label(position - 1);
    return label.isEmpty() ? tr("Nothing changed") : orvane::shortLine(label, 300);
}

// Of today by the clock, before that with the date.
QString HistoryModel::timeText(int position) const
{
    if (position == 0)
        return {};
    const auto time = std::chrono::floor<std::chrono::milliseconds>(m_services.steps().time(position - 1));
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count());
    return orvane::momentText(local, QDate::currentDate());
}

const StepText& HistoryModel::values(int position) const
{
    static const StepText none;
    if (position == 0)
        return none;
    const quint64 number = m_services.steps().number(position - 1);
    if (const StepText* const known = m_texts.object(number))
        return *known;
    if (!m_index.isComplete())
        return none;
    auto* const made = new StepText(makeValues(position));
    m_texts.insert(number, made);
    return *made;
}

StepText HistoryModel::makeValues(int position) const
{
    const meridane::Journal* const journal = m_services.document().journal();
    if (position == 0 || journal == nullptr)
        return {};
    return orvane::stepText({m_services.steps(), m_index, *journal}, position - 1);
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int position = positionOf(index.row()) - m_gone;
    const OrvStepList& steps = m_services.steps();
    if (position < 0 || position > steps.count())
        return {}; // it is about to be removed
    switch (role) {
    case Qt::DisplayRole:
        return text(position, index.column());
    case Qt::ToolTipRole:
        return orvane::plainToolTip(text(position, index.column()));
    case Qt::DecorationRole:
        if (index.column() != StepColumn || position == 0 || steps.nodeType(position - 1).isBad())
            return {};
        return orvane::nodeIcon(steps.nodeType(position - 1));
    case Qt::FontRole: {
        QFont font;
        font.setBold(position == steps.position());
        return font;
    }
    case Qt::ForegroundRole:
        return position > steps.position() ? QGuiApplication::palette().color(QPalette::PlaceholderText) : QVariant();
    default:
        return {};
    }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case StateColumn:
        return tr("State");
    case StepColumn:
        return tr("Step");
    case BeforeColumn:
        return tr("Before");
    case AfterColumn:
        return tr("After");
    default:
        return tr("Time");
    }
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}
