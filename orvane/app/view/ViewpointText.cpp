#include "orvane/app/view/ViewpointText.h"

#include <array>
#include <limits>

QString orvane::textOf(const NxViewpoint& viewpoint)
{
    const VbVec3f& axis = viewpoint.orientation.getAxis();
    QString text;
    const auto append = [&text](auto value) {
        text += QString::number(static_cast<double>(value), 'g', std::numeric_limits<decltype(value)>::max_digits10)
            + u' ';
    };
    for (std::size_t i = 0; i < 3; ++i)
        append(viewpoint.position[i]);
    for (const float value :
        {axis[0], axis[1], axis[2], viewpoint.orientation.getAngle(), static_cast<float>(viewpoint.projection),
            viewpoint.heightAngle, viewpoint.height, viewpoint.focalDistance})
        append(value);
    return text;
}

std::optional<NxViewpoint> orvane::viewpointOf(const QString& text)
{
    std::array<double, 3> position{};
    std::array<float, viewpointNumbers> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const QString number = text.section(u' ', static_cast<int>(i), static_cast<int>(i));
        bool isNumber = false;
        if (i < position.size())
            position[i] = number.toDouble(&isNumber);
        else
            values[i] = number.toFloat(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    NxViewpoint viewpoint;
    viewpoint.position = VbVec3d(position[0], position[1], position[2]);
    viewpoint.orientation = VbRotation(VbVec3f(values[3], values[4], values[5]), values[6]);
    viewpoint.projection = values[7] == 0 ? NxViewpoint::PERSPECTIVE : NxViewpoint::ORTHOGRAPHIC;
    viewpoint.heightAngle = values[8];
    viewpoint.height = values[9];
    viewpoint.focalDistance = values[10];
    return viewpoint;
}
