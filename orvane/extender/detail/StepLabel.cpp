#include "orvane/extender/detail/StepLabel.h"

#include "orvane/extender/VbText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/ChildrenRecord.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using meridane::ChangeRecord;
using Records = std::span<const std::unique_ptr<ChangeRecord>>;

QString tr(const char* text, int count = -1)
{
    return QCoreApplication::translate("StepLabel", text, nullptr, count);
}

/// The name of the node, or that of its class.
QString nameOf(const NxFieldContainer& node)
{
    if (!node.getName().isEmpty())
        return orvane::toQString(node.getName());
    const auto* const sceneNode = dynamic_cast<const NxNode*>(&node);
    return QString::fromLatin1(
        sceneNode != nullptr ? sceneNode->getClassName() : node.getTypeId().getName().getString());
}

QString nameOf(const NxField& field)
{
    return nameOf(*field.getContainer()) + u'.' + orvane::toQString(field.getContainer()->getFieldName(&field));
}

QString labelOfChildren(Records records)
{
    std::vector<const NxNode*> added;
    std::vector<const NxNode*> removed;
    for (const auto& record : records) {
        const auto& children = static_cast<const meridane::ChildrenRecord&>(*record);
        if (records.size() == 1) {
            const auto present = children.presentChildren();
            added.assign(present.begin(), present.end());
        }
        for (const auto& child : children.otherChildren())
            removed.push_back(child.get());
    }
    if (records.size() > 1)
        return removed.size() == 1 ? tr("Move %1").arg(nameOf(*removed.front())) : tr("Change the structure");
    if (added.size() == 1 && removed.empty())
        return tr("Add %1").arg(nameOf(*added.front()));
    if (added.empty() && removed.size() == 1)
        return tr("Remove %1").arg(nameOf(*removed.front()));
    return tr("Change the children of %1").arg(nameOf(records.front()->node()));
}

} // namespace

QString orvane::labelOf(const meridane::JournalStep& step)
{
    const Records records = step.records();
    const ChangeRecord& first = *records.front();
    const auto all = [&](const auto& test) { return std::ranges::all_of(records, test); };
    const auto isOfKind = [&first](const auto& record) { return record->kind() == first.kind(); };
    if (first.kind() == ChangeRecord::Kind::Children && all(isOfKind))
        return labelOfChildren(records);
    if (all([&first](
                const auto& record) { return record->field() == first.field() && &record->node() == &first.node(); })) {
        if (first.kind() == ChangeRecord::Kind::Name)
            return tr("Rename %1").arg(nameOf(first.node()));
        if (first.kind() == ChangeRecord::Kind::Ignored && records.size() == 1)
            return (first.field()->isIgnored() ? tr("Ignore %1") : tr("Use %1")).arg(nameOf(*first.field()));
        if (first.field() != nullptr)
            return tr("Set %1").arg(nameOf(*first.field()));
    }
    if (all([&first](const auto& record) { return &record->node() == &first.node(); }))
        return tr("Change %1").arg(nameOf(first.node()));
    return tr("Change several nodes");
}
