#include "orvane/app/fields/FieldTextDelegate.h"

bool FieldTextDelegate::isSearched(const QModelIndex& index) const
{
    return index.parent().isValid();
}
