#include "orvane/app/fields/values/Refusal.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/single/NxSFEnum.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int mostChoices = 12;
constexpr int exampleCharacters = 40;

QString tr(const char* text)
{
    return QCoreApplication::translate("Refusal", text);
}

/// The names that a field of an enumeration takes; empty for other fields.
QString choicesOf(const NxField& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    if (const auto* const single = dynamic_cast<const NxSFEnum*>(&field))
        single->getEnums(count, values, names);
    else if (const auto* const list = dynamic_cast<const NxMFEnum*>(&field))
        list->getEnums(count, values, names);
    QStringList choices;
    for (int i = 0; i < std::min(count, mostChoices); ++i)
        choices += orvane::toQString(names[i]);
    if (count > mostChoices)
        choices += QChar(0x2026);
    return choices.join(QStringLiteral(", "));
}

/// The text form of the default, as an example of a value.
QString exampleOf(const NxField& field)
{
    NxFieldContainer* const node = field.getContainer();
    const NxFieldData* const data = node->getFieldData();
    const NxField* const original = data->getDefault(data->getIndex(node, &field));
    return original != nullptr ? orvane::oneLine(orvane::beginningOf(*original, exampleCharacters)) : QString();
}

} // namespace

QString orvane::refusedText(const NxField& field, const QString& text)
{
    const QString name = toQString(field.getContainer()->getFieldName(&field));
    const QString refused = tr("\"%1\" isn't a value for %2, a field of type %3.")
                                .arg(shortLine(text, exampleCharacters), name, typeName(field));
    if (const QString choices = choicesOf(field); !choices.isEmpty())
        return refused + u' ' + tr("It takes: %1.").arg(choices);
    return refused + u' ' + tr("The default is an example of one: %1").arg(exampleOf(field));
}
