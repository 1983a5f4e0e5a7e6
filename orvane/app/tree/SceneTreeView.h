#pragma once

#include <QTreeView>

/// The tree of nodes, in which several can be selected. When all that is selected is removed, the row below takes its
/// place, or the one above.
class SceneTreeView : public QTreeView {
    Q_OBJECT

public:
    using QTreeView::QTreeView;

protected Q_SLOTS:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    [[nodiscard]] bool isSelectionWithin(const QModelIndex& parent, int start, int end) const;
};
