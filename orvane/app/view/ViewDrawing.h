#pragma once

#include "orvane/app/images/TextureFiles.h"
#include "orvane/app/view/PictureBuffer.h"
#include "orvane/app/view/refinement/DetailGovernor.h"

#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/gl/painting/NxPictureState.h"
#include "meridane/gl/places/NxNodeVisibility.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

class NxOffscreenContext;
class NxSceneDrawing;

/// Draws the scene into images, in an OpenGL context of its own. `start` makes the context, which takes longer than the
/// rest of the window's first picture.
///
/// Scene, style and selection can be set before the start. A context that gets lost is made again.
class ViewDrawing {
public:
    ViewDrawing();
    ~ViewDrawing();
    ViewDrawing(const ViewDrawing&) = delete;
    ViewDrawing& operator=(const ViewDrawing&) = delete;

    /// Starts the drawing. Returns false when that isn't possible here; `problem` has the reason. Tried once.
    bool start();
    [[nodiscard]] bool isStarted() const noexcept { return m_drawing != nullptr; }
    /// Why there are no pictures, as sentences for the user; empty as long as nothing went wrong.
    [[nodiscard]] const QString& problem() const noexcept { return m_problem; }

    /// How many samples a pixel of a whole picture has; 0 for rough edges. From the next picture on.
    void setSamples(int samples);
    /// Called once when the next picture would differ from the latest one.
    void setChangeHook(std::function<void()> hook);
    /// Draws that scene from now on; null for none. Names of texture files are relative to the folder.
    void setScene(NxGroup* scene, const QString& folder);
    void setFolder(const QString& folder) { m_textures.setFolder(folder); }
    /// The images of the scene's textures, which are loaded while the scene is shown.
    [[nodiscard]] TextureFiles& textures() noexcept { return m_textures; }
    /// Outlines the last of these nodes, each a child of the one before; none for nothing.
    void setSelectedPath(const std::vector<NxNode*>& nodes);
    /// Marks points of the last of these nodes (see `NxSceneDrawing::setMarkedPoints`).
    void setMarkedPoints(const std::vector<NxNode*>& nodes, std::vector<VbVec3f> points);
    /// Outlines more quietly what a click would select; none for nothing.
    void setHoveredPath(const std::vector<NxNode*>& nodes);
    /// Outlines these nodes too, with a weaker line, in all their places.
    void setOtherSelectedNodes(const std::vector<NxNode*>& nodes);
    /// Draws only what is shown; until another scene is set.
    void setVisibility(const NxNodeVisibility& visibility);
    [[nodiscard]] const NxNodeVisibility& visibility() const noexcept { return m_visibility; }
    void setStyle(const NxDrawingStyle& style);

    /// A picture of that size in device pixels; a null image when there can't be one.
    [[nodiscard]] QImage draw(const NxViewpoint& viewpoint, QSize size, float scale);
    /// Draws a picture with that detail, without smooth edges. Returns how many milliseconds it took.
    double drawReduced(
        const NxViewpoint& viewpoint, QSize size, float scale, const PictureDetail& detail, QImage& picture);
    /// Begins a picture with full detail that is drawn bit by bit; false when there can't be one.
    [[nodiscard]] bool begin(const NxViewpoint& viewpoint, QSize size, float scale);
    /// Goes on with it for about so many milliseconds. See `NxSceneDrawing::proceed`.
    [[nodiscard]] NxPictureState proceed(double milliseconds);
    /// That picture, when it is finished.
    [[nodiscard]] QImage finishedPicture();
    /// Works for so many milliseconds on meshes with less detail: see `NxSceneDrawing::reduceMeshes`.
    void reduceMeshes(double milliseconds);
    /// Whether there is more of that to do, or another thread does it.
    [[nodiscard]] bool isReducing() const;
    /// Whether there is something to do for this thread.
    [[nodiscard]] bool canReduceMore() const;
    /// The meshes that are seen in a part of such a picture: see `NxSceneDrawing::seenIn`. Nothing before the start.
    [[nodiscard]] std::vector<std::vector<NxNode*>> seenIn(
        const QRect& part, const NxViewpoint& viewpoint, QSize size, float scale);
    /// The box around the scene or the last of these nodes; empty before the start.
    [[nodiscard]] NxBounds bounds() const;
    [[nodiscard]] NxBounds bounds(const std::vector<NxNode*>& nodes) const;
    /// A number that changes, with the next picture, when nodes have come to the scene or gone; 0 before the start.
    [[nodiscard]] std::uint64_t structure() const;
    /// What the last picture took, and the time in which the GPU drew the last one with full detail.
    [[nodiscard]] NxDrawingCounts counts() const;
    [[nodiscard]] double pictureMilliseconds() const noexcept { return m_milliseconds; }
    /// How many pictures were drawn.
    [[nodiscard]] int pictures() const noexcept { return m_pictures; }

    /// Makes the context again with everything in it, as after the driver lost it.
    void restart();

private:
    [[nodiscard]] bool makeContext();
    void giveUp(const QString& reason);
    [[nodiscard]] bool makeCurrent();

    std::function<void()> m_hook;
    NxRef<NxGroup> m_scene;
    std::vector<NxRef<NxNode>> m_selected;
    std::vector<NxRef<NxNode>> m_markedPath; // until the start
    std::vector<VbVec3f> m_markedPoints;
    std::vector<NxRef<NxNode>> m_otherSelected;
    NxNodeVisibility m_visibility;
    NxDrawingStyle m_style;
    TextureFiles m_textures;
    QString m_problem;
    int m_pictures = 0;
    double m_milliseconds = 0; // of the last one with full detail
    double m_partMilliseconds = 0; // of the parts so far of the one that is drawn bit by bit
    double m_cornersInMillisecond = 0; // of its latest part

    std::unique_ptr<NxOffscreenContext> m_context;
    NxGLFunctions m_functions;
    int m_samples = 4;
    std::unique_ptr<PictureBuffer> m_buffer;
    std::unique_ptr<PictureBuffer> m_reducedBuffer;
    std::unique_ptr<NxSceneDrawing> m_drawing;
};
