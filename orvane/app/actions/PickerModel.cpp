#include "orvane/app/actions/PickerModel.h"

#include "orvane/app/base/PlainText.h"

#include <algorithm>

void PickerModel::setItems(const QList<PickerItem>& items)
{
    beginResetModel();
    m_items = items;
    endResetModel();
}

const PickerItem* PickerModel::item(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m_items.size() ? &m_items.at(index.row()) : nullptr;
}

int PickerModel::rowOf(quint64 id) const
{
    const auto found
        = std::find_if(m_items.begin(), m_items.end(), [id](const PickerItem& item) { return item.id == id; });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

int PickerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant PickerModel::data(const QModelIndex& index, int role) const
{
    const PickerItem* const shown = item(index);
    if (shown == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown->text;
    case Qt::AccessibleTextRole: {
        QStringList parts{shown->text, shown->detail, shown->keys, shown->reason};
        parts.removeAll(QString());
        return parts.join(QStringLiteral(", "));
    }
    case Qt::ToolTipRole:
        return orvane::plainToolTip(
            shown->reason.isEmpty() ? shown->text + u'\n' + shown->detail : shown->text + u'\n' + shown->reason);
    case Qt::DecorationRole:
        return shown->icon;
    default:
        return {};
    }
}

Qt::ItemFlags PickerModel::flags(const QModelIndex& index) const
{
    // Rows that can't be chosen can be read, too.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}
