#include "orvane/app/inspect/NodeLock.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/scene/Session.h"

#include "meridane/scene/file/NxScenePath.h"

#include <utility>

NodeLock::NodeLock(Session& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    connect(&session.services(), &OrvServices::documentEdited, this, &NodeLock::check);
    connect(
        &session.document(), &SceneDocument::sceneAboutToChange, this, [this] { giveUp(tr("the scene was closed")); });
}

NodeLock::~NodeLock() = default;

void NodeLock::followReloads(const FileFlow& flow)
{
    connect(&flow, &FileFlow::aboutToReload, this, [this] {
        if (isOn())
            m_pathBeforeReload = NxScenePath::toText(m_session.document().scene(), path());
    });
    connect(&flow, &FileFlow::reloaded, this, [this] {
        check();
        m_pathBeforeReload.clear();
    });
    connect(&flow, &FileFlow::reloadRefused, this, [this] { m_pathBeforeReload.clear(); });
}

std::vector<NxNode*> NodeLock::path() const
{
    const NxGroup* const scene = m_session.document().scene();
    return isOn() && scene != nullptr ? m_place->find(*scene) : std::vector<NxNode*>();
}

std::vector<int> NodeLock::rows() const
{
    const NxGroup* const scene = m_session.document().scene();
    return isOn() && scene != nullptr ? m_place->rows(*scene) : std::vector<int>();
}

QString NodeLock::pathText() const
{
    const std::vector<NxNode*> nodes = path();
    return nodes.empty() ? QString() : orvane::toQString(NxScenePath::toText(m_session.document().scene(), nodes));
}

void NodeLock::lock(std::span<NxNode* const> path)
{
    m_place.emplace(path);
    m_node = NxRef<NxNode>(path.back());
    m_revision = NxFieldContainer::getStructureRevision();
    m_pathBeforeReload.clear();
    Q_EMIT changed();
}

void NodeLock::unlock()
{
    if (!isOn())
        return;
    m_place.reset();
    m_pathBeforeReload.clear();
    // The slots may let go of the node, too.
    const NxRef<NxNode> node = std::exchange(m_node, NxRef<NxNode>());
    Q_EMIT changed();
}

void NodeLock::giveUp(const QString& why)
{
    if (!isOn())
        return;
    const QString message = tr("The lock on %1 is off, since %2.").arg(nodeText(), why);
    unlock();
    Q_EMIT lost(message);
}

QString NodeLock::nodeText() const
{
    const QString name = orvane::shortLine(orvane::toQString(m_node->getName()));
    return name.isEmpty() ? QString::fromUtf8(m_node->getClassName()) : name;
}

void NodeLock::check()
{
    const std::uint64_t revision = NxFieldContainer::getStructureRevision();
    if (!isOn() || std::exchange(m_revision, revision) == revision)
        return;
    if (std::vector<NxNode*> present = path(); !present.empty()) {
        m_place.emplace(present); // which may be another one than before
        return;
    }
    const QString name = nodeText();
    if (const std::vector<NxNode*> next = reloadedPath(); !next.empty()) {
        lock(next);
        Q_EMIT lost(tr("%1 was replaced by the reload; the lock is on the node in its place.").arg(name));
    } else {
        giveUp(tr("the node isn't in the scene any more"));
    }
}

std::vector<NxNode*> NodeLock::reloadedPath() const
{
    if (m_pathBeforeReload.empty())
        return {};
    NxScenePath::Target target = NxScenePath::find(m_session.document().scene(), m_pathBeforeReload);
    const bool isSuccessor
        = target.error.empty() && !target.nodes.empty() && target.nodes.back()->getTypeId() == m_node->getTypeId();
    return isSuccessor ? std::move(target.nodes) : std::vector<NxNode*>();
}
