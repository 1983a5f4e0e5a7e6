#pragma once

#include "orvane/app/tree/NodeDelegate.h"

class FavoriteNodes;
class SceneTreeModel;

/// Draws the names in the scene tree, with a star at the end of the rows of favorites.
class FavoriteDelegate : public NodeDelegate {
    Q_OBJECT

public:
    /// Both live as long as the delegate.
    FavoriteDelegate(const FavoriteNodes& favorites, const SceneTreeModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    [[nodiscard]] bool isFavorite(const QModelIndex& index) const;

    const FavoriteNodes& m_favorites;
    const SceneTreeModel& m_model;
};
