#pragma once

#include "orvane/app/fields/FieldMark.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

/// The marks at the end of each row of the field table: a sign that ignores the field, a star for favourites, and an
/// arrow that resets a changed value. A click on one does what it shows.
///
/// What is on is always shown; the others are shown in the current row and under the pointer.
class MarkDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using Mark = FieldMark;
    static constexpr int markCount = 3;

    explicit MarkDelegate(QObject* parent = nullptr);

    /// How wide the column has to be for all marks.
    [[nodiscard]] static int columnWidth(const QWidget& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

    /// The place of a mark in its cell.
    [[nodiscard]] static QRect placeOf(Mark mark, const QStyleOptionViewItem& option);

Q_SIGNALS:
    void clicked(FieldMark mark, const QPersistentModelIndex& index);
};
