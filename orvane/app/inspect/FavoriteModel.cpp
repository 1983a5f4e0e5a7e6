#include "orvane/app/inspect/FavoriteModel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/tree/NodeIcons.h"

#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>

FavoriteModel::FavoriteModel(const FavoriteNodes& favorites, QObject* parent)
    : QAbstractListModel(parent)
    , m_favorites(favorites)
{
    connect(&favorites, &FavoriteNodes::changed, this, &FavoriteModel::update);
    update();
}

std::vector<NxNode*> FavoriteModel::path(const QModelIndex& index) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NxNode* const wanted = m_rows[static_cast<std::size_t>(index.row())].node;
    const std::vector<std::vector<NxNode*>> paths = m_favorites.paths();
    const auto found
        = std::find_if(paths.begin(), paths.end(), [wanted](const auto& path) { return path.back() == wanted; });
    return found != paths.end() ? *found : std::vector<NxNode*>();
}

void FavoriteModel::update()
{
    std::vector<Row> rows;
    for (const std::vector<NxNode*>& path : m_favorites.paths()) {
        const NxNode& node = *path.back();
        rows.push_back({&node, orvane::shortLine(orvane::toQString(node.getName())),
            QString::fromUtf8(node.getClassName()), orvane::nodeIcon(node.getTypeId())});
    }
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int FavoriteModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FavoriteModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.name.isEmpty() ? row.className : row.name;
    case Qt::DecorationRole:
        return row.icon;
    case Qt::ToolTipRole:
        return orvane::plainToolTip(tr("Favorite: %1 \"%2\"").arg(row.className, row.name));
    default:
        return {};
    }
}
