#pragma once

#include <QStyledItemDelegate>

/// Draws the rows of the scene tree: greyed ones where a search has other hits.
class NodeDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
