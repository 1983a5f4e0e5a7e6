#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/view/ViewDrawing.h"

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

class QRect;

/// Draws pictures of a scene to be kept: of any size, and with nothing on them but the scene.
///
/// They are drawn in a context of their own, so that the view isn't disturbed, and in parts, so that they may be larger
/// than what the GPU takes at once. Drawing waits for the images of textures in the event loop, without user input.
class ScenePicture {
public:
    /// The longest side in pixels, and the most pixels: a picture of that size takes 1 GiB of memory.
    static constexpr int longestSide = 32767;
    static constexpr qint64 mostPixels = qint64{1} << 28;
    /// As a text, such as for a message.
    [[nodiscard]] static QString sizeLimits();
    [[nodiscard]] static bool isUsableSize(const QSize& size);

    /// Called with a share of the work from 0 to 1 that is done. Returns false to give up.
    using Progress = std::function<bool(double share)>;

    /// Paths of images count from `folder`; they are loaded from it and from the allowed folders.
    ScenePicture(NxGroup* scene, const QString& folder, const QStringList& allowedFolders);

    /// For images in other folders, and for what is hidden.
    [[nodiscard]] ViewDrawing& drawing() noexcept { return m_drawing; }
    /// How the scene is shown. The background is that of `draw`.
    void setStyle(const NxDrawingStyle& style) { m_style = style; }
    /// How the scene is seen at first, all of it, in a picture of that size.
    [[nodiscard]] orvane::Result<NxViewpoint> framed(const QSize& size);
    /// A picture of a usable size. Its background is of one colour, or transparent where that colour is. Fails without
    /// a driver or memory, or, with an empty message, if it was given up.
    [[nodiscard]] orvane::Result<QImage> draw(
        const NxViewpoint& viewpoint, const QSize& size, const QColor& background, const Progress& progress = {});

private:
    [[nodiscard]] orvane::Result<> start();
    /// A part of the picture, with its images.
    [[nodiscard]] QImage drawPart(const NxViewpoint& viewpoint, const QRect& part, const QSize& size);
    [[nodiscard]] QImage drawPart(
        const NxViewpoint& viewpoint, const QRect& part, const QSize& size, const QColor& background);
    void setBackground(const QColor& color);
    void waitForImages();

    ViewDrawing m_drawing;
    NxDrawingStyle m_style;
};
