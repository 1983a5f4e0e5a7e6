#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/fields/ChangeRecord.h"

#include <memory>

/// Gives a field another value, which a record of it holds, or takes it back: each time field and record exchange their
/// values.
class ValueCommand final : public OrvCommand {
public:
    /// The record comes from `NxField::recordOfValue`.
    explicit ValueCommand(std::unique_ptr<meridane::ChangeRecord> record);
    ~ValueCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    std::unique_ptr<meridane::ChangeRecord> m_record; // keeps the node alive
};
