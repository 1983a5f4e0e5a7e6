#pragma once

#include <QStyledItemDelegate>

class QTreeView;

/// Draws the rows of the scene tree: the names, with the number of children behind those of folded nodes, and an eye
/// for nodes that are shown in the view. Rows that a search hasn't found, and those of nodes that aren't shown, are
/// quiet.
class NodeDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// The view shows a `SceneTreeModel`.
    explicit NodeDelegate(QTreeView* view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    /// The width at the end of a name's cell that a subclass draws marks in.
    [[nodiscard]] virtual int marksWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const;

private:
    [[nodiscard]] QString countText(const QModelIndex& index) const;
    void paintCount(QPainter& painter, const QStyleOptionViewItem& option, const QString& count) const;
    void paintEye(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    QTreeView* m_view;
};
