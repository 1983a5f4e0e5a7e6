#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"

class NxField;

/// A field of any kind that was given its default. The field isn't owned and must outlive the command.
class OrvFieldSetDefaultCommand final : public OrvCommand {
public:
    /// Reads the texts of both fields and doesn't keep `defaultField`.
    /// Contract: undo writes the text that `field` has now, so it keeps a default that was written before.
    OrvFieldSetDefaultCommand(NxField* field, const NxField* defaultField);

    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvFieldSetDefaultCommand() override;

private:
    NxField* m_field;
    [[maybe_unused]] bool m_isMultiValue; // no code reads it
    VbString m_defaultValue;
    VbString m_previousValue;
};
