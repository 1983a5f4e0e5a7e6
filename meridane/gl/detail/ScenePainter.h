#pragma once

#include "meridane/gl/geometry/NxPixelRectangle.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/gpu/detail/GLErrors.h"
#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/gl/painting/NxPictureState.h"
#include "meridane/gl/painting/detail/Ground.h"
#include "meridane/gl/painting/detail/ItemPainter.h"
#include "meridane/gl/painting/detail/LinePainter.h"
#include "meridane/gl/painting/detail/MarkPainter.h"
#include "meridane/gl/painting/detail/OutlinePainter.h"
#include "meridane/gl/painting/detail/ScreenPass.h"
#include "meridane/gl/painting/detail/SeenItems.h"
#include "meridane/gl/painting/detail/WirePainter.h"
#include "meridane/gl/places/detail/OutlinedItems.h"
#include "meridane/gl/places/detail/PlacedScene.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace meridane {

/// What a drawing of a scene consists of, and how its parts make a picture together, at once or bit by bit.
class ScenePainter {
public:
    explicit ScenePainter(const NxGLFunctions& functions);
    ScenePainter(const ScenePainter&) = delete;
    ScenePainter& operator=(const ScenePainter&) = delete;
    ~ScenePainter() = default;

    void noteChange();
    /// Draws a picture: see `NxSceneDrawing::draw`.
    void draw(const NxViewpoint& viewpoint, int width, int height, float scale, float error);
    /// Draws the background, finds what is in view, and uploads it; what else the picture consists of is left to
    /// `proceed`.
    void begin(const NxViewpoint& viewpoint, int width, int height, float scale, float error);
    /// Draws about that many corners more.
    NxPictureState proceed(std::uint64_t corners);
    [[nodiscard]] std::vector<std::vector<NxNode*>> seenIn(
        const NxPixelRectangle& part, const NxViewpoint& viewpoint, int width, int height, float scale);
    /// Works on reduced meshes for those in view: see `NxSceneDrawing::reduceMeshes`.
    void reduceMeshes(const std::function<bool()>& isTimeOver);
    [[nodiscard]] bool isReducing() const;
    [[nodiscard]] bool canReduceMore() const;
    void forget();

    const NxGLFunctions& gl;
    NxDrawingStyle style;
    NxImageLoader loader;
    std::function<void()> changeHook;
    NxDrawingCounts counts;
    OutlinedItems selected;
    OutlinedItems otherSelected;
    OutlinedItems hovered;
    bool isChangeReported = false;
    std::vector<NxRef<NxNode>> markedPath;

    GLErrors errors;
    ItemPainter painter;
    LinePainter lines;
    OutlinePainter outline;
    SeenItems seenItems;
    MarkPainter marks;
    WirePainter wires;
    ScreenPass background;
    PlacedScene scene; // after the painters: its destructor releases their objects

private:
    /// A picture that has begun.
    struct UnderWay {
        Ground ground;
        PictureFrame frame;
        std::uint64_t revision; // of the scene
        DrawingProgress progress;
        bool areSurfacesDrawn = false;
        std::size_t outline = 0; // that is drawn next
    };

    NxPictureState drawMore(std::uint64_t corners);
    bool drawSurfaces(UnderWay& picture);
    bool drawOutlines(UnderWay& picture);
    [[nodiscard]] float lineWidth(float wanted) const;
    void drawBackground(int height);
    void drawLinesAndTranslucent(const UnderWay& picture);
    void drawMarks(const PictureFrame& frame);

    std::optional<UnderWay> m_underWay;
    std::optional<std::uint64_t> m_foundRevision; // of the scene of which the meshes in view aren't yet reduced
};

} // namespace meridane
