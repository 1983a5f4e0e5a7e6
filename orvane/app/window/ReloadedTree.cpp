#include "orvane/app/window/ReloadedTree.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/TreeState.h"

#include "meridane/base/NxDelayQueue.h"

#include <utility>

ReloadedTree::ReloadedTree(
    FileFlow& flow, SceneDocument& document, OrvServices& services, SceneTreePanel* tree, QObject* parent)
    : QObject(parent)
{
    connect(&flow, &FileFlow::aboutToReload, this,
        [this, tree, &services] { m_state = std::make_unique<TreeState>(*tree, services); });
    connect(&flow, &FileFlow::reloaded, this, &ReloadedTree::restore);
    connect(&document, &SceneDocument::sceneAboutToChange, this, [this] { m_state.reset(); });
}

ReloadedTree::~ReloadedTree() = default;

// Once the tree has the new rows.
void ReloadedTree::restore()
{
    if (m_state == nullptr)
        return;
    if (NxDelayQueue::getDefault().isEmpty())
        std::exchange(m_state, nullptr)->restore();
    else
        QMetaObject::invokeMethod(this, &ReloadedTree::restore, Qt::QueuedConnection);
}
