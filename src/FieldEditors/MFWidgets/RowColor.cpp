#include "FieldEditors/MFWidgets/RowColor.h"

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"
#include "FieldEditors/SFWidgets/ColorParts.h"

#include <QColor>

namespace {

constexpr int alphaColumn = 4;

// Widened to double before the product, unlike in the editors of one colour.
int component(const QString& text)
{
    return orvane::wholeComponent(static_cast<double>(text.toFloat()) * 255.0);
}

} // namespace

namespace orvane {

QColor rowColor(DvMFieldWidget* editor, int row)
{
    const QString alpha = editor->getCellValue(row, alphaColumn);
    return {component(editor->getCellValue(row, 1)), component(editor->getCellValue(row, 2)),
        component(editor->getCellValue(row, 3)), alpha.isEmpty() ? 255 : component(alpha)};
}

bool hasOpacity(DvMFieldWidget* editor, int row)
{
    return !editor->getCellValue(row, alphaColumn).isEmpty();
}

} // namespace orvane
