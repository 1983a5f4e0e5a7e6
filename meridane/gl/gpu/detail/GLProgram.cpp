#include "meridane/gl/gpu/detail/GLProgram.h"

#include "meridane/base/errors/NxGLError.h"

#include <array>
#include <utility>

namespace meridane {
namespace {

/// Reads a log of OpenGL, which also reports its length.
template <typename GetLength, typename GetText>
std::string logOf(GetLength getLength, GetText getText)
{
    int length = 0;
    getLength(&length);
    std::string log(static_cast<std::size_t>(length > 0 ? length : 1), '\0');
    getText(static_cast<GLsizei>(log.size()), log.data());
    log.resize(log.find('\0') == std::string::npos ? log.size() : log.find('\0'));
    return log;
}

void reportLog(const char* action, const char* name, const std::string& log)
{
    const std::string text = std::string(action) + " the shaders for " + name + " failed: " + log;
    NxGLError::post(GL_INVALID_OPERATION, VbString(text));
}

/// The shader, or 0 when it can't be compiled.
unsigned int compile(const NxGLFunctions& gl, GLenum kind, const char* name, const std::string& source)
{
    const unsigned int shader = gl.CreateShader(kind);
    const std::array<const char*, 2> parts{"#version 330 core\n", source.c_str()};
    gl.ShaderSource(shader, static_cast<GLsizei>(parts.size()), parts.data(), nullptr);
    gl.CompileShader(shader);
    int isCompiled = 0;
    gl.GetShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
    if (isCompiled != 0)
        return shader;
    reportLog("Compiling", name,
        logOf([&](int* length) { gl.GetShaderiv(shader, GL_INFO_LOG_LENGTH, length); },
            [&](GLsizei size, char* text) { gl.GetShaderInfoLog(shader, size, nullptr, text); }));
    gl.DeleteShader(shader);
    return 0;
}

} // namespace

GLProgram::GLProgram(
    const NxGLFunctions& gl, const char* name, const std::string& vertexSource, const std::string& fragmentSource)
    : m_gl(&gl)
{
    const unsigned int vertex = compile(gl, GL_VERTEX_SHADER, name, vertexSource);
    const unsigned int fragment = compile(gl, GL_FRAGMENT_SHADER, name, fragmentSource);
    if (vertex != 0 && fragment != 0)
        link(name, vertex, fragment);
    gl.DeleteShader(vertex); // nothing happens for 0
    gl.DeleteShader(fragment);
}

void GLProgram::link(const char* name, unsigned int vertex, unsigned int fragment)
{
    m_name = m_gl->CreateProgram();
    m_gl->AttachShader(m_name, vertex);
    m_gl->AttachShader(m_name, fragment);
    m_gl->LinkProgram(m_name);
    int isLinked = 0;
    m_gl->GetProgramiv(m_name, GL_LINK_STATUS, &isLinked);
    if (isLinked != 0)
        return;
    reportLog("Linking", name,
        logOf([&](int* length) { m_gl->GetProgramiv(m_name, GL_INFO_LOG_LENGTH, length); },
            [&](GLsizei size, char* text) { m_gl->GetProgramInfoLog(m_name, size, nullptr, text); }));
    m_gl->DeleteProgram(std::exchange(m_name, 0));
}

GLProgram::GLProgram(GLProgram&& other) noexcept
    : m_gl(std::exchange(other.m_gl, nullptr))
    , m_name(std::exchange(other.m_name, 0))
{
}

GLProgram& GLProgram::operator=(GLProgram&& other) noexcept
{
    std::swap(m_gl, other.m_gl);
    std::swap(m_name, other.m_name);
    return *this;
}

GLProgram::~GLProgram()
{
    if (m_name != 0)
        m_gl->DeleteProgram(m_name);
}

int GLProgram::uniform(const char* name) const
{
    return m_gl->GetUniformLocation(m_name, name);
}

void GLProgram::forget() noexcept
{
    m_gl = nullptr;
    m_name = 0;
}

} // namespace meridane
