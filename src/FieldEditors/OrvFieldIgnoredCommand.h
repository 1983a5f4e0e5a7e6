#pragma once

#include "orvane/extender/OrvCommand.h"

class NxField;

/// A new state of a field's ignored flag. The field isn't owned and must outlive the command.
class OrvFieldIgnoredCommand final : public OrvCommand {
public:
    OrvFieldIgnoredCommand(NxField* field, bool ignored);

    void execute() override;
    /// Contract: sets the opposite state, whatever the flag was before.
    void undo() override;
    void redo() override;
    ~OrvFieldIgnoredCommand() override;

private:
    NxField* m_field;
    bool m_ignored;
};
