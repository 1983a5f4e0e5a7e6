#pragma once

#include <QStyledItemDelegate>

/// Paints the rows of a picker: icon, text with the matched letters in bold and underlined, detail, and keys.
class PickerDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
