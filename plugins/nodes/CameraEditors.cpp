#include "plugins/nodes/CameraEditors.h"

#include "plugins/nodes/CameraDiagram.h"
#include "plugins/nodes/NumberText.h"

#include "meridane/scene/fields/EffectiveField.h"

#include <QCoreApplication>

#include <cmath>
#include <numbers>

using meridane::effectiveField;

namespace nodes {

namespace {

struct CameraTexts {
    Q_DECLARE_TR_FUNCTIONS(CameraEditor)
};

QString sizesText(double angle, double nearDistance, double farDistance)
{
    if (!(angle > 0 && angle < std::numbers::pi))
        return CameraTexts::tr("nothing: heightAngle must be above 0 and below pi");
    const auto heightAt = [&](double distance) { return numberText(2 * distance * std::tan(angle / 2)); };
    constexpr double degrees = 180 / std::numbers::pi;
    return CameraTexts::tr("%1 degrees from below to above: %2 high at the near border, %3 at the far one")
        .arg(numberText(std::round(angle * degrees * 100) / 100), heightAt(nearDistance), heightAt(farDistance));
}

} // namespace

void PerspectiveCameraEditor::build()
{
    auto& diagram = add<CameraDiagram>(QString());
    diagram.setObjectName(QStringLiteral("diagram"));
    diagram.setAccessibleName(CameraTexts::tr("What the camera sees, from its side"));
    follow([&diagram](const NxPerspectiveCamera& camera) { diagram.setCamera(camera); });
    addText(CameraTexts::tr("It sees"), [](const NxPerspectiveCamera& camera) {
        const auto value = [](const NxSFFloat& field) { return static_cast<double>(effectiveField(field).getValue()); };
        return sizesText(value(camera.heightAngle), value(camera.nearDistance), value(camera.farDistance));
    });
    addField(&NxPerspectiveCamera::position);
    addField(&NxPerspectiveCamera::orientation);
    addField(&NxPerspectiveCamera::nearDistance);
    addField(&NxPerspectiveCamera::farDistance);
    addField(&NxPerspectiveCamera::heightAngle);
}

void OrthographicCameraEditor::build()
{
    auto& diagram = add<CameraDiagram>(QString());
    diagram.setObjectName(QStringLiteral("diagram"));
    diagram.setAccessibleName(CameraTexts::tr("What the camera sees, from its side"));
    follow([&diagram](const NxOrthographicCamera& camera) { diagram.setCamera(camera); });
    addText(CameraTexts::tr("It sees"), [](const NxOrthographicCamera& camera) {
        const auto height = static_cast<double>(effectiveField(camera.height).getValue());
        return CameraTexts::tr("%1 from below to above, at any distance").arg(numberText(height));
    });
    addField(&NxOrthographicCamera::position);
    addField(&NxOrthographicCamera::orientation);
    addField(&NxOrthographicCamera::nearDistance);
    addField(&NxOrthographicCamera::farDistance);
    addField(&NxOrthographicCamera::height);
}

} // namespace nodes
