#pragma once

#include "orvane/app/files/disk/DiskContent.h"
#include "orvane/app/files/disk/FileWatch.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

class FileCheck;
class SceneDocument;

/// Knows whether the file of the open scene still holds what the scene was read from or saved as, whoever changes it.
///
/// Only contents count: a file that is written again with the same content hasn't changed. If the file is gone, or the
/// user keeps the scene although the file has changed, the scene counts as not saved. Thread of the user interface
/// only.
class DiskWatch : public QObject {
    Q_OBJECT

public:
    enum class State {
        Same, ///< also for a scene without a file, or with one whose content wasn't known when it was opened
        Changed,
        Kept, ///< changed, but the user keeps the scene as it is
        Missing,
        NoFile, ///< something else has the name, such as a folder
        Unreadable,
    };

    /// The document lives longer.
    explicit DiskWatch(SceneDocument& document);
    ~DiskWatch() override;

    [[nodiscard]] State state() const noexcept { return m_state; }
    /// Why the file can't be read, with its name; empty for a file that can.
    [[nodiscard]] const QString& reason() const noexcept { return m_found.reason; }
    /// Whether saving to the open scene's file replaces a content that the user hasn't seen.
    [[nodiscard]] bool isUnseen(const DiskContent& content) const;
    /// Notes that the user keeps the scene although the file has its present content.
    void keep();

Q_SIGNALS:
    /// The state is another one, or the file has changed again.
    void changed();

private:
    void begin();
    void check();
    void judge(const DiskContent& found);
    [[nodiscard]] State stateOf(const DiskContent& found) const;
    void setState(State state);

    SceneDocument& m_document;
    FileWatch m_watch;
    QPointer<FileCheck> m_check; // while it runs
    State m_state = State::Same;
    DiskContent m_found;
    std::optional<meridane::ContentHash> m_kept; // the content that the user has declined
};
