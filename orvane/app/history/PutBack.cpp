#include "orvane/app/history/PutBack.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/history/StepText.h"
#include "orvane/app/history/ValueCommand.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/NodeSearch.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalStep.h"

#include <QCoreApplication>

#include <limits>
#include <memory>

namespace orvane {

namespace {

using meridane::ChangeRecord;
using Kind = ChangeRecord::Kind;

constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

struct PutBackTexts {
    Q_DECLARE_TR_FUNCTIONS(PutBack)
};

/// The record of the value or the name that the step changed. An ignored flag that changed with the value stays.
const ChangeRecord* recordOf(const OrvStepList& steps, int step)
{
    const meridane::JournalStep* const changes = steps.changes(step);
    if (changes == nullptr)
        return nullptr;
    const ChangeRecord* found = nullptr;
    for (const auto& record : changes->records()) {
        if (record->kind() == Kind::Children)
            return nullptr;
        if (record->kind() == Kind::Ignored)
            continue;
        if (found != nullptr && StepPlace::of(*record) != StepPlace::of(*found))
            return nullptr;
        found = record.get();
    }
    return found;
}

bool isInScene(const NxFieldContainer& node, NxGroup& scene)
{
    return &node == &scene || !findPath(&scene, &node).empty();
}

Result<> putNameBack(OrvServices& services, const PastState::History& history, int step, const ChangeRecord& record)
{
    auto* const node = dynamic_cast<NxNode*>(&record.node());
    VbString name;
    {
        const PastState past(history, *StepPlace::of(record), step, noLimit);
        name = node->getName();
    }
    if (name == node->getName())
        return Failure{PutBackTexts::tr("The node has this name already.")};
    services.pushCommand(new RenameNodeCommand(node, name));
    return {};
}

Result<> putValueBack(OrvServices& services, const PastState::History& history, int step, const ChangeRecord& record)
{
    std::unique_ptr<ChangeRecord> older;
    {
        const PastState past(history, *StepPlace::of(record), step, noLimit);
        if (!past.isReached())
            return Failure{PutBackTexts::tr(
                "This value can't be read any more: the rows that the later steps changed aren't there.")};
        const bool fits = meridane::withinMemory(record.field()->valueBytes(), [&] {
            older = record.field()->recordOfValue();
            return true;
        });
        if (!fits)
            return Failure{PutBackTexts::tr("The older value doesn't fit in memory.")};
    }
    if (older->isSameAsNow())
        return Failure{PutBackTexts::tr("The field has this value already.")};
    services.pushCommand(new ValueCommand(std::move(older)));
    return {};
}

} // namespace

QString whyNotPutBack(const OrvStepList& steps, int step)
{
    if (step < 0)
        return PutBackTexts::tr("Choose a step that changed the value of a field.");
    if (steps.changes(step) == nullptr)
        return PutBackTexts::tr("This step changed nothing.");
    if (recordOf(steps, step) != nullptr)
        return {};
    bool hasChildren = false;
    bool isFlagOnly = true;
    for (const auto& record : steps.changes(step)->records()) {
        hasChildren = hasChildren || record->kind() == Kind::Children;
        isFlagOnly = isFlagOnly && record->kind() == Kind::Ignored;
    }
    if (hasChildren)
        return PutBackTexts::tr("This step changed which nodes are in the scene, not one value.");
    return isFlagOnly ? PutBackTexts::tr("This step changed whether a field is ignored, not its value.")
                      : PutBackTexts::tr("This step changed several values.");
}

Result<> putBack(OrvServices& services, const PastState::History& history, int step)
{
    if (QString reason = whyNotPutBack(history.steps, step); !reason.isEmpty())
        return Failure{std::move(reason)};
    const ChangeRecord& record = *recordOf(history.steps, step);
    if (!isInScene(record.node(), history.journal.scene())) {
        const QString name = shortLine(toQString(record.node().getName()));
        return Failure{PutBackTexts::tr(
            "The node of this value, \"%1\", isn't in the scene any more. Go to a state in which it is, or "
            "undo its removal.")
                           .arg(name)};
    }
    return record.kind() == Kind::Name ? putNameBack(services, history, step, record)
                                       : putValueBack(services, history, step, record);
}

} // namespace orvane
