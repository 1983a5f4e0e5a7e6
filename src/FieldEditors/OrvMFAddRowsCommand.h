#pragma once

#include "orvane/extender/OrvCommand.h"

class NxMField;

/// New rows in a list: the command itself makes the change. The field isn't owned and must outlive the command.
class OrvMFAddRowsCommand final : public OrvCommand {
public:
    /// `count` rows from `start` on.
    OrvMFAddRowsCommand(NxMField* field, int start, int count);

    /// Opens the rows, gives each the text of an empty string, whatever the kind of the field, and tells the observers
    /// of the whole list. Rows that don't fit in memory leave the values as they are.
    void execute() override;
    void undo() override;
    void redo() override;
    ~OrvMFAddRowsCommand() override;

private:
    NxMField* m_field;
    int m_start;
    int m_count;
    bool m_added = false; // the list did grow: there is something to take back
};
