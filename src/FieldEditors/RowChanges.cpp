#include "FieldEditors/RowChanges.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxMField.h"

bool orvane::openRows(NxMField& field, int start, int count)
{
    const int before = field.getNum();
    field.insertSpace(start, count);
    return count <= 0 || field.getNum() != before;
}

void orvane::swapRowTexts(NxMField& field, int first, int second)
{
    VbString firstText;
    VbString secondText;
    field.get1(first, firstText);
    field.get1(second, secondText);
    field.set1(first, secondText);
    field.set1(second, firstText);
}
