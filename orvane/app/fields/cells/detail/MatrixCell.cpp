#include "orvane/app/fields/cells/detail/MatrixCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/MatrixPopup.h"
#include "orvane/app/fields/popups/ShownNumber.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/single/NxSFMatrix.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>

using meridane::MatrixRest;

namespace {

const VbMatrix& matrixOf(const NxField& field)
{
    return static_cast<const NxSFMatrix&>(field).getValue();
}

struct MatrixCellTexts {
    Q_DECLARE_TR_FUNCTIONS(MatrixCell)
};

QString numbersText(const std::array<double, 3>& three)
{
    QStringList texts;
    for (const double number : three)
        texts.append(orvane::roundedText(number, 4));
    return texts.join(u' ');
}

// What differs from the identity.
QString matrixText(const NxField& field)
{
    const VbMatrix& matrix = matrixOf(field);
    if (matrix == VbMatrix())
        return MatrixCellTexts::tr("identity");
    const meridane::MatrixDecomposition decomposition = meridane::decomposed(matrix);
    if (decomposition.rest != MatrixRest::None) {
        constexpr int shownCharacters = 200;
        QString elements = orvane::beginningOf(field, shownCharacters);
        switch (decomposition.rest) {
        case MatrixRest::Shear:
            return MatrixCellTexts::tr("with shear: %1").arg(elements);
        case MatrixRest::Projection:
            return MatrixCellTexts::tr("projection: %1").arg(elements);
        default:
            return elements;
        }
    }
    const meridane::MatrixParts& parts = decomposition.parts;
    QStringList texts;
    if (parts.translation != std::array<double, 3>{})
        texts.append(MatrixCellTexts::tr("moved %1").arg(numbersText(parts.translation)));
    if (parts.rotation != std::array<double, 3>{})
        texts.append(MatrixCellTexts::tr("turned %1°").arg(numbersText(parts.rotation)));
    if (parts.scale != std::array<double, 3>{1, 1, 1})
        texts.append(MatrixCellTexts::tr("scaled %1").arg(numbersText(parts.scale)));
    return texts.join(QStringLiteral(", "));
}

} // namespace

void MatrixCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const QRect area = orvane::besideOpenMark(cell.area);
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, area);
    else
        orvane::paintText(painter, cell, area, matrixText(fields.first()));
    orvane::paintOpenMark(painter, cell);
}

CellEditor* MatrixCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxSFMatrix>(edit);
    if (field == nullptr)
        return nullptr;
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new MatrixPopup(editor);
    popup->setMatrix(field->getValue());
    editor->setPopup(popup, [popup](const NxField& shown) {
        if (matrixOf(shown) != popup->matrix())
            popup->setMatrix(matrixOf(shown));
    });
    QObject::connect(popup, &MatrixPopup::matrixChanged, editor, [editor](const VbMatrix& matrix) {
        editor->write([&matrix](NxField& each) {
            static_cast<NxSFMatrix&>(each).setValue(matrix);
            return true;
        });
    });
    return editor;
}
