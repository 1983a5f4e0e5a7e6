#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/detail/GLProgram.h"

#include <vector>

struct NxDrawingStyle;

namespace meridane {

struct PictureFrame;

/// Draws points that aren't part of the scene over everything: round marks of constant size in two colours, so that
/// they are seen on any background.
class MarkPainter {
public:
    explicit MarkPainter(const NxGLFunctions& gl)
        : m_gl(gl)
    {
    }
    MarkPainter(const MarkPainter&) = delete;
    MarkPainter& operator=(const MarkPainter&) = delete;
    /// The context must be current, or `forget` have been called.
    ~MarkPainter();

    /// Sets the points to draw. Needs no context.
    void setPoints(std::vector<VbVec3f> points);
    [[nodiscard]] bool isEmpty() const noexcept { return m_points.empty(); }
    /// `worldTransform` takes the points to the scene.
    void draw(const Matrix4d& worldTransform, const PictureFrame& frame, const NxDrawingStyle& style,
        NxDrawingCounts& counts);
    /// To be called when the context is lost.
    void forget();

private:
    void prepare();
    void upload();

    const NxGLFunctions& m_gl;
    GLProgram m_program;
    int m_origin = -1;
    int m_modelMatrix = -1;
    int m_eyeToClip = -1;
    int m_size = -1;
    int m_color = -1;
    int m_borderColor = -1;
    unsigned int m_vertexArray = 0;
    unsigned int m_buffer = 0;
    std::vector<VbVec3f> m_points;
    bool m_isStale = false; // the GPU has other points
};

} // namespace meridane
