#pragma once

#include "meridane/base/values/VbColor.h"
#include "meridane/base/values/VbMatrix.h"
#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/detail/GLProgram.h"

#include <vector>

namespace meridane {

/// Collects coloured lines that aren't part of the scene and draws them together. All points are relative to the eye.
class LinePainter {
public:
    explicit LinePainter(const NxGLFunctions& gl)
        : m_gl(gl)
    {
    }
    LinePainter(const LinePainter&) = delete;
    LinePainter& operator=(const LinePainter&) = delete;
    /// The context must be current, or `forget` have been called.
    ~LinePainter();

    /// Adds a line with a gradient of two colours.
    void add(const VbVec3f& from, const VbVec3f& to, const VbColorRGBA& fromColor, const VbColorRGBA& toColor);
    void addBox(const NxBounds& box, const Matrix4d& transform, const VbColorRGBA& color);
    /// Draws the collected lines and removes them.
    void draw(const VbMatrix& eyeToClip, NxDrawingCounts& counts);
    /// To be called when the context is lost.
    void forget();

private:
    struct Vertex {
        VbVec3f position;
        VbVec4f color;
    };

    void prepare();

    const NxGLFunctions& m_gl;
    GLProgram m_program;
    int m_eyeToClip = -1;
    unsigned int m_vertexArray = 0;
    unsigned int m_buffer = 0;
    std::vector<Vertex> m_vertices;
};

} // namespace meridane
