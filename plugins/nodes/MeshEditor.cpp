#include "plugins/nodes/MeshEditor.h"

#include "plugins/nodes/BelowFacts.h"
#include "plugins/nodes/NodeProblems.h"

#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <QCoreApplication>
#include <QLocale>

namespace nodes {

namespace {

struct MeshTexts {
    Q_DECLARE_TR_FUNCTIONS(MeshEditor)
};

QString primitivesText(const NxMesh& mesh)
{
    const auto indices = static_cast<std::size_t>(meridane::effectiveField(mesh.indices).getNum());
    const auto positions = static_cast<std::size_t>(meridane::effectiveField(mesh.positions).getNum());
    const int primitive = meridane::primitiveOf(mesh);
    const std::size_t corners = indices > 0 ? indices : positions;
    const QString count = QLocale::c().toString(static_cast<qulonglong>(corners / meridane::cornersOf(primitive)));
    switch (primitive) {
    case NxMesh::POINTS:
        return MeshTexts::tr("%1 points").arg(count);
    case NxMesh::LINES:
        return MeshTexts::tr("%1 lines").arg(count);
    default:
        return MeshTexts::tr("%1 triangles").arg(count);
    }
}

} // namespace

void MeshEditor::build()
{
    addText(MeshTexts::tr("Consists of"), [](const NxMesh& mesh) { return primitivesText(mesh); });
    auto& below = add<BelowFacts>(MeshTexts::tr("Seen are"));
    below.setObjectName(QStringLiteral("figures"));
    auto& problems = add<NodeProblems>(MeshTexts::tr("Wrong is"));
    problems.setObjectName(QStringLiteral("problems"));
    follow([&below, &problems](NxMesh& mesh) {
        below.setNode(mesh);
        problems.setNode(mesh);
    });
    addField(&NxMesh::primitive);
    addField(&NxMesh::positions);
    addField(&NxMesh::normals);
    addField(&NxMesh::textureCoordinates);
    addField(&NxMesh::colors);
    addField(&NxMesh::indices);
}

} // namespace nodes
