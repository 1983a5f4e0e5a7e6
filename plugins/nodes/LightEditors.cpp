#include "plugins/nodes/LightEditors.h"

#include "plugins/nodes/LightDiagram.h"

#include <QCoreApplication>

namespace nodes {

namespace {

QString diagramName()
{
    return QCoreApplication::translate("LightEditor", "Where the light goes");
}

} // namespace

void DirectionalLightEditor::build()
{
    auto& diagram = add<LightDiagram>(QString());
    diagram.setObjectName(QStringLiteral("diagram"));
    diagram.setAccessibleName(diagramName());
    follow([&diagram](const NxDirectionalLight& light) { diagram.setLight(light); });
    addField(&NxDirectionalLight::on);
    addField(&NxDirectionalLight::intensity);
    addField(&NxDirectionalLight::color);
    addField(&NxDirectionalLight::direction);
}

void PointLightEditor::build()
{
    auto& diagram = add<LightDiagram>(QString());
    diagram.setObjectName(QStringLiteral("diagram"));
    diagram.setAccessibleName(diagramName());
    follow([&diagram](const NxPointLight& light) { diagram.setLight(light); });
    addField(&NxPointLight::on);
    addField(&NxPointLight::intensity);
    addField(&NxPointLight::color);
    addField(&NxPointLight::location);
    addField(&NxPointLight::attenuation);
}

void SpotLightEditor::build()
{
    auto& diagram = add<LightDiagram>(QString());
    diagram.setObjectName(QStringLiteral("diagram"));
    diagram.setAccessibleName(diagramName());
    follow([&diagram](const NxSpotLight& light) { diagram.setLight(light); });
    addField(&NxSpotLight::on);
    addField(&NxSpotLight::intensity);
    addField(&NxSpotLight::color);
    addField(&NxSpotLight::location);
    addField(&NxSpotLight::direction);
    addField(&NxSpotLight::cutOffAngle);
    addField(&NxSpotLight::dropOffRate);
}

} // namespace nodes
