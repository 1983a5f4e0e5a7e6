#include "orvane/app/inspect/FavoriteStrip.h"

#include "orvane/app/inspect/FavoriteModel.h"
#include "orvane/app/inspect/FavoriteNodes.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QKeyEvent>

#include <algorithm>

FavoriteStrip::FavoriteStrip(Session& session, const FavoriteNodes& favorites, SceneTreePanel* tree)
    : QListView(tree)
    , m_model(new FavoriteModel(favorites, this))
    , m_tree(tree)
{
    setObjectName(QStringLiteral("favoriteStrip"));
    orvane::followLanguage(this, [this] { setAccessibleName(tr("Favorite Nodes")); });
    setModel(m_model);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Quieter than the tree below it, and so apart from it.
    setBackgroundRole(QPalette::AlternateBase);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    connect(this, &QListView::clicked, this, &FavoriteStrip::go);
    connect(m_model, &QAbstractItemModel::modelReset, this, &FavoriteStrip::fit);
    const OrvServices& services = session.services();
    connect(&services, &OrvServices::stepFinished, m_model, &FavoriteModel::update);
    connect(&services, &OrvServices::historyChanged, m_model, &FavoriteModel::update);
    tree->addTopWidget(this);
    fit();
}

void FavoriteStrip::fit()
{
    const int rows = m_model->rowCount();
    setFixedHeight(std::min(rows, mostRows) * std::max(sizeHintForRow(0), 1));
    setVisible(rows > 0);
}

void FavoriteStrip::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fit();
}

void FavoriteStrip::go(const QModelIndex& index)
{
    if (const std::vector<NxNode*> path = m_model->path(index); !path.empty())
        m_tree->select(m_tree->model()->indexOfPath(path));
}

void FavoriteStrip::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        go(currentIndex());
    else
        QListView::keyPressEvent(event);
}
