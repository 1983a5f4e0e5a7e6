#include "orvane/app/fields/FieldTableModel.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldFilter.h"
#include "orvane/app/fields/FieldToolTip.h"
#include "orvane/app/fields/RowLook.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include "meridane/scene/fields/NxField.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

struct FieldTableModel::Watch {
    Watch(FieldTableModel* owner, NxField* field, std::size_t row)
        : model(owner)
        , number(row)
        , sensor(
              [](void* data, NxSensor*) {
                  const auto* const watch = static_cast<Watch*>(data);
                  watch->model->rowChanged(watch->number);
              },
              this)
    {
        sensor.attach(field);
    }

    FieldTableModel* model;
    std::size_t number;
    NxFieldSensor sensor;
};

FieldTableModel::FieldTableModel(QObject* parent)
    : QAbstractItemModel(parent)
{
}

FieldTableModel::~FieldTableModel() = default;

void FieldTableModel::setNode(NxFieldContainer* node)
{
    setNodes(node != nullptr ? std::make_shared<const FieldSet::Nodes>(1, node) : nullptr);
}

void FieldTableModel::setNodes(const std::shared_ptr<const FieldSet::Nodes>& nodes)
{
    beginResetModel();
    m_watches.clear();
    m_nodeWatches.clear();
    m_nodes = nodes != nullptr && nodes->empty() ? nullptr : nodes;
    m_groups.clear();
    m_all.clear();
    m_pendingRow = nullptr;
    m_rows.clear();
    if (m_nodes) {
        m_rows = orvane::fieldRows(m_nodes);
        rebuild();
        watchNodes();
    }
    endResetModel();
}

NxFieldContainer* FieldTableModel::node() const noexcept
{
    return m_nodes ? m_nodes->front().get() : nullptr;
}

void FieldTableModel::setFilter(const meridane::Query& query, bool changedOnly)
{
    beginResetModel();
    m_filter = query;
    m_changedOnly = changedOnly;
    applyFilter();
    endResetModel();
}

void FieldTableModel::setFavorites(const QSet<QString>& favorites)
{
    if (favorites == m_favorites)
        return;
    beginResetModel();
    m_favorites = favorites;
    rebuild();
    endResetModel();
}

void FieldTableModel::setWriter(const FieldWriter& writer)
{
    m_writer = &writer;
    connect(&writer, &FieldWriter::pendingChanged, this, &FieldTableModel::showPending);
}

void FieldTableModel::showPending()
{
    const auto show = [this](const FieldRow& row) {
        if (const QModelIndex index = indexOf(row).siblingAtColumn(ValueColumn); index.isValid())
            Q_EMIT dataChanged(index, index);
    };
    const auto found = std::ranges::find_if(m_rows, [this](const auto& row) { return isPending(*row); });
    FieldRow* const before = std::exchange(m_pendingRow, found != m_rows.end() ? found->get() : nullptr);
    if (before != nullptr && before != m_pendingRow)
        show(*before);
    if (m_pendingRow != nullptr)
        show(*m_pendingRow);
}

void FieldTableModel::rebuild()
{
    m_all = orvane::fieldGroups(m_rows, m_favorites);
    applyFilter();
}

void FieldTableModel::applyFilter()
{
    const FieldFilter filter(m_filter, m_changedOnly);
    m_groups.clear();
    for (const auto& group : m_all) {
        group->shown.clear();
        std::ranges::copy_if(group->rows, std::back_inserter(group->shown),
            [&filter](const FieldRow* row) { return filter.shows(*row); });
        if (!group->shown.empty())
            m_groups.push_back(group.get());
    }
}

void FieldTableModel::watchNodes()
{
    if (m_nodes->size() == 1) {
        for (std::size_t number = 0; number < m_rows.size(); ++number) {
            if (NxField* const field = m_rows[number]->first())
                m_watches.push_back(std::make_unique<Watch>(this, field, number));
        }
        return;
    }
    // Fewer than a sensor for each field of each node.
    const auto callback = [](void* data, NxSensor*) { static_cast<FieldTableModel*>(data)->refreshLater(); };
    m_nodeWatches.reserve(m_nodes->size());
    for (const NxRef<NxFieldContainer>& node : *m_nodes) {
        m_nodeWatches.push_back(std::make_unique<NxNodeSensor>(callback, this));
        m_nodeWatches.back()->attach(node.get());
    }
}

