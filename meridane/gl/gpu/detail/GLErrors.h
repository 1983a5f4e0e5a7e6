#pragma once

#include "meridane/gl/gpu/NxGLFunctions.h"

#include <set>
#include <string>
#include <utility>

namespace meridane {

/// Reports OpenGL's errors as `NxGLError`s: each kind once for what was being done, since the next picture brings the
/// same ones.
class GLErrors {
public:
    explicit GLErrors(const NxGLFunctions& gl)
        : m_gl(gl)
    {
    }

    /// Reports the errors since the latest call; true if there were some.
    bool report(const std::string& operation);
    /// Reports all anew from now on.
    void forget() { m_reported.clear(); }

private:
    const NxGLFunctions& m_gl;
    std::set<std::pair<GLenum, std::string>> m_reported;
};

} // namespace meridane
