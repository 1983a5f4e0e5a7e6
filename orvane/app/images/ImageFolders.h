#pragma once

#include <QString>
#include <QStringList>

/// The folders that image files of a scene may be read from: the scene's own, and those that the user has allowed, each
/// with everything below it.
class ImageFolders {
public:
    /// Relative names are relative to this folder; empty for a scene without a file.
    void setSceneFolder(const QString& folder);
    void setAllowedFolders(const QStringList& folders) { m_allowed = folders; }

    /// The absolute path, without "." and "..", of a file that a scene names; empty for a relative name when the scene
    /// has no folder. Doesn't look at the file system.
    [[nodiscard]] QString pathOf(const QString& fileName) const;
    /// Whether a file may be examined. Takes a result of `pathOf`. Doesn't access the file, since accessing some files
    /// has effects.
    [[nodiscard]] bool contain(const QString& path) const;
    /// Whether a file may be read. `realPath` is the file behind all symbolic links, `path` the argument of `contain`.
    [[nodiscard]] bool containReal(const QString& realPath, const QString& path) const;

    friend bool operator==(const ImageFolders&, const ImageFolders&) = default;

private:
    QString m_sceneFolder;
    QString m_realSceneFolder; // behind all symbolic links
    QStringList m_allowed;
};
