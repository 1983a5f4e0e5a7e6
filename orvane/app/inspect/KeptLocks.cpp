#include "orvane/app/inspect/KeptLocks.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/scene/Session.h"

#include "meridane/scene/file/NxScenePath.h"

namespace {

constexpr int firstInspector = 1;
const QString locksKey = QStringLiteral("inspect/locks");

} // namespace

KeptLocks::KeptLocks(Session& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    // Once the whole window shows the scene.
    connect(&session.document(), &SceneDocument::sceneChanged, this, &KeptLocks::restoreAll, Qt::QueuedConnection);
    // A scene that gets a file has locks to keep.
    connect(&session.document(), &SceneDocument::saved, this, [this] {
        for (const auto& [number, lock] : m_locks)
            store(number, lock->pathText());
    });
}

void KeptLocks::add(int number, NodeLock& lock)
{
    m_locks[number] = &lock;
    connect(&lock, &QObject::destroyed, this, [this, number] { m_locks.erase(number); });
    restore(number, lock);
    connect(&lock, &NodeLock::changed, this, [this, number] { storeLater(number); });
}

// A lock that goes off because its scene is closed is kept. That is known when the scene is gone.
void KeptLocks::storeLater(int number)
{
    const auto storeNow = [this, number, key = keyOf(number)] {
        const auto place = m_locks.find(number);
        if (place != m_locks.end() && !key.isEmpty() && key == keyOf(number))
            store(number, place->second->pathText());
    };
    QMetaObject::invokeMethod(this, storeNow, Qt::QueuedConnection);
}

void KeptLocks::remove(int number)
{
    store(number, {});
}

QString KeptLocks::keyOf(int number) const
{
    const QString fileName = m_session.document().fileName();
    const bool isUsable = m_session.document().isOpen() && !fileName.isEmpty() && !fileName.contains(u'\n');
    return isUsable ? QString::number(number) + u'\n' + fileName + u'\n' : QString();
}

void KeptLocks::restoreAll()
{
    for (const auto& [number, lock] : m_locks)
        restore(number, *lock);
}

void KeptLocks::restore(int number, NodeLock& lock)
{
    const QString key = keyOf(number);
    if (key.isEmpty() || lock.isOn())
        return;
    for (const QString& entry : m_session.settings().value(locksKey).toStringList()) {
        if (!entry.startsWith(key))
            continue;
        const QString path = entry.mid(key.size());
        const NxScenePath::Target target = NxScenePath::find(m_session.document().scene(), path.toStdString());
        if (target.error.empty() && !target.nodes.empty()) {
            // The first inspector shows what is selected; what was asked for at the start counts more than a lock.
            const NxFieldContainer* const selected = m_session.services().getSelectedNode();
            if (number != firstInspector || selected == nullptr || selected == target.node())
                lock.lock(target.nodes);
            return;
        }
        store(number, {});
        Q_EMIT lost(tr("Inspector %1 was locked on %2, which isn't in the file any more. It follows the selection.")
                        .arg(number)
                        .arg(orvane::shortLine(path)));
        return;
    }
}

void KeptLocks::store(int number, const QString& path)
{
    const QString key = keyOf(number);
    if (key.isEmpty())
        return;
    QStringList entries = m_session.settings().value(locksKey).toStringList();
    const QStringList before = entries;
    entries.removeIf([&key](const QString& entry) { return entry.startsWith(key); });
    if (!path.isEmpty())
        entries.prepend(key + path);
    if (entries != before)
        m_session.settings().setValue(locksKey, entries.mid(0, mostKept));
}
