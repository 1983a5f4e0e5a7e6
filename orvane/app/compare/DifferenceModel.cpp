#include "orvane/app/compare/DifferenceModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/compare/DifferenceText.h"
#include "orvane/app/tree/NodeIcons.h"

#include "meridane/scene/fields/NxField.h"

#include <QTimerEvent>

#include <utility>

namespace {

using Side = NxSceneDifferences::Side;

constexpr int rememberedTexts = 4000;

bool isOfField(NxSceneDifference::Kind kind)
{
    return kind == NxSceneDifference::Kind::Value || kind == NxSceneDifference::Kind::Ignored;
}

} // namespace

DifferenceModel::DifferenceModel(QObject* parent)
    : QAbstractTableModel(parent)
    , m_texts(rememberedTexts)
    , m_sensor([](void* data, NxSensor*) { static_cast<DifferenceModel*>(data)->updateWatchedRow(); }, this)
{
}

DifferenceModel::~DifferenceModel() = default;

void DifferenceModel::setDifferences(NxSceneDifferences differences)
{
    beginResetModel();
    watchRow(-1);
    m_filtering.stop();
    m_filter.setQuery({});
    m_texts.clear();
    m_differences = std::move(differences);
    endResetModel();
}

const NxSceneDifference& DifferenceModel::difference(int row) const
{
    return m_differences.list()[placeOf(row)];
}

std::size_t DifferenceModel::placeOf(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return m_filter.isOn() ? m_filter.found()[place] : place;
}

void DifferenceModel::setFilter(const meridane::Query& query)
{
    beginResetModel();
    watchRow(-1);
    m_filter.setQuery(query);
    endResetModel();
    if (m_filter.isOn()) {
        m_filtering.start(0, this);
    } else {
        m_filtering.stop();
        Q_EMIT filtered();
    }
}

void DifferenceModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_filtering.timerId())
        return;
    const std::size_t count = m_differences.list().size();
    const auto found = m_filter.find(count, [this](std::size_t place) { return rowText(place); });
    if (!found.empty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(found.size()) - 1);
        m_filter.append(found);
        endInsertRows();
    }
    if (!m_filter.isDone(count))
        return;
    m_filtering.stop();
    Q_EMIT filtered();
}

QString DifferenceModel::rowText(std::size_t place) const
{
    QString row;
    for (int column = 0; column < ColumnCount; ++column)
        row += makeText(place, column) + u'\n';
    return row;
}

void DifferenceModel::watchRow(int row)
{
    m_sensor.detach();
    m_watchedRow = row;
    NxField* const field = row < 0 ? nullptr : m_differences.field(difference(row), Side::Left);
    if (field != nullptr)
        m_sensor.attach(field);
}

void DifferenceModel::forgetTexts()
{
    m_texts.clear();
}

void DifferenceModel::updateWatchedRow()
{
    m_texts.clear();
    Q_EMIT dataChanged(index(m_watchedRow, LeftColumn), index(m_watchedRow, RightColumn));
}

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(m_filter.isOn() ? m_filter.found().size() : m_differences.list().size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QString DifferenceModel::text(std::size_t place, int column) const
{
    const std::size_t key = place * ColumnCount + static_cast<std::size_t>(column);
    if (const QString* const known = m_texts.object(key))
        return *known;
    QString made = makeText(place, column);
    m_texts.insert(key, new QString(made));
    return made;
}

QString DifferenceModel::makeText(std::size_t place, int column) const
{
    const NxSceneDifference& difference = m_differences.list()[place];
    switch (column) {
    case NodeColumn:
        return orvane::shortLine(orvane::toQString(m_differences.path(difference)), 300);
    case SubjectColumn: {
        if (!isOfField(difference.kind))
            return orvane::kindText(difference.kind);
        const QString field = orvane::shortLine(orvane::toQString(m_differences.fieldName(difference)));
        return difference.kind == NxSceneDifference::Kind::Ignored ? tr("%1, ignored").arg(field) : field;
    }
    default:
        return orvane::sideText(m_differences, difference, column == LeftColumn ? Side::Left : Side::Right);
    }
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::size_t place = placeOf(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(place, index.column());
    case Qt::ToolTipRole:
        return orvane::plainToolTip(text(place, index.column()));
    case Qt::DecorationRole: {
        if (index.column() != NodeColumn)
            return {};
        const NxComparedNode& node = m_differences.node(m_differences.list()[place]);
        return orvane::nodeIcon((node.left ? node.left : node.right)->getTypeId());
    }
    default:
        return {};
    }
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NodeColumn:
        return tr("Node");
    case SubjectColumn:
        return tr("Field or Change");
    case LeftColumn:
        return tr("This Scene");
    default:
        return tr("Other File");
    }
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}
