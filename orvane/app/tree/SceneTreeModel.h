#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QAbstractItemModel>

#include <memory>
#include <span>
#include <vector>

class HiddenNodes;
class NodeMarks;
class SceneBranch;
class ShownNodes;

/// The nodes of a scene as a tree of rows: their names and their classes.
///
/// The rows under a node come into being when a view first asks for them, and only nodes with unfolded children take
/// memory here, beyond a pointer a row; finding the parent or the row of an index takes the same time in any scene. A
/// node that has several places in the scene has a row in each. Changes of names and of lists of children arrive
/// by sensors, so a moment later. The model edits nothing itself, see `renameRequested`.
class SceneTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        ClassColumn,
        ShownColumn, ///< whether the node is shown in the view
        ColumnCount
    };
    enum Role {
        GreyedRole = Qt::UserRole, ///< whether a search has found neither the node nor anything below it
        ShownRole, ///< whether the node is shown in the view
        HasEyeRole, ///< whether it can be hidden there: materials, for example, can't
        ChildCountRole,
        IgnoredRole, ///< whether a field of the node is ignored
    };

    explicit SceneTreeModel(QObject* parent = nullptr);
    ~SceneTreeModel() override;

    /// Shows the nodes in this group; null for nothing. Keeps the nodes that are shown alive.
    void setScene(NxGroup* scene);
    /// The group that is shown, or null.
    [[nodiscard]] NxGroup* scene() const;
    /// Shows which nodes a search has found; null for none. Views must be repainted by the caller.
    void setMarks(std::shared_ptr<const NodeMarks> marks) { m_marks = std::move(marks); }
    /// Which nodes are hidden, or null; it lives longer. Views must be repainted by the caller.
    void setHidden(const HiddenNodes* hidden) { m_hidden = hidden; }
    /// The rows under which there are rows, each before those under it. Others can't be unfolded.
    [[nodiscard]] QModelIndexList fetchedIndexes() const;

    [[nodiscard]] NxNode* node(const QModelIndex& index) const;
    /// The nodes in the rows under an index, those of the top nodes for an invalid one. None if no view has asked for
    /// these rows yet. Valid until rows come or go.
    [[nodiscard]] std::span<const NxRef<NxNode>> nodesBelow(const QModelIndex& parent) const;
    /// The group that the index's node is a child of.
    [[nodiscard]] NxGroup* group(const QModelIndex& index) const;
    /// The nodes from the top one down to that of the index.
    [[nodiscard]] std::vector<NxNode*> path(const QModelIndex& index) const;
    /// The index that these nodes lead to, each a child of the one before. Fetches rows as needed and updates those on
    /// the way, so nodes that were added a moment ago are found before the delay queue has run.
    [[nodiscard]] QModelIndex indexOfPath(std::span<NxNode* const> nodes);
    /// The first row of a node under another row; of the scene if that is invalid. Fetches and updates like
    /// `indexOfPath`.
    [[nodiscard]] QModelIndex childIndex(const QModelIndex& parent, const NxNode* node);
    /// Fetches the rows under another row, those of the top nodes for an invalid index, and brings them up to date
    /// before the delay queue has run.
    void updateRows(const QModelIndex& parent);
    /// The first place of a node: among the rows that are there, else anywhere in the scene.
    [[nodiscard]] QModelIndex findNode(const NxFieldContainer* node);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user gave a node another name in a view.
    void renameRequested(NxNode* node, const QString& name);

private:
    [[nodiscard]] SceneBranch* branchOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOfBranch(const SceneBranch& branch) const;
    [[nodiscard]] QModelIndex findFetched(SceneBranch& branch, const NxFieldContainer* node) const;
    SceneBranch& addBranch(const QModelIndex& index);
    void watch(SceneBranch& branch);
    void forgetBelow(SceneBranch& branch, int row, int count);
    void updateBranch(SceneBranch& branch);
    void updateNode(SceneBranch& branch, NxNode& node, bool unfolds);
    void layoutAgain();
    [[nodiscard]] QString toolTip(const QModelIndex& index) const;
    [[nodiscard]] QVariant font(const QModelIndex& index) const;
    [[nodiscard]] QString text(const QModelIndex& index) const;
    [[nodiscard]] bool isShown(const QModelIndex& index) const;

    std::unique_ptr<SceneBranch> m_root;
    std::unique_ptr<ShownNodes> m_shown;
    bool m_isUpdating = false; // rows come or go
    std::shared_ptr<const NodeMarks> m_marks;
    const HiddenNodes* m_hidden = nullptr;
};
