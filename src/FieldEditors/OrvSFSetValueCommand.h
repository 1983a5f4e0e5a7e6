#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"

class NxField;

/// A single value that the caller has written to a field before it built this command. The field isn't owned and must
/// outlive the command.
class OrvSFSetValueCommand final : public OrvCommand {
public:
    /// `previousValue` is the text that undo writes. It is null afterwards, so that it serves one
    /// command only. When it is empty or null, undo writes the text that the field has now.
    OrvSFSetValueCommand(NxField* field, VbString& previousValue);

    /// Only reads the text that the field now has.
    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvSFSetValueCommand() override;

private:
    NxField* m_field;
    VbString m_oldValue;
    VbString m_newValue;
};
