#include "meridane/gl/gpu/NxGLFunctions.h"

namespace {

constexpr int leastVersion = 33;

} // namespace

bool NxGLFunctions::load(GetProcAddress getProcAddress)
{
    m_error.clear();
    const auto find = [&](const char* name) {
        void* const function = getProcAddress(name);
        if (function == nullptr && m_error.empty())
            m_error = std::string("the OpenGL function ") + name + " is missing";
        return function;
    };
#define NX_GL_LOAD(Type, name) name = reinterpret_cast<Type>(find("gl" #name));
    NX_GL_FUNCTIONS(NX_GL_LOAD)
#undef NX_GL_LOAD
    return m_error.empty() && checkVersion();
}

bool NxGLFunctions::checkVersion()
{
    int major = 0;
    int minor = 0;
    GetIntegerv(GL_MAJOR_VERSION, &major);
    GetIntegerv(GL_MINOR_VERSION, &minor);
    if (major * 10 + minor >= leastVersion)
        return true;
    const auto* const version = reinterpret_cast<const char*>(GetString(GL_VERSION));
    m_error = std::string("OpenGL 3.3 is needed, this is ") + (version == nullptr ? "no context" : version);
    return false;
}
