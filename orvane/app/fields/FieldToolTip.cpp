#include "orvane/app/fields/FieldToolTip.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldGroup.h"
#include "orvane/app/fields/values/FactsText.h"
#include "orvane/app/fields/values/FieldText.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QCoreApplication>
#include <QStringList>

namespace orvane {

namespace {

constexpr qsizetype valueCharacters = 200;

QString fieldToolTipText(const char* text)
{
    return QCoreApplication::translate("FieldToolTip", text);
}

QStringList factLines(const NxField& field)
{
    const NxFieldFacts& facts = meridane::factsOf(field);
    QStringList lines;
    if (const QString unit = unitText(facts.unit); !unit.isEmpty())
        lines += fieldToolTipText("Unit: %1").arg(unit);
    if (const QString range = rangeText(field, facts); !range.isEmpty())
        lines += fieldToolTipText("Range: %1").arg(range);
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
        lines += fieldToolTipText("The %1 nodes have different values.").arg(row.fields().count());
    else
        lines += fieldToolTipText("Value: %1").arg(beginningOf(field, valueCharacters));
    if (!row.isChanged())
        lines += fieldToolTipText("This is the default.");
    else if (original != nullptr)
        lines += fieldToolTipText("Default: %1").arg(beginningOf(*original, valueCharacters));
    return lines;
}

} // namespace

QString fieldToolTip(const FieldRow& row)
{
    if (row.first() == nullptr)
        return fieldToolTipText("The class of this node has no such field. It is kept and written back as it was.");
    QStringList lines;
    if (const auto description = meridane::factsOf(*row.first()).description; !description.empty())
        lines += nodeDescription(description);
    lines += fieldToolTipText("Type: %1").arg(row.type());
    lines += factLines(*row.first());
    lines += valueLines(row);
    if (row.isIgnored())
        lines += fieldToolTipText("Ignored: the scene takes no notice of this value.");
    return plainToolTip(lines.join(u'\n'));
}

QString groupToolTip(const FieldGroup& group)
{
    switch (group.kind) {
    case FieldGroup::Kind::Favorites:
        return fieldToolTipText("The fields of this class that have a star.");
    case FieldGroup::Kind::Unknown:
        return fieldToolTipText(
            "The class of this node has no such fields. They are kept and written back as they were.");
    case FieldGroup::Kind::Class:
        break;
    }
    return plainToolTip(fieldToolTipText("The fields that the class %1 declares.").arg(group.title));
}

QString marksText(const FieldRow& row, const FieldGroup& group)
{
    QStringList marks;
    if (row.isChanged())
        marks += fieldToolTipText("changed");
    if (row.isIgnored())
        marks += fieldToolTipText("ignored");
    if (group.kind == FieldGroup::Kind::Favorites)
        marks += fieldToolTipText("favorite");
    return marks.join(QStringLiteral(", "));
}

} // namespace orvane
