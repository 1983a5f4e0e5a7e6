#include "plugins/nodes/MaterialEditor.h"

#include "plugins/nodes/MaterialSphere.h"

#include <QCoreApplication>

namespace nodes {

namespace {

struct MaterialTexts {
    Q_DECLARE_TR_FUNCTIONS(MaterialEditor)
};

} // namespace

void MaterialEditor::build()
{
    auto& sphere = add<MaterialSphere>(QString());
    sphere.setObjectName(QStringLiteral("sphere"));
    sphere.setAccessibleName(MaterialTexts::tr("A sphere of the material"));
    follow([&sphere](const NxMaterial& material) { sphere.setMaterial(material); });
    addField(&NxMaterial::diffuseColor);
    addField(&NxMaterial::ambientColor);
    addField(&NxMaterial::specularColor);
    addField(&NxMaterial::emissiveColor);
    addField(&NxMaterial::shininess);
    addField(&NxMaterial::transparency);
    addField(&NxMaterial::metalness);
    addField(&NxMaterial::roughness);
    addField(&NxMaterial::doubleSided);
    addField(&NxMaterial::alphaCutoff);
}

} // namespace nodes
