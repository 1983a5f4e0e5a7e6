#pragma once

#include "meridane/gl/gpu/NxGLFunctions.h"

#include <string>

namespace meridane {

/// A vertex and a fragment shader, linked. OpenGL's messages about a program that it can't compile or link are reported
/// as an `NxGLError`; such a program draws nothing.
class GLProgram {
public:
    /// No program yet.
    GLProgram() = default;
    /// The sources have no version line; `name` is for messages.
    GLProgram(
        const NxGLFunctions& gl, const char* name, const std::string& vertexSource, const std::string& fragmentSource);
    GLProgram(const GLProgram&) = delete;
    GLProgram(GLProgram&& other) noexcept;
    GLProgram& operator=(const GLProgram&) = delete;
    GLProgram& operator=(GLProgram&& other) noexcept;
    ~GLProgram();

    [[nodiscard]] bool isUsable() const noexcept { return m_name != 0; }
    /// Whether a program was made, usable or not.
    [[nodiscard]] bool isMade() const noexcept { return m_gl != nullptr; }
    void use() const { m_gl->UseProgram(m_name); }
    /// The location of a uniform variable; -1, which OpenGL ignores, for one that the program doesn't use.
    [[nodiscard]] int uniform(const char* name) const;
    [[nodiscard]] unsigned int name() const noexcept { return m_name; }
    /// To be called when the context is lost.
    void forget() noexcept;

private:
    void link(const char* name, unsigned int vertex, unsigned int fragment);

    const NxGLFunctions* m_gl = nullptr;
    unsigned int m_name = 0;
};

} // namespace meridane
