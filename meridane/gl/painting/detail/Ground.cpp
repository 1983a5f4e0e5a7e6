#include "meridane/gl/painting/detail/Ground.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/painting/detail/LinePainter.h"

#include <algorithm>
#include <cmath>

namespace meridane {
namespace {

constexpr int cells = 40; // to each side of the middle
constexpr int majorCells = 10;
constexpr float minorOpacity = 0.35F;
constexpr float majorOpacity = 0.8F;

VbColorRGBA withOpacity(const VbColor& color, float opacity)
{
    return {color[0], color[1], color[2], std::max(opacity, 0.0F)};
}

} // namespace

Ground::Ground(const NxViewpoint& viewpoint, const NxDrawingStyle& style)
    : m_style(style)
    , m_cell(1)
    , m_eye(viewpoint.usablePosition())
    , m_focus(viewpoint.focalPoint())
{
    constexpr float cellsInView = 20;
    constexpr float least = 1e-9F;
    constexpr float greatest = 1e9F;
    const float seen = std::clamp(viewpoint.heightAt(viewpoint.focalDistance), least, greatest);
    m_cell = std::pow(10.0F, std::ceil(std::log10(seen / cellsInView)));
    const auto snapped = [this](double value) {
        const double step = static_cast<double>(m_cell) * majorCells;
        const double result = std::round(value / step) * step;
        return std::isfinite(result) ? result : 0;
    };
    m_center = VbVec3d(snapped(m_focus[0]), 0, snapped(m_focus[2]));
}

NxBounds Ground::bounds() const
{
    NxBounds bounds;
    const float reach = m_cell * cells;
    const VbVec3f corner(reach, 0, reach);
    if (m_style.grid) {
        const VbVec3f center = narrowed(m_center);
        bounds.include(partNearFocus({subtract(center, corner), add(center, corner)}));
    }
    if (m_style.axes)
        bounds.include(partNearFocus({scaled(corner, -1), VbVec3f(reach, reach, reach)}));
    return bounds;
}

// Distant parts would reduce the resolution of the depth buffer for the rest.
NxBounds Ground::partNearFocus(NxBounds box) const
{
    const float most = m_cell * cells * 100;
    const VbVec3f focus = narrowed(m_focus);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        box.min[axis] = std::max(box.min[axis], focus[axis] - most);
        box.max[axis] = std::min(box.max[axis], focus[axis] + most);
        if (!(box.min[axis] <= box.max[axis]))
            return {};
    }
    return box;
}

void Ground::addLines(LinePainter& lines) const
{
    if (m_style.grid)
        addGrid(lines);
    if (m_style.axes)
        addAxes(lines);
}

void Ground::addGrid(LinePainter& lines) const
{
    const float reach = m_cell * cells;
    const VbVec3f center = narrowed(subtract(m_center, m_eye));
    for (int i = -cells; i <= cells; ++i) {
        const float offset = static_cast<float>(i) * m_cell;
        const float full = i % majorCells == 0 ? majorOpacity : minorOpacity;
        const VbColorRGBA inner = withOpacity(m_style.gridColor, full * (1 - std::abs(offset) / reach));
        const VbColorRGBA outer = withOpacity(m_style.gridColor, 0);
        for (const bool alongX : {true, false}) {
            // The axes are drawn there.
            const double place = (alongX ? m_center[2] : m_center[0]) + static_cast<double>(offset);
            if (m_style.axes && std::abs(place) < static_cast<double>(m_cell) / 2)
                continue;
            const VbVec3f middle = add(center, alongX ? VbVec3f(0, 0, offset) : VbVec3f(offset, 0, 0));
            for (const float end : {-reach, reach})
                lines.add(middle, add(middle, alongX ? VbVec3f(end, 0, 0) : VbVec3f(0, 0, end)), inner, outer);
        }
    }
}

void Ground::addAxes(LinePainter& lines) const
{
    constexpr VbColor colors[] = {{0.85F, 0.25F, 0.25F}, {0.35F, 0.7F, 0.25F}, {0.25F, 0.45F, 0.9F}};
    constexpr float negativeOpacity = 0.4F;
    const float reach = m_cell * cells;
    const VbVec3f origin = narrowed(scaled(m_eye, -1));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        VbVec3f end;
        end[axis] = reach;
        const VbColorRGBA outer = withOpacity(colors[axis], 0);
        lines.add(origin, add(origin, end), withOpacity(colors[axis], 1), outer);
        if (axis != 1)
            lines.add(origin, subtract(origin, end), withOpacity(colors[axis], negativeOpacity), outer);
    }
}

} // namespace meridane
