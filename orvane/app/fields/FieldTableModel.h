#pragma once

#include "orvane/app/fields/FieldGroup.h"
#include "orvane/app/fields/values/FieldRoles.h"

#include "meridane/query/Query.h"
#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/fields/NxNodeSensor.h"

#include <QAbstractItemModel>
#include <QSet>

#include <memory>
#include <vector>

class FieldWriter;
class NxField;
class NxFieldContainer;

/// The fields of one or several nodes as a tree: groups by class, the most derived first, and in them a row for each
/// field that all nodes have. It follows the values. Unknown fields are at the end.
class FieldTableModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, MarkColumn, ColumnCount };

    explicit FieldTableModel(QObject* parent = nullptr);
    ~FieldTableModel() override;

    /// Shows the fields of a node; null for none.
    void setNode(NxFieldContainer* node);
    /// Shows the fields that all nodes have. The first one is the node that was selected last; null or empty for none.
    void setNodes(const std::shared_ptr<const FieldSet::Nodes>& nodes);
    /// The node that was selected last; null for none.
    [[nodiscard]] NxFieldContainer* node() const noexcept;
    [[nodiscard]] const std::shared_ptr<const FieldSet::Nodes>& nodes() const noexcept { return m_nodes; }
    [[nodiscard]] int nodeCount() const noexcept { return m_nodes ? static_cast<int>(m_nodes->size()) : 0; }

    /// Shows only rows whose field matches the query; and only changed ones if `changedOnly`. Rows don't come and go as
    /// they are edited, but with the next filter.
    void setFilter(const meridane::Query& query, bool changedOnly);
    /// The keys of the fields that are favourites, see `orvane::favoriteKey`.
    void setFavorites(const QSet<QString>& favorites);

    /// Shows pending values of a deferred edit in place of those of the fields. The writer lives longer.
    void setWriter(const FieldWriter& writer);

    /// The row of an index; null for a group.
    [[nodiscard]] const FieldRow* row(const QModelIndex& index) const;
    /// The group whose row the index is, or in which it is; null for an invalid index.
    [[nodiscard]] const FieldGroup* group(const QModelIndex& index) const;
    /// The fields of a row; the empty set for a group and for an unknown field.
    [[nodiscard]] FieldSet fieldSet(const QModelIndex& index) const;
    /// The field of the node that was selected last; null for other rows.
    [[nodiscard]] NxField* field(const QModelIndex& index) const;
    /// The row of a field of the node that was selected last; invalid if it isn't shown.
    [[nodiscard]] QModelIndex indexOf(const NxField* field) const;
    [[nodiscard]] int shownCount() const;
    /// The fields of all rows of a group, or of all groups if the index is invalid, whether the filter shows them or
    /// not. Unknown fields are left out.
    [[nodiscard]] std::vector<FieldSet> allFields(const QModelIndex& group) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// Values of several nodes have changed.
    void valuesChanged();

private:
    struct Watch;

    void rebuild();
    void applyFilter();
    void watchNodes();
    void rowChanged(std::size_t number);
    void refreshLater();
    void refresh();
    [[nodiscard]] QVariant groupData(const FieldGroup& group, int column, int role) const;
    [[nodiscard]] QVariant rowData(const FieldRow& row, const FieldGroup& group, int column, int role) const;
    [[nodiscard]] QModelIndex indexOf(const FieldRow& row) const;
    [[nodiscard]] bool isPending(const FieldRow& row) const;
    [[nodiscard]] QString valueText(const FieldRow& row) const;
    [[nodiscard]] QVariant accessibleText(const FieldRow& row, const FieldGroup& group, int column) const;
    void showPending();

    std::shared_ptr<const FieldSet::Nodes> m_nodes; // null for none
    std::vector<std::unique_ptr<FieldRow>> m_rows;
    std::vector<std::unique_ptr<FieldGroup>> m_all; // all groups
    std::vector<FieldGroup*> m_groups; // those with rows that pass the filter
    std::vector<std::unique_ptr<Watch>> m_watches; // of the fields of a single node
    std::vector<std::unique_ptr<NxNodeSensor>> m_nodeWatches; // of several nodes
    meridane::Query m_filter;
    QSet<QString> m_favorites;
    const FieldWriter* m_writer = nullptr; // whose pending values are shown
    FieldRow* m_pendingRow = nullptr; // whose value was shown as pending
    bool m_changedOnly = false;
    bool m_refreshPosted = false;
};
