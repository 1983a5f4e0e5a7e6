#pragma once

#include "orvane/app/images/TextureFiles.h"
#include "orvane/extender/OrvImages.h"

#include <QCache>

/// Loads the image files of textures for the editors of plug-ins (see `OrvImages`), from the folders that the view may
/// load them from. Keeps the last ones, made smaller.
class EditorImages : public QObject {
    Q_OBJECT

public:
    /// The files of the view, which live longer.
    explicit EditorImages(const TextureFiles& view, QObject* parent = nullptr);
    ~EditorImages() override;

private:
    [[nodiscard]] OrvImages::Result load(const QString& fileName);

    const TextureFiles& m_view;
    ImageFolders m_folders; // that were set last
    TextureFiles m_files;
    QCache<QString, OrvImages::Result> m_results;
};
