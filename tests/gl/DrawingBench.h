#pragma once

#include "base/HandlerGuard.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxReadError.h"
#include "meridane/gl/NxSceneDrawing.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/NxOffscreenContext.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QColor>
#include <QImage>
#include <QTest>

#include <array>
#include <cstdint>
#include <memory>

/// A framebuffer to draw into, bound from the start.
class DrawingTarget {
public:
    DrawingTarget(const NxGLFunctions& functions, int width, int height);
    DrawingTarget(const DrawingTarget&) = delete;
    DrawingTarget& operator=(const DrawingTarget&) = delete;
    ~DrawingTarget();

    /// What was drawn.
    [[nodiscard]] QImage read() const;

private:
    const NxGLFunctions& m_gl;
    int m_width;
    int m_height;
    unsigned int m_framebuffer = 0;
    std::array<unsigned int, 2> m_buffers{};
};

/// A drawing that draws into memory, and the messages that came meanwhile.
class DrawingBench {
public:
    DrawingBench()
    {
        if (!m_context->isValid() || !m_context->makeCurrent())
            qFatal("no OpenGL: %s", m_context->error().toUtf8());
        if (!m_gl.load(&NxOffscreenContext::getProcAddress))
            qFatal("no OpenGL: %s", m_gl.error().c_str());
        m_drawing = std::make_unique<NxSceneDrawing>(m_gl);
        NxDrawingStyle style;
        style.grid = false;
        style.axes = false;
        style.backgroundBottom = style.backgroundTop = VbColor();
        m_drawing->setStyle(style);
    }
    DrawingBench(const DrawingBench&) = delete;
    DrawingBench& operator=(const DrawingBench&) = delete;
    ~DrawingBench() = default;

    [[nodiscard]] NxSceneDrawing& drawing() { return *m_drawing; }
    [[nodiscard]] const NxGLFunctions& gl() const { return m_gl; }
    /// A test may replace functions by ones that fail, for drawings that are made afterwards too.
    [[nodiscard]] NxGLFunctions& gl() { return m_gl; }
    /// Changes the style.
    template <typename Change>
    void restyle(Change change)
    {
        NxDrawingStyle style = m_drawing->style();
        change(style);
        m_drawing->setStyle(style);
    }
    /// From the front, with what is between -1 and 1 filling the picture.
    [[nodiscard]] static NxViewpoint front()
    {
        NxViewpoint viewpoint;
        viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
        viewpoint.height = 2;
        return viewpoint;
    }

    /// Processes the delay queue, then draws. With an error, meshes may be reduced (see `NxSceneDrawing::draw`).
    [[nodiscard]] QImage draw(
        const NxViewpoint& viewpoint = front(), int width = 101, int height = 101, float error = 0);
    /// Draws without processing the delay queue.
    [[nodiscard]] QImage drawUntold(
        const NxViewpoint& viewpoint = front(), int width = 101, int height = 101, float scale = 1, float error = 0);
    /// Draws so many corners at once, and counts how often.
    [[nodiscard]] QImage drawInParts(
        const NxViewpoint& viewpoint, int width, int height, std::uint64_t corners, int& parts);
    /// The picture of a scene of these nodes, which is gone afterwards.
    [[nodiscard]] QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = front());
    [[nodiscard]] NxDrawingCounts counts() const { return m_drawing->counts(); }

    /// The messages since the latest call, of any class.
    [[nodiscard]] QStringList takeMessages();
    /// Draws that scene with a new drawing, until `takeBack` brings the former one back.
    void renew(NxNode* scene);
    void takeBack() { m_drawing = std::move(m_former); }
    /// The context is lost, and there is another one.
    void loseContext();

private:
    std::unique_ptr<NxOffscreenContext> m_context = std::make_unique<NxOffscreenContext>();
    NxGLFunctions m_gl;
    TextRecorder m_recorder;
    std::size_t m_taken = 0;
    HandlerGuard<NxDebugError> m_warnings{&TextRecorder::record, &m_recorder};
    HandlerGuard<NxGLError> m_glErrors{&TextRecorder::record, &m_recorder};
    HandlerGuard<NxReadError> m_readErrors{&TextRecorder::record, &m_recorder};
    std::unique_ptr<NxSceneDrawing> m_drawing;
    std::unique_ptr<NxSceneDrawing> m_former;
};

inline const QColor black(0, 0, 0);
inline const QColor red(255, 0, 0);
inline const QColor green(0, 255, 0);
inline const QColor blue(0, 0, 255);
inline const QColor white(255, 255, 255);
/// Of components from 0 to 1.
[[nodiscard]] QColor color(double r, double g, double b);

/// The colour of the picture at coordinates from -1 to 1, which grow to the right and upwards.
[[nodiscard]] QColor pixelAt(const QImage& picture, double x, double y);
/// Whether colours differ by no more than `tolerance` of 255 a component.
[[nodiscard]] bool isNear(const QColor& color, const QColor& expected, int tolerance = 3);
[[nodiscard]] QByteArray text(const QColor& color);

#define COMPARE_PIXEL(picture, x, y, ...)                                                                              \
    QVERIFY2(isNear(pixelAt(picture, x, y), __VA_ARGS__), text(pixelAt(picture, x, y)).constData())

/// A material that reflects direct light only.
[[nodiscard]] NxRef<NxMaterial> plain(float r, float g, float b, float transparency = 0);
/// Four pixels: red and green below, blue and white above.
[[nodiscard]] NxRef<NxTexture> fourPixels();
/// A rectangle in the plane of that z, facing the viewer, with texture coordinates from 0 to 1.
[[nodiscard]] NxRef<NxMesh> rectangle(float left, float bottom, float right, float top, float z = 0);
/// A ball around the origin with normals.
[[nodiscard]] NxRef<NxMesh> ball(float radius, int steps = 48);
/// A mesh of those positions in order.
[[nodiscard]] NxRef<NxMesh> meshOf(std::vector<VbVec3f> positions, int primitive);
/// A group of these nodes.
[[nodiscard]] NxRef<NxGroup> groupOf(std::initializer_list<NxNode*> nodes);
template <typename Node>
[[nodiscard]] NxRef<Node> make()
{
    return new Node;
}
