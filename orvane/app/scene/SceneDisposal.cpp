#include "orvane/app/scene/SceneDisposal.h"

#include "meridane/scene/nodes/NxGroup.h"

SceneDisposal::SceneDisposal(SliceClock::Clock clock)
    : m_clock(clock)
{
}

SceneDisposal::~SceneDisposal()
{
    finish();
}

void SceneDisposal::dispose(NxRef<NxNode> node)
{
    if (!node)
        return;
    m_nodes.push_back(std::move(node));
    if (!m_timer.isActive())
        m_timer.start(0, this);
}

void SceneDisposal::finish()
{
    while (!m_nodes.empty())
        takeOneApart();
    m_timer.stop();
}

void SceneDisposal::timerEvent(QTimerEvent*)
{
    const SliceClock slice(m_clock);
    while (!m_nodes.empty() && !slice.isSpent())
        takeOneApart();
    if (m_nodes.empty())
        m_timer.stop();
}

void SceneDisposal::takeOneApart()
{
    auto* group = dynamic_cast<NxGroup*>(m_nodes.back().get());
    if (group == nullptr || group->getRefCount() > 1 || group->getNumChildren() == 0) {
        m_nodes.pop_back();
        return;
    }
    const int last = group->getNumChildren() - 1;
    NxRef<NxNode> child(group->getChild(last));
    group->removeChild(last);
    m_nodes.push_back(std::move(child));
}
