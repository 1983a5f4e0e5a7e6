#include "orvane/extender/detail/StepLabel.h"

#include "orvane/extender/VbText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/ChildrenRecord.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>
#include <unordered_set>

namespace {

using meridane::ChangeRecord;
using meridane::ChildrenRecord;
using orvane::StepLabel;
using Records = std::span<const std::unique_ptr<ChangeRecord>>;

struct StepLabelTexts {
    Q_DECLARE_TR_FUNCTIONS(StepLabel)
};

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

/// The only node that is added, or taken away, by a change of children; null if there are none or several.
const NxNode* onlyNode(std::span<NxNode* const> children)
{
    return children.size() == 1 ? children.front() : nullptr;
}

const NxNode* onlyRemoved(const ChildrenRecord& record)
{
    return record.otherChildren().size() == 1 && record.extent().present == 0 ? record.otherChildren().front().get()
                                                                              : nullptr;
}

/// The only node that the first of two changes has added, after both.
const NxNode* onlyAddedBefore(const ChildrenRecord& record, const ChildrenRecord& next)
{
    ChangeRecord::Extent rows = record.extent();
    if (rows.present != 1 || rows.recorded != 0)
        return nullptr;
    if (&next.group() == &record.group() && next.extent().start < rows.start)
        rows.start -= next.extent().recorded;
    const auto children = record.group().getChildren();
    return rows.start < children.size() ? children[rows.start] : nullptr;
}

/// The node that two changes have moved, and where to.
struct Move {
    const NxNode* node = nullptr; // null for none
    const NxGroup* from = nullptr;
    const NxGroup* to = nullptr;
};

Move findMove(const ChildrenRecord& first, const ChildrenRecord& second)
{
    if (const NxNode* const removed = onlyRemoved(first)) {
        if (second.otherChildren().empty() && onlyNode(second.presentChildren()) == removed)
            return {removed, &first.group(), &second.group()};
    } else if (const NxNode* const later = onlyRemoved(second)) {
        if (onlyAddedBefore(first, second) == later)
            return {later, &second.group(), &first.group()};
    }
    return {};
}

StepLabel labelOfMove(const Move& move, const NxGroup& scene)
{
    const NxType type = move.node->getTypeId();
    const QString name = nameOf(*move.node);
    if (move.from == move.to)
        return {StepLabelTexts::tr("Reorder %1").arg(name), type};
    if (move.to == &scene)
        return {StepLabelTexts::tr("Move %1 to the top").arg(name), type};
    return {StepLabelTexts::tr("Move %1 to %2").arg(name, nameOf(*move.to)), type};
}

StepLabel labelOfChildren(Records records, const NxGroup& scene)
{
    const auto& first = static_cast<const ChildrenRecord&>(*records.front());
    if (records.size() == 1) {
        const auto present = first.presentChildren();
        if (const NxNode* const added = onlyNode(present); added != nullptr && first.otherChildren().empty())
            return {StepLabelTexts::tr("Add %1").arg(nameOf(*added)), added->getTypeId()};
        if (const NxNode* const removed = onlyRemoved(first))
            return {StepLabelTexts::tr("Remove %1").arg(nameOf(*removed)), removed->getTypeId()};
    } else if (records.size() == 2) {
        const Move move = findMove(first, static_cast<const ChildrenRecord&>(*records.back()));
        if (move.node != nullptr)
            return labelOfMove(move, scene);
    }
    const NxGroup& group = first.group();
    if (&group == &scene || std::ranges::any_of(records, [&](const auto& record) { return &record->node() != &group; }))
        return {StepLabelTexts::tr("Change the structure"), {}};
    return {StepLabelTexts::tr("Change the children of %1").arg(nameOf(group)), group.getTypeId()};
}

/// The name of the field that all records are of, in whichever node; empty if they are of several.
VbName commonField(Records records)
{
    const ChangeRecord& first = *records.front();
    if (first.field() == nullptr)
        return {};
    const VbName name = first.node().getFieldName(first.field());
    const bool isCommon = std::ranges::all_of(records, [&](const auto& record) {
        return record->field() != nullptr && record->node().getFieldName(record->field()) == name;
    });
    return isCommon ? name : VbName();
}

int countNodes(Records records)
{
    std::unordered_set<const NxFieldContainer*> nodes;
    for (const auto& record : records)
        nodes.insert(&record->node());
    return static_cast<int>(nodes.size());
}

bool areAll(Records records, ChangeRecord::Kind kind)
{
    return std::ranges::all_of(records, [kind](const auto& record) { return record->kind() == kind; });
}

StepLabel labelOfSeveralNodes(Records records)
{
    const VbName field = commonField(records);
    if (field.isEmpty())
        return {StepLabelTexts::tr("Change several nodes"), {}};
    const ChangeRecord& first = *records.front();
    const bool isIgnored = first.kind() != ChangeRecord::Kind::Value && first.field()->isIgnored();
    const auto isLikeFirst = [&](const auto& record) { return record->field()->isIgnored() == isIgnored; };
    const bool isFlag = areAll(records, ChangeRecord::Kind::Ignored) && std::ranges::all_of(records, isLikeFirst);
    const QString text = !isFlag ? StepLabelTexts::tr("Set %1 of %2 nodes")
        : isIgnored              ? StepLabelTexts::tr("Ignore %1 of %2 nodes")
                                 : StepLabelTexts::tr("Use %1 of %2 nodes");
    return {text.arg(orvane::toQString(field)).arg(countNodes(records)), {}};
}

} // namespace

orvane::StepLabel orvane::labelOf(const meridane::JournalStep& step, const NxGroup& scene)
{
    const Records records = step.records();
    const ChangeRecord& first = *records.front();
    const NxFieldContainer& node = first.node();
    const auto all = [&](const auto& test) { return std::ranges::all_of(records, test); };
    if (areAll(records, ChangeRecord::Kind::Children))
        return labelOfChildren(records, scene);
    if (!all([&node](const auto& record) { return &record->node() == &node; }))
        return labelOfSeveralNodes(records);
    const auto label = [&node](const QString& text) { return StepLabel{text, node.getTypeId()}; };
    if (!all([&first](const auto& record) { return record->field() == first.field(); }))
        return label(StepLabelTexts::tr("Change %1").arg(nameOf(node)));
    if (first.kind() == ChangeRecord::Kind::Name && records.size() == 1)
        return label(StepLabelTexts::tr("Rename %1").arg(nameOf(node)));
    if (first.kind() == ChangeRecord::Kind::Ignored && records.size() == 1)
        return label((first.field()->isIgnored() ? StepLabelTexts::tr("Ignore %1") : StepLabelTexts::tr("Use %1"))
                         .arg(nameOf(*first.field())));
    if (first.field() != nullptr)
        return label(StepLabelTexts::tr("Set %1").arg(nameOf(*first.field())));
    return label(StepLabelTexts::tr("Change %1").arg(nameOf(node)));
}
