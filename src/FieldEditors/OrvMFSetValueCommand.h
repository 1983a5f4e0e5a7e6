#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"

class NxMField;

/// A row of a list that the caller has written before it built this command. The field isn't owned and must outlive the
/// command.
class OrvMFSetValueCommand final : public OrvCommand {
public:
    /// `previousValue` is the text that undo writes. It is null afterwards, so that it serves one
    /// command only. When it is empty or null, undo writes the text that the row has now.
    OrvMFSetValueCommand(NxMField* field, int row, VbString& previousValue);

    /// Only reads the text that the field now has.
    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvMFSetValueCommand() override;

private:
    NxMField* m_field;
    int m_row;
    VbString m_oldValue;
    VbString m_newValue;
};
