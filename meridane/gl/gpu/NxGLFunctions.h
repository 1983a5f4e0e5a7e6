#pragma once

#include <string>

#include <GL/glcorearb.h>

/// The functions of OpenGL 3.3 core that drawing uses: their types in glcorearb.h and the names of the members.
#define NX_GL_FUNCTIONS(F)                                                                                             \
    F(PFNGLACTIVETEXTUREPROC, ActiveTexture)                                                                           \
    F(PFNGLATTACHSHADERPROC, AttachShader)                                                                             \
    F(PFNGLBINDBUFFERPROC, BindBuffer)                                                                                 \
    F(PFNGLBINDBUFFERBASEPROC, BindBufferBase)                                                                         \
    F(PFNGLBINDFRAMEBUFFERPROC, BindFramebuffer)                                                                       \
    F(PFNGLBINDRENDERBUFFERPROC, BindRenderbuffer)                                                                     \
    F(PFNGLBINDSAMPLERPROC, BindSampler)                                                                               \
    F(PFNGLBINDTEXTUREPROC, BindTexture)                                                                               \
    F(PFNGLBINDVERTEXARRAYPROC, BindVertexArray)                                                                       \
    F(PFNGLBLENDFUNCSEPARATEPROC, BlendFuncSeparate)                                                                   \
    F(PFNGLBLITFRAMEBUFFERPROC, BlitFramebuffer)                                                                       \
    F(PFNGLBUFFERDATAPROC, BufferData)                                                                                 \
    F(PFNGLBUFFERSUBDATAPROC, BufferSubData)                                                                           \
    F(PFNGLCHECKFRAMEBUFFERSTATUSPROC, CheckFramebufferStatus)                                                         \
    F(PFNGLCLEARPROC, Clear)                                                                                           \
    F(PFNGLCLEARCOLORPROC, ClearColor)                                                                                 \
    F(PFNGLCOMPILESHADERPROC, CompileShader)                                                                           \
    F(PFNGLCREATEPROGRAMPROC, CreateProgram)                                                                           \
    F(PFNGLCREATESHADERPROC, CreateShader)                                                                             \
    F(PFNGLCULLFACEPROC, CullFace)                                                                                     \
    F(PFNGLDELETEBUFFERSPROC, DeleteBuffers)                                                                           \
    F(PFNGLDELETEFRAMEBUFFERSPROC, DeleteFramebuffers)                                                                 \
    F(PFNGLDELETEPROGRAMPROC, DeleteProgram)                                                                           \
    F(PFNGLDELETERENDERBUFFERSPROC, DeleteRenderbuffers)                                                               \
    F(PFNGLDELETESAMPLERSPROC, DeleteSamplers)                                                                         \
    F(PFNGLDELETESHADERPROC, DeleteShader)                                                                             \
    F(PFNGLDELETETEXTURESPROC, DeleteTextures)                                                                         \
    F(PFNGLDELETEVERTEXARRAYSPROC, DeleteVertexArrays)                                                                 \
    F(PFNGLDEPTHFUNCPROC, DepthFunc)                                                                                   \
    F(PFNGLDEPTHMASKPROC, DepthMask)                                                                                   \
    F(PFNGLDISABLEPROC, Disable)                                                                                       \
    F(PFNGLDRAWARRAYSPROC, DrawArrays)                                                                                 \
    F(PFNGLDRAWELEMENTSPROC, DrawElements)                                                                             \
    F(PFNGLDRAWELEMENTSBASEVERTEXPROC, DrawElementsBaseVertex)                                                         \
    F(PFNGLENABLEPROC, Enable)                                                                                         \
    F(PFNGLENABLEVERTEXATTRIBARRAYPROC, EnableVertexAttribArray)                                                       \
    F(PFNGLFINISHPROC, Finish)                                                                                         \
    F(PFNGLFRAMEBUFFERRENDERBUFFERPROC, FramebufferRenderbuffer)                                                       \
    F(PFNGLFRAMEBUFFERTEXTURE2DPROC, FramebufferTexture2D)                                                             \
    F(PFNGLFRONTFACEPROC, FrontFace)                                                                                   \
    F(PFNGLGENBUFFERSPROC, GenBuffers)                                                                                 \
    F(PFNGLGENERATEMIPMAPPROC, GenerateMipmap)                                                                         \
    F(PFNGLGENFRAMEBUFFERSPROC, GenFramebuffers)                                                                       \
    F(PFNGLGENRENDERBUFFERSPROC, GenRenderbuffers)                                                                     \
    F(PFNGLGENSAMPLERSPROC, GenSamplers)                                                                               \
    F(PFNGLGENTEXTURESPROC, GenTextures)                                                                               \
    F(PFNGLGENVERTEXARRAYSPROC, GenVertexArrays)                                                                       \
    F(PFNGLGETERRORPROC, GetError)                                                                                     \
    F(PFNGLGETFLOATVPROC, GetFloatv)                                                                                   \
    F(PFNGLGETINTEGERVPROC, GetIntegerv)                                                                               \
    F(PFNGLGETPROGRAMINFOLOGPROC, GetProgramInfoLog)                                                                   \
    F(PFNGLGETPROGRAMIVPROC, GetProgramiv)                                                                             \
    F(PFNGLGETSHADERINFOLOGPROC, GetShaderInfoLog)                                                                     \
    F(PFNGLGETSHADERIVPROC, GetShaderiv)                                                                               \
    F(PFNGLGETSTRINGPROC, GetString)                                                                                   \
    F(PFNGLGETUNIFORMBLOCKINDEXPROC, GetUniformBlockIndex)                                                             \
    F(PFNGLGETUNIFORMLOCATIONPROC, GetUniformLocation)                                                                 \
    F(PFNGLLINEWIDTHPROC, LineWidth)                                                                                   \
    F(PFNGLLINKPROGRAMPROC, LinkProgram)                                                                               \
    F(PFNGLPIXELSTOREIPROC, PixelStorei)                                                                               \
    F(PFNGLPOLYGONMODEPROC, PolygonMode)                                                                               \
    F(PFNGLREADPIXELSPROC, ReadPixels)                                                                                 \
    F(PFNGLRENDERBUFFERSTORAGEPROC, RenderbufferStorage)                                                               \
    F(PFNGLRENDERBUFFERSTORAGEMULTISAMPLEPROC, RenderbufferStorageMultisample)                                         \
    F(PFNGLSAMPLERPARAMETERFPROC, SamplerParameterf)                                                                   \
    F(PFNGLSAMPLERPARAMETERIPROC, SamplerParameteri)                                                                   \
    F(PFNGLSCISSORPROC, Scissor)                                                                                       \
    F(PFNGLSHADERSOURCEPROC, ShaderSource)                                                                             \
    F(PFNGLTEXIMAGE2DPROC, TexImage2D)                                                                                 \
    F(PFNGLTEXPARAMETERIPROC, TexParameteri)                                                                           \
    F(PFNGLUNIFORM1FPROC, Uniform1f)                                                                                   \
    F(PFNGLUNIFORM1IPROC, Uniform1i)                                                                                   \
    F(PFNGLUNIFORM3FVPROC, Uniform3fv)                                                                                 \
    F(PFNGLUNIFORM4FVPROC, Uniform4fv)                                                                                 \
    F(PFNGLUNIFORMBLOCKBINDINGPROC, UniformBlockBinding)                                                               \
    F(PFNGLUNIFORMMATRIX3FVPROC, UniformMatrix3fv)                                                                     \
    F(PFNGLUNIFORMMATRIX4FVPROC, UniformMatrix4fv)                                                                     \
    F(PFNGLUSEPROGRAMPROC, UseProgram)                                                                                 \
    F(PFNGLVERTEXATTRIBPOINTERPROC, VertexAttribPointer)                                                               \
    F(PFNGLVERTEXATTRIB4FPROC, VertexAttrib4f)                                                                         \
    F(PFNGLVIEWPORTPROC, Viewport)

/// The functions of an OpenGL context. With them the drawing library links no OpenGL and works with any window system.
/// They are valid for contexts of the kind that was current at `load`.
class NxGLFunctions {
public:
    /// Returns the address of the OpenGL function of that name, or null.
    using GetProcAddress = void* (*)(const char* name);

    /// Looks up all functions and checks the version of the context, which must be current. Returns false if it has no
    /// OpenGL 3.3 or lacks a function; then `error` says why, and no function may be called.
    bool load(GetProcAddress getProcAddress);
    /// Why `load` failed, as a message for the user; empty after success.
    [[nodiscard]] const std::string& error() const noexcept { return m_error; }

// The members are named after the functions without their "gl".
#define NX_GL_MEMBER(Type, name) Type name = nullptr;
    NX_GL_FUNCTIONS(NX_GL_MEMBER)
#undef NX_GL_MEMBER

private:
    bool checkVersion();

    std::string m_error = "no function of OpenGL was looked up";
};
