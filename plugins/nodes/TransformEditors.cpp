#include "plugins/nodes/TransformEditors.h"

#include "plugins/nodes/MatrixGrid.h"
#include "plugins/nodes/NumberText.h"
#include "plugins/nodes/RotationRow.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/MatrixParts.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <QCoreApplication>

namespace nodes {

namespace {

struct TransformTexts {
    Q_DECLARE_TR_FUNCTIONS(TransformEditor)
};

QString partsText(const NxMatrixTransform& transform)
{
    const meridane::MatrixDecomposition found
        = meridane::decomposed(meridane::effectiveField(transform.matrix).getValue());
    switch (found.rest) {
    case meridane::MatrixRest::NotFinite:
        return TransformTexts::tr("nothing that can be shown: an element is infinite or no number");
    case meridane::MatrixRest::Projection:
        return TransformTexts::tr("a projection: the last column isn't 0, 0, 0, 1");
    default:
        break;
    }
    QString text = TransformTexts::tr("moves by %1\nturns by %2 degrees about x, y, z\nscales by %3")
                       .arg(numbersText(found.parts.translation, QStringLiteral(", ")),
                           numbersText(found.parts.rotation, QStringLiteral(", ")),
                           numbersText(found.parts.scale, QStringLiteral(", ")));
    if (found.rest == meridane::MatrixRest::Shear)
        text += u'\n' + TransformTexts::tr("and shears");
    return text;
}

} // namespace

void TransformEditor::build()
{
    addField(&NxTransform::translation);
    auto& rotation = add<RotationRow>(TransformTexts::tr("Turned by"));
    rotation.setObjectName(QStringLiteral("turn"));
    bind(
        &NxTransform::rotation, rotation, &RotationRow::rotationEdited,
        [&rotation](const VbRotation& value) { rotation.setRotation(value); },
        [&rotation] { return rotation.rotation(); });
    addField(&NxTransform::rotation);
    addField(&NxTransform::scaleFactor);
    addField(&NxTransform::center);
    auto& grid = add<MatrixGrid>(TransformTexts::tr("Matrix"));
    grid.setObjectName(QStringLiteral("matrixOfAll"));
    follow([&grid](const NxTransform& node) { grid.setMatrix(meridane::narrowed(meridane::localTransformOf(node))); });
    addChildrenRows();
}

void MatrixTransformEditor::build()
{
    auto& grid = add<MatrixGrid>(TransformTexts::tr("Matrix"));
    grid.setObjectName(QStringLiteral("matrixOfAll"));
    follow(
        [&grid](const NxMatrixTransform& node) { grid.setMatrix(meridane::effectiveField(node.matrix).getValue()); });
    addText(TransformTexts::tr("It"), [](const NxMatrixTransform& node) { return partsText(node); });
    addField(&NxMatrixTransform::matrix);
    addChildrenRows();
}

} // namespace nodes
