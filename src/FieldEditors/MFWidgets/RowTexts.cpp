#include "FieldEditors/MFWidgets/RowTexts.h"

#include "FieldEditors/RowChanges.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxMField.h"

namespace orvane {

QString rowText(const NxMField* field, int row, int column)
{
    if (field == nullptr || column >= 1 || row >= field->getNum())
        return {};
    VbString text;
    field->get1(row, text);
    return toQString(text);
}

void swapExistingRows(NxMField* field, int first, int second)
{
    const int rows = field != nullptr ? field->getNum() : 0;
    if (first >= 0 && second >= 0 && first < rows && second < rows)
        swapRowTexts(*field, first, second);
}

} // namespace orvane
