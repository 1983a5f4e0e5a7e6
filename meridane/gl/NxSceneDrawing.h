#pragma once

#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/painting/NxDrawingStyle.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

class NxGLFunctions;
class NxNode;
class NxViewpoint;

/// Draws a scene with OpenGL 3.3 and follows its changes.
///
/// A picture shows the scene as it is when it is drawn, and so do the boxes. Sensors watch it: the change hook is
/// called from the next pass of the delay queue. Of what changed, only that goes to the GPU again. Thread of the user
/// interface only; the context that the functions belong to must be current in the constructor, in `draw` and in the
/// destructor, and nowhere else.
///
/// What can't be drawn as it stands is reported once: contents of the scene as a warning of `NxDebugError`, images that
/// can't be loaded as an `NxReadError`, OpenGL's own errors and what its compiler says as an `NxGLError`.
class NxSceneDrawing {
public:
    /// The functions must be loaded and outlive the drawing.
    explicit NxSceneDrawing(const NxGLFunctions& functions);
    NxSceneDrawing(const NxSceneDrawing&) = delete;
    NxSceneDrawing& operator=(const NxSceneDrawing&) = delete;
    ~NxSceneDrawing();

    /// Draws this node and what stands below it from now on; null for nothing. The drawing holds a reference on it. The
    /// selection is cleared.
    void setScene(NxNode* root);
    [[nodiscard]] NxNode* scene() const;

    /// Outlines a node in all its places; null for none. The drawing holds a reference on what is outlined.
    void setSelectedNode(NxNode* node);
    /// Outlines a node in one place, told by the nodes from a child of the scene's node down to it; empty for none.
    void setSelectedPath(std::span<NxNode* const> nodes);

    void setStyle(const NxDrawingStyle& style);
    [[nodiscard]] const NxDrawingStyle& style() const;
    /// Who loads image files; asked again for all of them when it changes. Without a loader, textures that only name a
    /// file aren't drawn.
    void setImageLoader(NxImageLoader loader);
    /// What the loader says about a file has changed: the textures that name it ask again with the next picture that
    /// they are seen in. Until then they keep the image that they have.
    void reloadImage(const std::string& path);
    /// Called when the next picture would differ from the latest one: once until the next `draw`. It must only make a
    /// note, and must not draw itself.
    void setChangeHook(std::function<void()> hook);

    /// Draws a picture of that size in device pixels into the lower left of the framebuffer that is bound, which needs
    /// a depth buffer. `scale` is the number of device pixels in a point of the screen. All state of the context that
    /// drawing changes is back at its default afterwards, but for the framebuffer, which stays bound.
    void draw(const NxViewpoint& viewpoint, int width, int height, float scale);

    /// The box around all that is drawn, whether in view or not. Positions that are no finite numbers are left out.
    [[nodiscard]] NxBounds bounds();
    /// The box around what stands below a node, in all its places.
    [[nodiscard]] NxBounds bounds(const NxNode* node);
    /// The same for one place, told as for `setSelectedPath`.
    [[nodiscard]] NxBounds bounds(std::span<NxNode* const> nodes);

    [[nodiscard]] NxDrawingCounts counts() const;

    /// The context is gone, and all that was in it: forgets it without touching OpenGL. The next `draw` makes
    /// everything anew in the context that is current then, whose functions must be the same.
    void contextLost();

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
