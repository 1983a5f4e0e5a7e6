#pragma once

#include "meridane/base/ContentHash.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace meridane {
class Journal;
}

class OrvServices;
class SceneDisposal;

/// The scene that is open, the file it belongs to, and whether it has changes that aren't saved.
///
/// The services' history is that of this scene: it goes with it. Thread of the user interface only.
class SceneDocument : public QObject {
    Q_OBJECT

public:
    using FileContent = std::optional<meridane::ContentHash>;

    /// Both live longer than the document.
    SceneDocument(OrvServices& services, SceneDisposal& disposal);
    ~SceneDocument() override;

    [[nodiscard]] bool isOpen() const noexcept { return static_cast<bool>(m_scene); }
    /// The group that holds the top nodes, or null while nothing is open.
    [[nodiscard]] NxGroup* scene() const noexcept { return m_scene.get(); }
    /// The file that the scene came from or was last saved to, absolute; empty for a new scene.
    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }
    /// The folder that relative file paths in the scene count from: that of the file that the scene was opened from, or
    /// first saved to; empty for a new scene. Saving elsewhere doesn't change the scene, so it doesn't change this
    /// either.
    [[nodiscard]] const QString& pathFolder() const noexcept { return m_pathFolder; }
    /// The file that saving writes: empty where the user must choose one, as for a scene that was imported.
    [[nodiscard]] QString saveFileName() const;
    /// What the file held when the scene was read from it or saved to it; nothing for a new scene, and if it isn't
    /// known.
    [[nodiscard]] const FileContent& fileContent() const noexcept { return m_fileContent; }
    /// The name of the scene in titles and messages.
    [[nodiscard]] QString displayName() const;
    /// Whether the scene differs from what its file holds.
    [[nodiscard]] bool isModified() const;
    /// Another number for each scene that was open, and for each time without one. So long work can check that the
    /// scene it was started for is still the one that is open.
    [[nodiscard]] int sceneNumber() const noexcept { return m_sceneNumber; }

    /// Opens an empty scene in place of the present one.
    void newScene();
    /// Opens a scene in place of the present one.
    void open(const NxRef<NxGroup>& scene, const QString& fileName);
    /// Opens the scene of a journal whose `run` has ended; `content` is that of the file, if it is known.
    void open(const std::shared_ptr<meridane::Journal>& journal, const QString& fileName,
        const FileContent& content = std::nullopt);
    /// The same for a scene with changes that aren't saved: no state of it is the saved one. `content` is what the file
    /// holds without them.
    void openUnsaved(
        const std::shared_ptr<meridane::Journal>& journal, const QString& fileName, const FileContent& content);
    /// Leaves nothing open.
    void close();
    /// Notes that the file holds that content, and that the scene in its present state is the same: it was saved, or
    /// made equal to it.
    void setSaved(const QString& fileName, const FileContent& content = std::nullopt);
    /// Notes whether the content that the scene was read from or saved as isn't in the file any more. Then the scene
    /// counts as modified until it is saved.
    void setFileLost(bool lost);

    /// The extension of scene files, with its dot.
    [[nodiscard]] static QString fileExtension();
    /// Whether a file of that name holds a scene in our own format.
    [[nodiscard]] static bool isSceneFileName(const QString& fileName);

Q_SIGNALS:
    /// The present scene is about to be closed. Slots must release its nodes.
    void sceneAboutToChange();
    void sceneChanged();
    void fileNameChanged();
    /// The scene in its present state was saved.
    void saved();
    void modifiedChanged(bool modified);

private:
    enum class State { Saved, Unsaved };

    void replace(const std::shared_ptr<meridane::Journal>& journal, const QString& fileName, const FileContent& content,
        State state);
    void setFileName(const QString& fileName);
    void reportModified();

    OrvServices& m_services;
    SceneDisposal& m_disposal;
    NxRef<NxGroup> m_scene;
    QString m_fileName;
    FileContent m_fileContent;
    QString m_pathFolder;
    int m_sceneNumber = 1;
    bool m_isFileLost = false;
    bool m_isReplacing = false; // then nothing is reported before the next scene is there
    bool m_reportedModified = false;
};
