#include "orvane/app/fields/cells/detail/LineCell.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellEditor.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/LineEditor.h"
#include "orvane/app/fields/editors/QuotedForm.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/single/NxSFName.h"

namespace {

constexpr qsizetype longestForm = 1'000'000;

// The text form of a name has quotes, which people don't need to see.
QString formOf(const NxField& field, qsizetype length)
{
    const auto* const name = dynamic_cast<const NxSFName*>(&field);
    return name != nullptr ? orvane::toQString(name->getValue()) : orvane::beginningOf(field, length);
}

} // namespace

void LineCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    constexpr int shownCharacters = 300;
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, cell.area);
    else
        orvane::paintText(painter, cell, cell.area, orvane::oneLine(formOf(fields.first(), shownCharacters)));
}

CellEditor* LineCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxField>(edit);
    // A text that isn't shown whole can't be edited.
    if (field == nullptr || formOf(*field, longestForm).size() > longestForm)
        return nullptr;
    const bool isName = dynamic_cast<const NxSFName*>(field) != nullptr;
    return new LineEditor(
        edit, [](const NxField& shown) { return formOf(shown, longestForm); },
        [isName](const QString& text) { return isName ? orvane::quotedForm(text) : text; }, parent);
}
