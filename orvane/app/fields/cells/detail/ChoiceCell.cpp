#include "orvane/app/fields/cells/detail/ChoiceCell.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/ChoicePopup.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/scene/fields/single/NxSFEnum.h"

#include <algorithm>
#include <span>

namespace {

std::span<const int> choiceValues(const NxSFEnum& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    field.getEnums(count, values, names);
    return {values, static_cast<std::size_t>(count)};
}

QStringList choiceNames(const NxSFEnum& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    field.getEnums(count, values, names);
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(QString::fromLatin1(names[i].getString()));
    return result;
}

} // namespace

void ChoiceCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    constexpr int shownCharacters = 300;
    const QRect area = orvane::besideOpenMark(cell.area);
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, area);
    else
        orvane::paintText(painter, cell, area, orvane::oneLine(orvane::beginningOf(fields.first(), shownCharacters)));
    orvane::paintOpenMark(painter, cell);
}

CellEditor* ChoiceCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxSFEnum>(edit);
    if (field == nullptr)
        return nullptr;
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new ChoicePopup(editor);
    editor->setPopup(popup, [popup, editor](const NxField& shown) {
        const auto& choice = static_cast<const NxSFEnum&>(shown);
        const std::span<const int> values = choiceValues(choice);
        const auto place = std::find(values.begin(), values.end(), choice.getValue());
        const bool hasOne = place != values.end() && !editor->fields().isMixed();
        popup->setChoices(choiceNames(choice), hasOne ? static_cast<int>(place - values.begin()) : -1);
    });
    QObject::connect(popup, &ChoicePopup::chosen, editor, [editor](int number) {
        editor->write([number](NxField& each) {
            auto& choice = static_cast<NxSFEnum&>(each);
            choice.setValue(choiceValues(choice)[static_cast<std::size_t>(number)]);
            return true;
        });
    });
    return editor;
}
