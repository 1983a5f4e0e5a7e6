#include "orvane/app/fields/FieldToolTip.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldGroup.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/input/NumberLimits.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QCoreApplication>
#include <QStringList>

namespace orvane {

namespace {

constexpr qsizetype valueCharacters = 200;

QString tr(const char* text)
{
    return QCoreApplication::translate("FieldToolTip", text);
}

/// The numbers from one limit to another, either of which may be missing.
QString rangeText(double minimum, double maximum)
{
    if (minimum == -NxFieldFacts::infinity)
        return tr("up to %1").arg(plainNumber(maximum));
    if (maximum == NxFieldFacts::infinity)
        return tr("from %1").arg(plainNumber(minimum));
    return tr("%1 to %2").arg(plainNumber(minimum), plainNumber(maximum));
}

QStringList factLines(const NxFieldFacts& facts)
{
    QStringList lines;
    if (const auto unit = meridane::symbolOf(facts.unit); !unit.empty())
        lines += tr("Unit: %1").arg(toQString(unit));
    if (facts.hasHardRange())
        lines += tr("Range: %1").arg(rangeText(facts.hardMinimum, facts.hardMaximum));
    const bool isNarrower = facts.softMinimum > facts.hardMinimum || facts.softMaximum < facts.hardMaximum;
    if (facts.hasSoftRange() && isNarrower)
        lines += tr("Usual range: %1").arg(rangeText(facts.softMinimum, facts.softMaximum));
    return lines;
}

/// The default, and the value if it is another one.
QStringList valueLines(const FieldRow& row)
{
    const NxField& field = *row.first();
    NxFieldContainer* const node = field.getContainer();
    const NxFieldData* const data = node->getFieldData();
    const NxField* const original = data->getDefault(data->getIndex(node, &field));
    QStringList lines;
    if (row.isMixed())
        lines += tr("The %1 nodes have different values.").arg(row.fields().count());
    else
        lines += tr("Value: %1").arg(beginningOf(field, valueCharacters));
    if (!row.isChanged())
        lines += tr("This is the default.");
    else if (original != nullptr)
        lines += tr("Default: %1").arg(beginningOf(*original, valueCharacters));
    return lines;
}

} // namespace

QString fieldToolTip(const FieldRow& row)
{
    if (row.first() == nullptr)
        return tr("The class of this node has no such field. It is kept and written back as it was.");
    const NxFieldFacts& facts = meridane::factsOf(*row.first());
    QStringList lines;
    if (!facts.description.empty())
        lines += toQString(facts.description);
    lines += tr("Type: %1").arg(row.type());
    lines += factLines(facts);
    lines += valueLines(row);
    if (row.isIgnored())
        lines += tr("Ignored: the scene takes no notice of this value.");
    return plainToolTip(lines.join(u'\n'));
}

QString groupToolTip(const FieldGroup& group)
{
    switch (group.kind) {
    case FieldGroup::Kind::Favorites:
        return tr("The fields of this class that have a star.");
    case FieldGroup::Kind::Unknown:
        return tr("The class of this node has no such fields. They are kept and written back as they were.");
    case FieldGroup::Kind::Class:
        break;
    }
    return plainToolTip(tr("The fields that the class %1 declares.").arg(group.title));
}

} // namespace orvane
