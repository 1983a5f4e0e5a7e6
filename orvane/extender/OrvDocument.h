#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QObject>

#include <memory>

namespace meridane {
class Journal;
}

/// The scene that is open, with the journal that records its changes.
///
/// The application opens and closes scenes; plug-ins may follow. Thread of the user interface only.
class OrvDocument : public QObject {
    Q_OBJECT

public:
    OrvDocument();
    ~OrvDocument() override;

    /// A journal of a scene, of the group that holds the top nodes, made at once: for a large scene this takes some
    /// time.
    [[nodiscard]] static std::shared_ptr<meridane::Journal> makeJournal(NxGroup& root);

    /// Opens the scene of a journal whose `run` has ended, after closing the one before.
    void open(std::shared_ptr<meridane::Journal> journal);
    /// Closes the scene. Does nothing without one.
    void close();

    /// The group that holds the top nodes; null while nothing is open.
    [[nodiscard]] NxGroup* root() const noexcept { return m_root.get(); }
    /// The journal of the scene; null while nothing is open.
    [[nodiscard]] meridane::Journal* journal() const noexcept { return m_journal.get(); }

Q_SIGNALS:
    void opened(); ///< A scene has become the open one.
    /// The scene is about to be closed. Slots must release its nodes.
    void aboutToClose();
    void closed(); ///< No scene is open any more.

private:
    NxRef<NxGroup> m_root;
    std::shared_ptr<meridane::Journal> m_journal;
};
