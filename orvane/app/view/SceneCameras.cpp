#include "orvane/app/view/SceneCameras.h"

#include "orvane/app/base/AppSettings.h"

#include <QStringList>

#include <array>
#include <limits>

namespace {

const QString camerasKey = QStringLiteral("view/cameras");
/// Position, axis and angle of the orientation, projection, angle, height, focal distance.
constexpr int numbers = 11;

/// The numbers and then the name of the file, which may hold blanks.
QString toText(const QString& fileName, const NxViewpoint& viewpoint)
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
    return text + fileName;
}

std::optional<NxViewpoint> toViewpoint(const QString& text)
{
    std::array<double, 3> position{};
    std::array<float, numbers> values{};
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

/// The index of the entry of a file, or -1.
qsizetype indexOf(const QStringList& entries, const QString& fileName)
{
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries[i].section(u' ', numbers) == fileName)
            return i;
    }
    return -1;
}

} // namespace

std::optional<NxViewpoint> SceneCameras::find(const QString& fileName) const
{
    const QStringList entries = m_settings.value(camerasKey).toStringList();
    const qsizetype index = fileName.isEmpty() ? -1 : indexOf(entries, fileName);
    return index >= 0 ? toViewpoint(entries[index]) : std::nullopt;
}

void SceneCameras::store(const QString& fileName, const NxViewpoint& viewpoint)
{
    if (fileName.isEmpty())
        return;
    QStringList entries = m_settings.value(camerasKey).toStringList();
    if (const qsizetype index = indexOf(entries, fileName); index >= 0)
        entries.removeAt(index);
    entries.prepend(toText(fileName, viewpoint));
    m_settings.setValue(camerasKey, entries.mid(0, mostScenes));
}
