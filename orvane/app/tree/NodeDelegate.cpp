#include "orvane/app/tree/NodeDelegate.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/facts/ShownIcons.h"

#include <QApplication>
#include <QPainter>
#include <QTreeView>

using orvane::look::iconSize;
using orvane::look::quietColor;
using orvane::look::unit;

namespace {

/// The colour of a row's text.
QPalette::ColorRole textRole(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
}

QColor quietText(const QStyleOptionViewItem& option)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    return quietColor(option.palette.color(textRole(option)),
        option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base));
}

} // namespace

NodeDelegate::NodeDelegate(QTreeView* view)
    : QStyledItemDelegate(view)
    , m_view(view)
{
}

void NodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const bool isGreyed = index.data(SceneTreeModel::GreyedRole).toBool();
    if (isGreyed || !index.data(SceneTreeModel::ShownRole).toBool()) {
        const QColor quiet = quietText(*option);
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            option->palette.setColor(group, textRole(*option), quiet);
    }
    if (isGreyed)
        option->icon = QIcon(option->icon.pixmap(option->decorationSize, QIcon::Disabled));
    if (index.column() != SceneTreeModel::NameColumn)
        return;
    // The text ends before the number of children and the marks.
    const QString count = countText(index);
    const int behind = marksWidth(*option, index)
        + (count.isEmpty() ? 0 : option->fontMetrics.horizontalAdvance(count) + unit(option->fontMetrics));
    if (behind > 0) {
        const int before = option->decorationSize.width() + 3 * unit(option->fontMetrics);
        option->text = option->fontMetrics.elidedText(
            option->text, option->textElideMode, option->rect.width() - before - behind);
    }
}

int NodeDelegate::marksWidth(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return 0;
}

void NodeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() == SceneTreeModel::ShownColumn && index.data(SceneTreeModel::HasEyeRole).toBool())
        paintEye(*painter, option, index);
    if (index.column() != SceneTreeModel::NameColumn)
        return;
    if (const QString count = countText(index); !count.isEmpty()) {
        QStyleOptionViewItem shown = option;
        initStyleOption(&shown, index);
        paintCount(*painter, shown, count);
    }
}

QString NodeDelegate::countText(const QModelIndex& index) const
{
    const int count = index.data(SceneTreeModel::ChildCountRole).toInt();
    return count == 0 || m_view->isExpanded(index) ? QString() : QStringLiteral("(%1)").arg(count);
}

void NodeDelegate::paintCount(QPainter& painter, const QStyleOptionViewItem& option, const QString& count) const
{
    const QStyle* const style = m_view->style();
    QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &option, m_view);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, m_view) + 1;
    place.setLeft(place.left() + margin + option.fontMetrics.horizontalAdvance(option.text) + unit(option.fontMetrics));
    painter.save();
    painter.setPen(quietText(option));
    painter.setFont(m_view->font());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, count);
    painter.restore();
}

void NodeDelegate::paintEye(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool isShown = index.data(SceneTreeModel::ShownRole).toBool();
    const bool isUnderPointer = option.state.testFlag(QStyle::State_MouseOver);
    const int side = iconSize(option.fontMetrics);
    QRect place(0, 0, side, side);
    place.moveCenter(option.rect.center());
    // Open eyes are quiet: there is one in each row.
    const bool isQuiet = isShown && !isUnderPointer;
    orvane::drawEye(painter, place, isQuiet ? quietText(option) : option.palette.color(textRole(option)), isShown);
}
