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

struct FieldToolTipTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldToolTip)
};

QStringList factLines(const NxField& field)
{
    const NxFieldFacts& facts = meridane::factsOf(field);
    QStringList lines;
    if (const QString unit = unitText(facts.unit); !unit.isEmpty())
        lines += FieldToolTipTexts::tr("Unit: %1").arg(unit);
    if (const QString range = rangeText(field, facts); !range.isEmpty())
        lines += FieldToolTipTexts::tr("Range: %1").arg(range);
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
        lines += FieldToolTipTexts::tr("The %1 nodes have different values.").arg(row.fields().count());
    else
        lines += FieldToolTipTexts::tr("Value: %1").arg(beginningOf(field, valueCharacters));
    if (!row.isChanged())
        lines += FieldToolTipTexts::tr("This is the default.");
    else if (original != nullptr)
        lines += FieldToolTipTexts::tr("Default: %1").arg(beginningOf(*original, valueCharacters));
    return lines;
}

} // namespace

QString fieldToolTip(const FieldRow& row)
{
    if (row.first() == nullptr)
        return FieldToolTipTexts::tr(
            "The class of this node has no such field. It is kept and written back as it was.");
    QStringList lines;
    if (const auto description = meridane::factsOf(*row.first()).description; !description.empty())
        lines += nodeDescription(description);
    lines += FieldToolTipTexts::tr("Type: %1").arg(row.type());
    lines += factLines(*row.first());
    lines += valueLines(row);
    if (row.isIgnored())
        lines += FieldToolTipTexts::tr("Ignored: the scene takes no notice of this value.");
    return plainToolTip(lines.join(u'\n'));
}

QString groupToolTip(const FieldGroup& group)
{
    switch (group.kind) {
    case FieldGroup::Kind::Favorites:
        return FieldToolTipTexts::tr("The fields of this class that have a star.");
    case FieldGroup::Kind::Unknown:
        return FieldToolTipTexts::tr(
            "The class of this node has no such fields. They are kept and written back as they were.");
    case FieldGroup::Kind::Class:
        break;
    }
    return plainToolTip(FieldToolTipTexts::tr("The fields that the class %1 declares.").arg(group.title()));
}

QString marksText(const FieldRow& row, const FieldGroup& group)
{
    QStringList marks;
    if (row.isChanged())
        marks += FieldToolTipTexts::tr("changed");
    if (row.isIgnored())
        marks += FieldToolTipTexts::tr("ignored");
    if (group.kind == FieldGroup::Kind::Favorites)
        marks += FieldToolTipTexts::tr("favorite");
    return marks.join(QStringLiteral(", "));
}

} // namespace orvane
