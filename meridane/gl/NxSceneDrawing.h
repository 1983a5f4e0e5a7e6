#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/geometry/NxPixelRectangle.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/gl/painting/NxPictureState.h"
#include "meridane/gl/places/NxNodeVisibility.h"

#include <cstdint>
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
/// A picture shows the scene as it is when it is drawn, and the boxes are those of the present scene too. Sensors watch
/// the scene: the change hook is called from the next pass of the delay queue. Only what has changed is uploaded again.
/// For the thread of the user interface only. The context of the functions must be current in the constructor, in
/// `draw` and in the destructor; the other functions don't need it.
///
/// Problems are reported once: contents of the scene that can't be drawn as a warning of `NxDebugError`, images that
/// can't be loaded as an `NxReadError`, errors of OpenGL and its compiler as an `NxGLError`.
class NxSceneDrawing {
public:
    /// The functions must be loaded and outlive the drawing.
    explicit NxSceneDrawing(const NxGLFunctions& functions);
    NxSceneDrawing(const NxSceneDrawing&) = delete;
    NxSceneDrawing& operator=(const NxSceneDrawing&) = delete;
    ~NxSceneDrawing();

    /// Sets the root of the scene to draw; null for nothing. The drawing holds a reference to it. Clears the selection
    /// and shows all nodes.
    void setScene(NxNode* root);
    /// The root of the scene, or null.
    [[nodiscard]] NxNode* scene() const;

    /// Outlines all instances of a node; null for none. The drawing holds a reference to the node.
    void setSelectedNode(NxNode* node);
    /// Outlines one instance of a node, given as the path of nodes from a child of the root to it; empty for none.
    ///
    /// For a material, texture or complexity, the meshes are outlined that it applies to.
    void setSelectedPath(std::span<NxNode* const> nodes);
    /// Outlines one instance more quietly: what a click would select. Empty for none.
    void setHoveredPath(std::span<NxNode* const> nodes);

    /// Outlines all instances of these nodes too, with the weaker line. Holds references to them.
    void setOtherSelectedNodes(std::span<NxNode* const> nodes);
    /// Draws only what is shown: see `NxNodeVisibility`. What isn't has no box either. Another scene ends it.
    void setVisibility(const NxNodeVisibility& visibility);

    /// Marks points of one instance of a mesh, given as in `setSelectedPath`; none if there are no points. They are
    /// drawn over everything, in the units of the mesh's positions. The marks follow the transforms of the path, but
    /// not the positions. Replaces the marks before; `setScene` removes them.
    void setMarkedPoints(std::span<NxNode* const> nodes, std::vector<VbVec3f> points);

    /// Sets how the scene is shown, from the next picture on.
    void setStyle(const NxDrawingStyle& style);
    /// How the scene is shown; valid as long as the drawing.
    [[nodiscard]] const NxDrawingStyle& style() const;
    /// Sets the loader of image files, and loads all of them again. Without a loader, textures that only name a file
    /// aren't drawn.
    void setImageLoader(NxImageLoader loader);
    /// Tells the drawing that the loader's result for a file has changed. The textures that name the file load it again
    /// with the next picture that shows them, and keep their image until then.
    void reloadImage(const std::string& path);
    /// Sets the function that is called when the next picture would differ from the last one: once until the next
    /// `draw`. It must only make a note, and must not draw.
    void setChangeHook(std::function<void()> hook);

    /// Draws a picture of that size in device pixels into the lower left of the bound framebuffer, which needs a depth
    /// buffer. `scale` is the number of device pixels in a point of the screen. Afterwards all state of the context
    /// that drawing changes has OpenGL's default, except for the framebuffer, which remains bound.
    ///
    /// With an `error` above 0, reduced meshes are drawn where `reduceMeshes` has made them, if that moves nothing by
    /// more than so many pixels. A mesh of very many triangles is reduced in any case, however near it is.
    void draw(const NxViewpoint& viewpoint, int width, int height, float scale, float error = 0);

    /// Begins a picture that is drawn bit by bit in the bound framebuffer, which must be bound in each `proceed` too,
    /// with nothing else drawn into it. See `draw`.
    void begin(const NxViewpoint& viewpoint, int width, int height, float scale);
    /// Draws about so many corners of opaque meshes and outlined shapes more, and everything else when they are drawn.
    NxPictureState proceed(std::uint64_t corners);

    /// Works on reduced meshes for those that were in view in the latest picture, until `isTimeOver`, which is asked
    /// about every millisecond. Another thread does most of the work. They take less memory, in the end, than the
    /// meshes themselves do. Doesn't need the context.
    void reduceMeshes(const std::function<bool()>& isTimeOver);
    /// Whether `reduceMeshes` has more to do, now or when the other thread is ready.
    [[nodiscard]] bool isReducing() const;
    /// Whether it has something to do now.
    [[nodiscard]] bool canReduceMore() const;

    /// The meshes that are seen in a part of that picture, each as the path of nodes from a child of the root to it.
    /// What is behind other surfaces isn't seen, nor what is hidden or drawn as a box. Needs the context, and takes
    /// about as long as a picture.
    [[nodiscard]] std::vector<std::vector<NxNode*>> seenIn(
        const NxPixelRectangle& part, const NxViewpoint& viewpoint, int width, int height, float scale);

    /// The box around the whole scene, in view or not. Positions that aren't finite are left out.
    [[nodiscard]] NxBounds bounds();
    /// The box around all instances of a node.
    [[nodiscard]] NxBounds bounds(const NxNode* node);
    /// The box around one instance, given as in `setSelectedPath`.
    [[nodiscard]] NxBounds bounds(std::span<NxNode* const> nodes);

    /// The cost of drawing so far.
    [[nodiscard]] NxDrawingCounts counts() const;
    /// A number that changes, with the next `draw`, when nodes have come to the scene or gone, but not with their
    /// fields.
    [[nodiscard]] std::uint64_t structure() const;

    /// To be called when the context is lost with all objects in it. Calls no function of OpenGL. The next `draw`
    /// uploads everything again to the context that is current then, whose functions must be the same.
    void contextLost();

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
