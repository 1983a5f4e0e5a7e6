#include "orvane/app/fields/values/Refusal.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/values/FactsText.h"
#include "orvane/app/fields/values/FieldText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QCoreApplication>

namespace {

constexpr int exampleCharacters = 40;

struct RefusalTexts {
    Q_DECLARE_TR_FUNCTIONS(Refusal)
};

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
    const QString refused = RefusalTexts::tr("\"%1\" isn't a value for %2, a field of type %3.")
                                .arg(shortLine(text, exampleCharacters), name, typeName(field));
    if (const QString range = rangeText(field, meridane::factsOf(field)); !range.isEmpty())
        return refused + u' ' + RefusalTexts::tr("It takes: %1.").arg(range);
    return refused + u' ' + RefusalTexts::tr("The default is an example of one: %1").arg(exampleOf(field));
}
