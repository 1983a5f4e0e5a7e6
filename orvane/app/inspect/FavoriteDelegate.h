#pragma once

#include "orvane/app/fields/FieldMark.h"
#include "orvane/app/tree/NodeDelegate.h"

#include <QList>

class FavoriteNodes;
class SceneTreeModel;

/// Draws the rows of the scene tree, with a star at the end of the names of favorites and a sign at those of nodes with
/// ignored fields.
class FavoriteDelegate : public NodeDelegate {
    Q_OBJECT

public:
    /// All live as long as the delegate.
    FavoriteDelegate(const FavoriteNodes& favorites, const SceneTreeModel& model, QTreeView* view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    [[nodiscard]] int marksWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    [[nodiscard]] QList<FieldMark> marks(const QModelIndex& index) const;

    const FavoriteNodes& m_favorites;
    const SceneTreeModel& m_model;
};
