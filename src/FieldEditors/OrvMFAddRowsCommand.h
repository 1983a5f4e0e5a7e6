#pragma once

#include "orvane/extender/OrvCommand.h"

class NxMField;

/// Adds rows to a list: the command itself makes the change. The field isn't owned and must outlive the command.
class OrvMFAddRowsCommand final : public OrvCommand {
public:
    /// `count` rows from `start` on.
    OrvMFAddRowsCommand(NxMField* field, int start, int count);

    /// Inserts the rows, sets each from the text of an empty string, whatever the kind of the field, and notifies the
    /// sensors of the whole list. Rows that don't fit in memory leave the values as they are.
    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvMFAddRowsCommand() override;

private:
    NxMField* m_field;
    int m_start;
    int m_count;
    bool m_added = false; // the list has grown, so undo has something to remove
};
