#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"

class NxMField;

/// A row that the caller has written before it built this command. The field isn't owned and must outlive the command.
///
/// Contract: undo writes the new value again, since the command doesn't know the former one.
class OrvMFSetFieldValueCommand final : public OrvCommand {
public:
    OrvMFSetFieldValueCommand(NxMField* field, int row);

    /// Does nothing: the field is written.
    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvMFSetFieldValueCommand() override;

private:
    NxMField* m_field;
    int m_row;
    VbString m_oldValue;
    VbString m_newValue;
};
