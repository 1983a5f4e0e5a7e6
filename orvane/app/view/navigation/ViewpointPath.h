#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

/// The way of a viewpoint to another one: the point that is looked at goes straight, the rest turns and grows evenly.
/// The projection is that of the end throughout.
class ViewpointPath {
public:
    ViewpointPath(const NxViewpoint& from, const NxViewpoint& to);

    /// Where the way ends, exactly.
    [[nodiscard]] const NxViewpoint& end() const noexcept { return m_to; }
    /// A part of the way, from 0 to 1.
    [[nodiscard]] NxViewpoint at(double part) const;

private:
    NxViewpoint m_from;
    NxViewpoint m_to;
};
