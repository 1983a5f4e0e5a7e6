#pragma once

#include <QStyledItemDelegate>

/// Draws a recent file as a tile: its picture, name, folder, and when it was changed.
class RecentDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// All tiles have this size with that font.
    [[nodiscard]] static QSize tileSize(const QFontMetrics& font);

private:
    static void paintPicture(
        QPainter& painter, const QRect& place, const QStyleOptionViewItem& option, const QModelIndex& index);
    static void paintTexts(
        QPainter& painter, const QRect& place, const QStyleOptionViewItem& option, const QModelIndex& index);
};
