#pragma once

#include "orvane/app/inspect/ScenePlace.h"

#include "meridane/scene/fields/NxRef.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

class FileFlow;
class Session;

/// The node that an inspector stays on while the user browses on. It is off while the inspector follows the selection.
///
/// It goes off by itself when the node leaves the scene, for whatever reason. If a reload of the file puts another node
/// of the same class in its place, the lock goes on to that one.
class NodeLock : public QObject {
    Q_OBJECT

public:
    NodeLock(Session& session, QObject* parent);
    ~NodeLock() override;

    /// Follows reloads of the file; the flow lives as long as the lock.
    void followReloads(const FileFlow& flow);

    [[nodiscard]] bool isOn() const noexcept { return static_cast<bool>(m_node); }
    /// The node, which is in the scene; null while the lock is off.
    [[nodiscard]] NxNode* node() const noexcept { return m_node.get(); }
    /// The nodes from a child of the scene down to it; empty while the lock is off.
    [[nodiscard]] std::vector<NxNode*> path() const;
    /// The indices of these nodes in their groups.
    [[nodiscard]] std::vector<int> rows() const;
    /// The path as text; empty while the lock is off.
    [[nodiscard]] QString pathText() const;

    /// Stays on the last node of a path, which begins with a child of the scene.
    void lock(std::span<NxNode* const> path);
    void unlock();
    /// Unlocks because of something that the user didn't ask for; `why` goes on from "The lock on arm is off, since".
    void giveUp(const QString& why);

Q_SIGNALS:
    /// It is on another node, or off.
    void changed();
    /// It went off, or on to another node, by itself. The message says so.
    void lost(const QString& message);

private:
    void check();
    [[nodiscard]] std::vector<NxNode*> reloadedPath() const;
    [[nodiscard]] QString nodeText() const;

    Session& m_session;
    NxRef<NxNode> m_node;
    std::optional<ScenePlace> m_place; // of the node
    std::uint64_t m_revision = 0; // of the structure, when it was last checked
    std::string m_pathBeforeReload;
};
