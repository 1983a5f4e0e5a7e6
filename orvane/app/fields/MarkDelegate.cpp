#include "orvane/app/fields/MarkDelegate.h"

#include "orvane/app/fields/MarkIcons.h"
#include "orvane/app/fields/values/FieldRoles.h"
#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/look/Look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <array>
#include <optional>

namespace {

using Mark = MarkDelegate::Mark;

constexpr std::array allMarks{Mark::Ignore, Mark::Favorite, Mark::Reset};

bool hasField(const QModelIndex& index)
{
    return index.data(FieldRoles::FieldSetRole).value<const FieldSet*>() != nullptr;
}

bool isOn(Mark mark, const QModelIndex& index)
{
    switch (mark) {
    case Mark::Ignore:
        return index.data(FieldRoles::IgnoredRole).toBool();
    case Mark::Favorite:
        return index.data(FieldRoles::FavoriteRole).toBool();
    case Mark::Reset:
        return index.data(FieldRoles::ChangedRole).toBool();
    }
    Q_UNREACHABLE();
}

std::optional<Mark> markAt(const QPoint& place, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    for (const Mark mark : allMarks) {
        // The arrow resets only what has changed.
        const bool isThere = mark != Mark::Reset || isOn(mark, index);
        if (isThere && MarkDelegate::placeOf(mark, option).contains(place))
            return mark;
    }
    return {};
}

QString toolTipOf(Mark mark, bool isOn)
{
    switch (mark) {
    case Mark::Ignore:
        return isOn ? MarkDelegate::tr("Ignored: click to use the value again (Ctrl+Alt+I)")
                    : MarkDelegate::tr("Let the scene ignore this value (Ctrl+Alt+I)");
    case Mark::Favorite:
        return isOn ? MarkDelegate::tr("A favorite of this class: click to put it back (Ctrl+B)")
                    : MarkDelegate::tr("Put this field of the class to the top (Ctrl+B)");
    case Mark::Reset:
        return MarkDelegate::tr("Reset to the default (Ctrl+Backspace)");
    }
    Q_UNREACHABLE();
}

} // namespace

MarkDelegate::MarkDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

int MarkDelegate::columnWidth(const QWidget& view)
{
    return markCount * (orvane::look::iconSize(view.fontMetrics()) + orvane::look::unit(view.fontMetrics()));
}

QRect MarkDelegate::placeOf(Mark mark, const QStyleOptionViewItem& option)
{
    const int width = option.rect.width() / markCount;
    const int number = static_cast<int>(mark);
    return QStyle::visualRect(option.direction, option.rect,
        QRect(option.rect.left() + number * width, option.rect.top(), width, option.rect.height()));
}

void MarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyle* const style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    QStyleOptionViewItem panel = option;
    if (const QVariant brush = index.data(Qt::BackgroundRole); brush.isValid())
        panel.backgroundBrush = brush.value<QBrush>();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, option.widget);
    if (!hasField(index))
        return;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isActive = isSelected || option.state.testFlag(QStyle::State_MouseOver);
    const QPalette& palette = option.palette;
    const QColor background = palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor text = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const int side = orvane::look::iconSize(option.fontMetrics);
    for (const Mark mark : allMarks) {
        const bool isShownOn = isOn(mark, index);
        if (!isShownOn && (!isActive || mark == Mark::Reset))
            continue;
        QRect place(0, 0, side, side);
        place.moveCenter(placeOf(mark, option).center());
        QColor color = orvane::look::quietColor(text, background);
        if (isShownOn && mark == Mark::Reset)
            color = orvane::look::markColor(orvane::look::Tint::Changed, background);
        else if (isShownOn)
            color = text;
        orvane::drawMark(*painter, mark, place, color, isShownOn);
    }
}

QSize MarkDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    return {markCount * orvane::look::iconSize(option.fontMetrics), orvane::look::rowHeight(option.fontMetrics)};
}

bool MarkDelegate::editorEvent(
    QEvent* event, QAbstractItemModel* /*model*/, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (!isPress || !hasField(index))
        return false;
    const auto* const press = static_cast<const QMouseEvent*>(event);
    const auto mark = markAt(press->pos(), option, index);
    if (press->button() != Qt::LeftButton || !mark)
        return false;
    Q_EMIT clicked(*mark, index);
    return true;
}

bool MarkDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !hasField(index))
        return false;
    const auto mark = markAt(event->pos(), option, index);
    if (!mark)
        return false;
    QToolTip::showText(event->globalPos(), toolTipOf(*mark, isOn(*mark, index)), view, placeOf(*mark, option));
    return true;
}