void FieldTableModel::rowChanged(std::size_t number)
{
    FieldRow& row = *m_rows[number];
    row.forget();
    const QModelIndex changed = indexOf(row);
    if (!changed.isValid())
        return;
    Q_EMIT dataChanged(changed, changed.siblingAtColumn(MarkColumn));
    const QModelIndex group = changed.parent(); // counts the changed ones
    Q_EMIT dataChanged(group.siblingAtColumn(ValueColumn), group.siblingAtColumn(ValueColumn));
}

void FieldTableModel::refreshLater()
{
    if (m_refreshPosted)
        return;
    m_refreshPosted = true;
    QMetaObject::invokeMethod(this, &FieldTableModel::refresh, Qt::QueuedConnection);
}

void FieldTableModel::refresh()
{
    m_refreshPosted = false;
    for (const auto& row : m_rows)
        row->forget();
    if (m_groups.empty())
        return;
    for (int group = 0; group < rowCount(); ++group) {
        const QModelIndex parent = index(group, 0);
        Q_EMIT dataChanged(index(0, NameColumn, parent), index(rowCount(parent) - 1, MarkColumn, parent));
    }
    Q_EMIT dataChanged(index(0, NameColumn), index(rowCount() - 1, MarkColumn));
    Q_EMIT valuesChanged();
}

const FieldGroup* FieldTableModel::group(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    const auto* const group = static_cast<const FieldGroup*>(index.internalPointer());
    return group != nullptr ? group : m_groups[static_cast<std::size_t>(index.row())];
}

const FieldRow* FieldTableModel::row(const QModelIndex& index) const
{
    const auto* const group = static_cast<const FieldGroup*>(index.internalPointer());
    return index.isValid() && group != nullptr ? group->shown[static_cast<std::size_t>(index.row())] : nullptr;
}

FieldSet FieldTableModel::fieldSet(const QModelIndex& index) const
{
    const FieldRow* const found = row(index);
    return found != nullptr ? found->fields() : FieldSet();
}

NxField* FieldTableModel::field(const QModelIndex& index) const
{
    const FieldRow* const found = row(index);
    return found != nullptr ? found->first() : nullptr;
}

QModelIndex FieldTableModel::indexOf(const NxField* field) const
{
    const auto found = std::ranges::find_if(m_rows, [field](const auto& row) { return row->first() == field; });
    return field != nullptr && found != m_rows.end() ? indexOf(**found) : QModelIndex();
}

QModelIndex FieldTableModel::indexOf(const FieldRow& row) const
{
    for (FieldGroup* const group : m_groups) {
        const auto found = std::ranges::find(group->shown, &row);
        if (found != group->shown.end())
            return createIndex(static_cast<int>(found - group->shown.begin()), NameColumn, group);
    }
    return {};
}

int FieldTableModel::shownCount() const
{
    std::size_t count = 0;
    for (const FieldGroup* const group : m_groups)
        count += group->shown.size();
    return static_cast<int>(count);
}

std::vector<FieldSet> FieldTableModel::allFields(const QModelIndex& group) const
{
    const FieldGroup* const only = this->group(group);
    std::vector<FieldSet> fields;
    for (const auto& candidate : m_all) {
        if (only != nullptr && candidate.get() != only)
            continue;
        for (const FieldRow* const row : candidate->rows) {
            if (!row->fields().isEmpty())
                fields.push_back(row->fields());
        }
    }
    return fields;
}

QModelIndex FieldTableModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? m_groups[static_cast<std::size_t>(parent.row())] : nullptr);
}

