#pragma once

#include <QListView>

class FavoriteModel;
class FavoriteNodes;
class SceneTreePanel;
class Session;

/// The favorite nodes, on top of the scene tree: a click or Return selects one. Not shown while there are none.
class FavoriteStrip : public QListView {
    Q_OBJECT

public:
    /// Higher than so many rows it doesn't get.
    static constexpr int mostRows = 5;

    /// Puts itself into the panel. All live longer.
    FavoriteStrip(Session& session, const FavoriteNodes& favorites, SceneTreePanel* tree);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fit();
    void go(const QModelIndex& index);

    FavoriteModel* m_model;
    SceneTreePanel* m_tree;
};
