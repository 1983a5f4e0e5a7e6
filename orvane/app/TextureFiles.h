#pragma once

#include <QString>

#include <string>

struct NxImage;

/// Reads the image files that textures name, for the drawing.
class TextureFiles {
public:
    /// The largest width or height that is read, in pixels: what every graphics card takes.
    static constexpr int largestSide = 16384;

    /// Relative names count from this folder; from nowhere, so that they aren't found, while it is empty.
    void setFolder(const QString& folder) { m_folder = folder; }

    /// False for a file that isn't there, is no image, or is larger than is good for anybody.
    [[nodiscard]] bool read(const std::string& fileName, NxImage& image) const;

private:
    QString m_folder;
};
