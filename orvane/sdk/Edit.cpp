#include "orvane/sdk/Edit.h"

#include "orvane/extender/OrvCommand.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/journal/Journal.h"

#include <memory>
#include <utility>

namespace orv {

namespace {

/// A value that was written before the command was made.
class WriteCommand final : public OrvCommand {
public:
    explicit WriteCommand(std::unique_ptr<meridane::ChangeRecord> record)
        : m_record(std::move(record))
    {
    }
    ~WriteCommand() override = default;

    void execute() override { }
    void undo() override { m_record->field()->exchangeValue(*m_record); }
    void redo() override { undo(); }

private:
    std::unique_ptr<meridane::ChangeRecord> m_record; // keeps the node alive
};

/// A write that the history has recorded itself, and puts back.
class RecordedCommand final : public OrvCommand {
public:
    explicit RecordedCommand(NxFieldContainer& node)
        : m_node(&node)
    {
    }
    ~RecordedCommand() override = default;

    void execute() override { }
    void undo() override { }
    void redo() override { }

private:
    NxRef<NxFieldContainer> m_node;
};

class IgnoreCommand final : public OrvCommand {
public:
    IgnoreCommand(NxField& field, bool ignored)
        : m_node(field.getContainer())
        , m_field(&field)
        , m_ignored(ignored)
    {
    }
    ~IgnoreCommand() override = default;

    void execute() override { m_field->setIgnored(m_ignored ? 1 : 0); }
    void undo() override { m_field->setIgnored(m_ignored ? 0 : 1); }
    void redo() override { execute(); }

private:
    NxRef<NxFieldContainer> m_node;
    NxField* m_field;
    bool m_ignored;
};

// Of the edits that run within each other, only the outermost is a step.
int runningEdits = 0;

class StepScope {
public:
    explicit StepScope(const QString& label)
    {
        if (OrvServices* const services = OrvServices::getInstance(); runningEdits++ == 0 && services != nullptr)
            services->beginEdit(label);
    }
    StepScope(const StepScope&) = delete;
    StepScope& operator=(const StepScope&) = delete;
    ~StepScope()
    {
        if (OrvServices* const services = OrvServices::getInstance(); --runningEdits == 0 && services != nullptr)
            services->endEdit();
    }
};

/// Whether the history records what is written to the fields of a node.
bool isRecorded(const OrvServices& services, const NxFieldContainer& node)
{
    const meridane::Journal* const journal = services.document().journal();
    return services.isUndoExact() && journal != nullptr && journal->isRecording() && journal->number(node).has_value();
}

} // namespace

bool editBy(NxField& field, const std::function<bool()>& write)
{
    OrvServices* const services = OrvServices::getInstance();
    if (services == nullptr || field.getContainer() == nullptr)
        return write();
    // Without a copy of the value, which may be a list of millions.
    if (isRecorded(*services, *field.getContainer())) {
        const NxRef<NxFieldContainer> node(field.getContainer());
        if (!write())
            return false;
        services->pushCommand(new RecordedCommand(*node));
        return true;
    }
    std::unique_ptr<meridane::ChangeRecord> record;
    const auto copyValue = [&] {
        record = field.recordOfValue();
        return true;
    };
    if (!meridane::withinMemory(field.valueBytes(), copyValue) || !write())
        return false;
    services->pushCommand(new WriteCommand(std::move(record)));
    return true;
}

bool editText(NxField& field, const QString& text)
{
    return editBy(field, [&] { return field.set(toVbString(text)); });
}

bool editToDefault(NxField& field)
{
    NxFieldContainer* const node = field.getContainer();
    if (node == nullptr || field.isDefault())
        return false;
    const NxFieldData& data = *node->getFieldData();
    const NxField* const standard = data.getDefault(data.getIndex(node, &field));
    return standard != nullptr && editBy(field, [&] { return field.copyFrom(*standard); });
}

bool editIgnored(NxField& field, bool ignored)
{
    OrvServices* const services = OrvServices::getInstance();
    if (field.isIgnored() == ignored || field.getContainer() == nullptr || services == nullptr)
        return false;
    field.setIgnored(ignored ? 1 : 0);
    services->pushCommand(new IgnoreCommand(field, ignored));
    return true;
}

void edit(const QString& label, const std::function<void()>& changes)
{
    const StepScope step(label);
    changes();
}

} // namespace orv
