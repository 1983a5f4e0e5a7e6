#include "meridane/gl/Ground.h"

#include "meridane/gl/LinePainter.h"
#include "meridane/gl/MatrixMath.h"
#include "meridane/gl/NxViewpoint.h"

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
{
    constexpr float cellsInView = 20;
    constexpr float least = 1e-9F;
    constexpr float greatest = 1e9F;
    const float seen = std::clamp(viewpoint.getHeightAt(viewpoint.focalDistance), least, greatest);
    m_cell = std::pow(10.0F, std::ceil(std::log10(seen / cellsInView)));
    const VbVec3f focus = viewpoint.getFocalPoint();
    const auto snapped = [this](float value) {
        const float step = m_cell * majorCells;
        const float result = std::round(value / step) * step;
        return std::isfinite(result) ? result : 0;
    };
    m_center = VbVec3f(snapped(focus[0]), 0, snapped(focus[2]));
}

NxBounds Ground::bounds() const
{
    NxBounds bounds;
    const float reach = m_cell * cells;
    if (m_style.grid) {
        bounds.include(VbVec3f(m_center[0] - reach, 0, m_center[2] - reach));
        bounds.include(VbVec3f(m_center[0] + reach, 0, m_center[2] + reach));
    }
    if (m_style.axes) {
        bounds.include(VbVec3f(-reach, 0, -reach));
        bounds.include(VbVec3f(reach, reach, reach));
    }
    return bounds;
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
    for (int i = -cells; i <= cells; ++i) {
        const float offset = static_cast<float>(i) * m_cell;
        const float full = i % majorCells == 0 ? majorOpacity : minorOpacity;
        const VbColorRGBA inner = withOpacity(m_style.gridColor, full * (1 - std::abs(offset) / reach));
        const VbColorRGBA outer = withOpacity(m_style.gridColor, 0);
        for (const bool alongX : {true, false}) {
            // The axes lie there themselves.
            if (m_style.axes && std::abs((alongX ? m_center[2] : m_center[0]) + offset) < m_cell / 2)
                continue;
            const VbVec3f middle = add(m_center, alongX ? VbVec3f(0, 0, offset) : VbVec3f(offset, 0, 0));
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
    for (std::size_t axis = 0; axis < 3; ++axis) {
        VbVec3f end;
        end[axis] = reach;
        lines.add(VbVec3f(), end, withOpacity(colors[axis], 1), withOpacity(colors[axis], 0));
        if (axis != 1)
            lines.add(
                VbVec3f(), scaled(end, -1), withOpacity(colors[axis], negativeOpacity), withOpacity(colors[axis], 0));
    }
}

} // namespace meridane