QModelIndex FieldTableModel::parent(const QModelIndex& index) const
{
    const auto* const group = static_cast<const FieldGroup*>(index.internalPointer());
    if (!index.isValid() || group == nullptr)
        return {};
    return createIndex(static_cast<int>(std::ranges::find(m_groups, group) - m_groups.begin()), NameColumn, nullptr);
}

int FieldTableModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.internalPointer() != nullptr || parent.column() != NameColumn)
        return 0;
    return static_cast<int>(m_groups[static_cast<std::size_t>(parent.row())]->shown.size());
}

int FieldTableModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant FieldTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FieldRow* const found = row(index);
    return found != nullptr ? rowData(*found, *group(index), index.column(), role)
                            : groupData(*group(index), index.column(), role);
}

QVariant FieldTableModel::groupData(const FieldGroup& group, int column, int role) const
{
    if (role == Qt::DisplayRole && column == NameColumn)
        return group.title();
    if (role == Qt::BackgroundRole)
        return QGuiApplication::palette().color(QPalette::Window);
    if (role == FieldRoles::ChangedRole)
        return group.changedCount();
    if (role == Qt::DisplayRole && column == ValueColumn && group.kind != FieldGroup::Kind::Unknown) {
        const int changed = group.changedCount();
        return changed > 0 ? tr("%1 changed").arg(changed) : QString();
    }
    if (role == Qt::ToolTipRole)
        return orvane::groupToolTip(group);
    return {};
}

QVariant FieldTableModel::rowData(const FieldRow& row, const FieldGroup& group, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        if (column == NameColumn)
            return row.name();
        if (column == TypeColumn)
            return row.type();
        return column == ValueColumn ? valueText(row) : QString();
    case Qt::FontRole:
        return orvane::rowFont(row.isChanged() && column != TypeColumn, row.isIgnored() && column == NameColumn);
    case Qt::ForegroundRole:
        if (row.isIgnored() || row.fields().isEmpty() || column == TypeColumn
            || (column == ValueColumn && row.isMixed()))
            return orvane::quietTextColor();
        return {};
    case Qt::ToolTipRole:
        return orvane::fieldToolTip(row);
    case Qt::AccessibleTextRole:
        return accessibleText(row, group, column);
    case FieldRoles::FieldSetRole:
        return QVariant::fromValue(row.fields().isEmpty() ? nullptr : &row.fields());
    case FieldRoles::MixedRole:
        return row.isMixed();
    case FieldRoles::ChangedRole:
        return row.isChanged();
    case FieldRoles::IgnoredRole:
        return row.isIgnored();
    case FieldRoles::FavoriteRole:
        return group.kind == FieldGroup::Kind::Favorites;
    default:
        return {};
    }
}

bool FieldTableModel::isPending(const FieldRow& row) const
{
    return m_writer != nullptr && m_writer->isPending() && m_writer->isPending(row.fields());
}

QString FieldTableModel::valueText(const FieldRow& row) const
{
    return isPending(row) ? FieldRow::textOf(m_writer->pending(row.fields())) : row.text();
}

// What the marks, a dash and italics say to those who can't see them; nothing for what is text already.
QVariant FieldTableModel::accessibleText(const FieldRow& row, const FieldGroup& group, int column) const
{
    if (column == ValueColumn && isPending(row)) {
        const QString text = m_writer->pending(row.fields()).isMixed() ? tr("mixed") : valueText(row);
        return tr("%1, not written yet").arg(text);
    }
    if (column == ValueColumn && row.isMixed())
        return tr("mixed");
    return column == MarkColumn ? orvane::marksText(row, group) : QVariant();
}

QVariant FieldTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::AccessibleTextRole && section == MarkColumn)
        return tr("Marks"); // too narrow for a text
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Field");
    case TypeColumn:
        return tr("Type");
    case ValueColumn:
        return tr("Value");
    default:
        return {};
    }
}

Qt::ItemFlags FieldTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const FieldRow* const found = row(index);
    if (found == nullptr)
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    const bool isEditable = index.column() == ValueColumn && !found->fields().isEmpty() && !found->isList();
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}
