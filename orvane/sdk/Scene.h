#pragma once

#include <QObject>

#include <cstdint>
#include <utility>
#include <vector>

class NxGroup;
class NxNode;

namespace orv {

/// The scene that is open in the window. Thread of the user interface only.
///
/// `orv::scene()` gives the only object, which lives as long as `OrvServices`.
class Scene : public QObject {
    Q_OBJECT

public:
    ~Scene() override;

    /// The group that holds the top nodes; null while no scene is open.
    [[nodiscard]] NxGroup* root() const;
    /// The nodes of the open scene that have this one among their children, in the order of a scene file, each once;
    /// the root for a top node, and none for a node that isn't in the scene. The first call after a change of the
    /// structure goes through the whole scene. Valid until the structure changes.
    [[nodiscard]] std::vector<NxNode*> parents(const NxNode& node);

Q_SIGNALS:
    void opened(); ///< A scene has become the open one.
    /// The scene is about to be closed. Slots must release its nodes.
    void aboutToClose();
    void closed(); ///< No scene is open any more.
    /// Something in the scene has changed; more may follow in the same step of the history.
    void edited();

private:
    friend Scene& scene();

    explicit Scene(QObject* parent);
    void readParents();
    void forgetParents();

    std::vector<std::pair<const NxNode*, NxNode*>> m_parents; // by the address of the child
    const NxNode* m_readRoot = nullptr; // of m_parents
    std::uint64_t m_readRevision = 0;
};

/// The open scene. `OrvServices` must be there: not before the first `activate`, nor in the constructor of an
/// extension.
[[nodiscard]] Scene& scene();

} // namespace orv
