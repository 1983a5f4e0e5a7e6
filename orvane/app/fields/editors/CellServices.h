#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class AppSettings;
class FieldWriter;
class ImageReplacement;
class ImageThumbnails;
class PathChecks;

/// What the cells of a table need beside their fields. Thread of the user interface only.
class CellServices : public QObject {
    Q_OBJECT

public:
    /// The writer and the settings live longer. Without settings, choices hold until the end of the program.
    explicit CellServices(FieldWriter& writer, AppSettings* settings = nullptr, QObject* parent = nullptr);
    ~CellServices() override;

    [[nodiscard]] FieldWriter& writer() const noexcept { return m_writer; }

    /// The folder at which relative paths begin: that of the scene's file; empty for a scene without one.
    [[nodiscard]] QString folder() const { return m_folder ? m_folder() : QString(); }
    void setFolder(std::function<QString()> folder);

    /// Whether rotations are shown as Euler degrees, which is remembered.
    [[nodiscard]] bool isEulerShown() const noexcept { return m_isEulerShown; }
    void setEulerShown(bool shown);

    /// Which files are there.
    [[nodiscard]] PathChecks& paths() const noexcept { return *m_paths; }
    [[nodiscard]] ImageThumbnails& thumbnails() const noexcept { return *m_thumbnails; }
    [[nodiscard]] ImageReplacement& images() const noexcept { return *m_images; }
    /// Another one, for tests that run the import helper from elsewhere.
    void setImages(std::unique_ptr<ImageReplacement> images);

Q_SIGNALS:
    /// Something that cells show has changed, although their fields haven't.
    void changed();
    /// What the user asked for couldn't be done in the end.
    void failed(const QString& message);

private:
    void showEuler(bool shown);

    FieldWriter& m_writer;
    AppSettings* m_settings;
    std::function<QString()> m_folder;
    bool m_isEulerShown = false;
    std::unique_ptr<PathChecks> m_paths;
    std::unique_ptr<ImageThumbnails> m_thumbnails;
    std::unique_ptr<ImageReplacement> m_images;
};
