#pragma once

#include "meridane/gl/gpu/NxGLFunctions.h"

#include <set>
#include <string>
#include <utility>

namespace meridane {

/// Reports OpenGL's errors as `NxGLError`s: each kind once for each operation, since the next picture has the same
/// ones.
class GLErrors {
public:
    explicit GLErrors(const NxGLFunctions& gl)
        : m_gl(gl)
    {
    }

    /// Reports the errors since the last call. Returns true if there were any.
    bool report(const std::string& operation);
    /// Reports errors again that were reported before.
    void forget() { m_reported.clear(); }

private:
    const NxGLFunctions& m_gl;
    std::set<std::pair<GLenum, std::string>> m_reported;
};

} // namespace meridane
