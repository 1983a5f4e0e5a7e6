#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <functional>
#include <memory>

class NxMField;

/// Writes to a list.
///
/// The journal of the document knows which rows that has changed, and takes them back. Where there is none, the command
/// keeps the whole list for that.
class ListCommand final : public OrvCommand {
public:
    using Write = std::function<void(NxMField& list)>;

    /// The list has a node. `isJournaled` says whether the journal takes the write back.
    ListCommand(NxMField& list, Write write, bool isJournaled);
    ~ListCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxFieldContainer> m_node; // keeps the list alive
    NxMField* m_list;
    Write m_write; // until it has been executed
    std::unique_ptr<meridane::ChangeRecord> m_before;
    bool m_isJournaled;
};
