#include "orvane/app/tree/NodeDelegate.h"

#include "orvane/app/tree/SceneTreeModel.h"

void NodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(SceneTreeModel::GreyedRole).toBool())
        return;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        option->palette.setColor(
            group, QPalette::Text, option->palette.color(QPalette::Disabled, QPalette::PlaceholderText));
    }
    option->decorationAlignment = option->decorationAlignment | Qt::AlignVCenter;
    option->icon = QIcon(option->icon.pixmap(option->decorationSize, QIcon::Disabled));
}
