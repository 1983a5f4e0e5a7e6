#pragma once

#include "meridane/gl/gpu/detail/GLProgram.h"
#include "meridane/gl/painting/detail/ItemPainter.h"

namespace meridane {

/// A program that draws the shapes of items, without their looks: see `ItemPainter::drawShapes`. Made when it is used
/// first.
class ShapeProgram {
public:
    /// The name is for messages. The source of the fragments has no inputs but uniform variables.
    ShapeProgram(const NxGLFunctions& gl, const char* name, const char* fragmentSource)
        : m_gl(gl)
        , m_name(name)
        , m_fragmentSource(fragmentSource)
    {
    }
    ShapeProgram(const ShapeProgram&) = delete;
    ShapeProgram& operator=(const ShapeProgram&) = delete;
    ~ShapeProgram() = default;

    /// Binds the program, for shapes in front of the section. They are drawn nearer to the eye by `nearer`, a small
    /// share of the depth. False for a program that can't be used.
    bool use(const PictureFrame& frame, const NxDrawingStyle& style, float nearer = 0);
    [[nodiscard]] int uniform(const char* name) const { return m_program.uniform(name); }
    /// The locations for `ItemPainter::drawShapes`.
    [[nodiscard]] const ItemPainter::ModelUniforms& modelUniforms() const noexcept { return m_model; }
    /// To be called when the context is lost.
    void forget() { m_program.forget(); }

private:
    const NxGLFunctions& m_gl;
    const char* m_name;
    const char* m_fragmentSource;
    GLProgram m_program;
    ItemPainter::ModelUniforms m_model{};
};

} // namespace meridane
