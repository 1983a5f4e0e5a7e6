#include "orvane/app/fields/cells/detail/MaskCell.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/MaskPopup.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/single/NxSFBitMask.h"

#include <memory>
#include <utility>
#include <vector>

namespace {

using Bits = std::vector<MaskPopup::Bits>;

unsigned maskOf(const NxField& field)
{
    return static_cast<unsigned>(static_cast<const NxSFBitMask&>(field).getValue());
}

// The bits with a name, and those without that are set in any of the fields.
Bits bitsOf(const FieldSet& fields)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    static_cast<const NxSFBitMask&>(fields.first()).getEnums(count, values, names);
    Bits result;
    unsigned named = 0;
    for (int i = 0; i < count; ++i) {
        const auto bits = static_cast<unsigned>(values[i]);
        if (bits != 0)
            result.push_back({QString::fromLatin1(names[i].getString()), bits});
        named |= bits;
    }
    unsigned unnamed = 0;
    for (const NxField* field : fields.fields())
        unnamed |= maskOf(*field) & ~named;
    for (unsigned bit = 1; bit != 0; bit <<= 1) {
        if ((unnamed & bit) != 0)
            result.push_back({{}, bit});
    }
    return result;
}

Qt::CheckState stateOf(const FieldSet& fields, unsigned bits)
{
    bool any = false;
    bool all = true;
    for (const NxField* field : fields.fields()) {
        const bool isSet = (maskOf(*field) & bits) == bits;
        any = any || isSet;
        all = all && isSet;
    }
    return all ? Qt::Checked : any ? Qt::PartiallyChecked : Qt::Unchecked;
}

} // namespace

void MaskCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    constexpr int shownCharacters = 300;
    const QRect area = orvane::besideOpenMark(cell.area);
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, area);
    else
        orvane::paintText(painter, cell, area, orvane::oneLine(orvane::beginningOf(fields.first(), shownCharacters)));
    orvane::paintOpenMark(painter, cell);
}

CellEditor* MaskCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const FieldSet fields = orvane::fieldsOf(edit.index);
    if (fields.isEmpty())
        return nullptr;
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new MaskPopup(editor);
    // A bit without a name stays in the menu after it was cleared.
    const auto bits = std::make_shared<const Bits>(bitsOf(fields));
    popup->setBits(*bits);
    editor->setPopup(popup, [=](const NxField& /*first*/) {
        const FieldSet now = editor->fields();
        for (std::size_t i = 0; i < bits->size(); ++i)
            popup->setState(static_cast<int>(i), stateOf(now, (*bits)[i].bits));
    });
    QObject::connect(popup, &MaskPopup::toggled, editor, [=](int number, bool on) {
        const unsigned some = (*bits)[static_cast<std::size_t>(number)].bits;
        editor->write([=](NxField& each) {
            const unsigned value = on ? maskOf(each) | some : maskOf(each) & ~some;
            static_cast<NxSFBitMask&>(each).setValue(static_cast<int>(value));
            return true;
        });
        editor->refresh();
    });
    return editor;
}
