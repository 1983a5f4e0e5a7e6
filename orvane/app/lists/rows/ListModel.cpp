#include "orvane/app/lists/rows/ListModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/look/Look.h"

#include "meridane/scene/fields/NxMField.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

constexpr qsizetype shownCellCharacters = 300; // of a text
constexpr qsizetype cellTipCharacters = 1000;

/// The colour of the title of a component; none for those without an axis or a channel.
QVariant columnTitleColor(const QString& title)
{
    using orvane::look::Tint;
    static const std::array tints{std::pair(u"x", Tint::AxisX), std::pair(u"r", Tint::AxisX),
        std::pair(u"y", Tint::AxisY), std::pair(u"g", Tint::AxisY), std::pair(u"z", Tint::AxisZ),
        std::pair(u"b", Tint::AxisZ), std::pair(u"w", Tint::AxisW), std::pair(u"a", Tint::AxisW),
        std::pair(u"angle", Tint::AxisW), std::pair(u"distance", Tint::AxisW)};
    for (const auto& [name, tint] : tints) {
        if (title == QStringView(name))
            return orvane::look::textColor(tint, QGuiApplication::palette().color(QPalette::Button));
    }
    return {};
}

} // namespace

ListModel::ListModel(OrvDocument& document, QObject* parent)
    : QAbstractTableModel(parent)
    , m_watch(document)
{
    connect(&m_watch, &ListWatch::changed, this, &ListModel::follow);
}

ListModel::~ListModel() = default;

void ListModel::setList(NxMField* list)
{
    if (list == m_list)
        return;
    Q_EMIT listAboutToBeLeft();
    beginResetModel();
    m_watch.watch(list);
    m_node = NxRef<NxFieldContainer>(list != nullptr ? list->getContainer() : nullptr);
    m_list = list;
    m_columns = list != nullptr ? ListColumns(*list) : ListColumns();
    m_listCount = list != nullptr ? list->getNum() : 0;
    m_map = RowMap(RowRange::Rows{0, 1, m_listCount});
    m_showsAll = true;
    endResetModel();
    Q_EMIT listChanged();
}

void ListModel::setMap(RowMap map)
{
    if (m_showsAll && map.isWhole(m_listCount))
        return;
    beginResetModel();
    m_map = std::move(map);
    m_showsAll = false;
    endResetModel();
}

void ListModel::showAll()
{
    if (m_showsAll)
        return;
    beginResetModel();
    m_map = RowMap(RowRange::Rows{0, 1, m_listCount});
    m_showsAll = true;
    endResetModel();
}

void ListModel::follow(const std::vector<RowSplice>& splices)
{
    if (m_showsAll) {
        m_pending = splices;
        while (!m_pending.empty()) {
            const RowSplice splice = m_pending.front();
            spliceAll(splice);
            Q_EMIT rowsSpliced({splice});
        }
    } else if (!splices.empty()) {
        spliceMap(splices);
    }
    announceValues();
    Q_EMIT listChanged();
}

// Rows that take the place of others are the same rows with other values.
void ListModel::spliceAll(RowSplice splice)
{
    const int kept = std::min(splice.removed, splice.inserted);
    const int first = splice.start + kept;
    const auto setCount = [this](int count) {
        m_listCount = count;
        m_map = RowMap(RowRange::Rows{0, 1, count});
        m_pending.erase(m_pending.begin());
    };
    if (splice.removed > kept) {
        beginRemoveRows({}, first, splice.start + splice.removed - 1);
        setCount(m_listCount - (splice.removed - kept));
        endRemoveRows();
    } else if (splice.inserted > kept) {
        beginInsertRows({}, first, splice.start + splice.inserted - 1);
        setCount(m_listCount + splice.inserted - kept);
        endInsertRows();
    } else {
        m_pending.erase(m_pending.begin());
    }
}

// Where a row is now that views know by its place before the pending changes; -1 if it is gone.
int ListModel::presentRow(int row) const
{
    for (const RowSplice splice : m_pending) {
        const int kept = splice.start + std::min(splice.removed, splice.inserted);
        const int end = splice.start + splice.removed;
        if (row >= end)
            row += splice.inserted - splice.removed;
        else if (row >= kept)
            return -1;
    }
    return row;
}

void ListModel::spliceMap(const std::vector<RowSplice>& splices)
{
    beginResetModel();
    std::vector<int> rows(static_cast<std::size_t>(m_map.count()));
    for (std::size_t place = 0; place < rows.size(); ++place)
        rows[place] = m_map.listRow(static_cast<int>(place));
    for (const RowSplice splice : splices) {
        const int kept = splice.start + std::min(splice.removed, splice.inserted);
        const int end = splice.start + splice.removed;
        std::erase_if(rows, [kept, end](int row) { return row >= kept && row < end; });
        for (int& row : rows)
            row += row >= end ? splice.inserted - splice.removed : 0;
        m_listCount += splice.inserted - splice.removed;
    }
    m_map = RowMap(std::move(rows), m_listCount);
    Q_EMIT rowsSpliced(splices);
    endResetModel();
}

void ListModel::announceValues()
{
    if (const int rows = rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_map.count();
}

int ListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns.count();
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = presentRow(listRow(index));
    const bool isNumber = m_columns.kind() == ListColumns::Kind::Number;
    switch (role) {
    case Qt::DisplayRole:
        return shownText(row, index.column());
    case Qt::EditRole:
        return m_columns.text(row, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(isNumber ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::CheckStateRole:
        if (m_columns.kind() != ListColumns::Kind::Flag)
            return {};
        return m_columns.number(row, 0) == 1 ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole:
        return isNumber ? QVariant()
                        : orvane::plainToolTip(m_columns.text(row, index.column()).left(cellTipCharacters));
    case SwatchRole:
        return index.column() == 0 && m_columns.isColor() ? swatch(row) : QVariant();
    default:
        return {};
    }
}

QString ListModel::shownText(int row, int column) const
{
    QString text = m_columns.text(row, column);
    if (m_columns.kind() == ListColumns::Kind::Number)
        return text;
    return orvane::oneLine(text.size() <= shownCellCharacters ? text : text.left(shownCellCharacters) + QChar(0x2026));
}

QVariant ListModel::swatch(int row) const
{
    const auto channel = [this, row](int column) {
        const double value = m_columns.number(row, column);
        return value > 0 ? static_cast<float>(std::min(value, 1.0)) : 0.0F; // NaN as well
    };
    return QColor::fromRgbF(channel(0), channel(1), channel(2), m_columns.count() > 3 ? channel(3) : 1.0F);
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        if (role == Qt::DisplayRole && section < m_map.count())
            return m_map.listRow(section);
        if (role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    }
    if (section >= m_columns.count())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns.title(section);
    if (role == Qt::ForegroundRole)
        return columnTitleColor(m_columns.title(section));
    return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren | Qt::ItemIsEditable;
    if (m_columns.kind() == ListColumns::Kind::Flag)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}
