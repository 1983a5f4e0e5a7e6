#pragma once

#include <QTreeView>

class RowSelection;

/// The tree of nodes, in which several can be selected. When all that is selected is removed, the row below takes its
/// place, or the one above.
class SceneTreeView : public QTreeView {
    Q_OBJECT

public:
    using QTreeView::QTreeView;

    /// Shows a model, with a `RowSelection` of its own.
    void setModel(QAbstractItemModel* model) override;
    /// All rows that are selected; null before there is a model.
    [[nodiscard]] RowSelection* rowSelection() const noexcept { return m_rowSelection; }

    /// Lays all rows out again before they are used next. Until then, folding and unfolding any number of rows takes
    /// hardly any time.
    void layoutLater() { scheduleDelayedItemsLayout(); }

Q_SIGNALS:
    /// The user has clicked on the eye of a row.
    void eyeClicked(const QModelIndex& index);
    /// The user wants everything below the selected rows unfolded.
    void unfoldRequested();
    /// The user drags the selected rows.
    void dragStarted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

protected Q_SLOTS:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    [[nodiscard]] bool clickEye(const QMouseEvent& event);
    [[nodiscard]] bool isSelectionWithin(const QModelIndex& parent, int start, int end) const;

    RowSelection* m_rowSelection = nullptr;
};
