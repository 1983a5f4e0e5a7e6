#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"

#include <memory>

class NxMField;

/// Removes rows from a list: the command itself makes the change. The field isn't owned and must outlive the command.
class OrvMFDeleteRowsCommand final : public OrvCommand {
public:
    /// Saves the texts of `count` rows from `start` on.
    OrvMFDeleteRowsCommand(NxMField* field, int start, int count);

    void execute() override;
    /// Puts the rows back with their saved text. Rows that no longer fit in memory stay removed.
    void undo() override;
    void redo() override;
    ~OrvMFDeleteRowsCommand() override;

private:
    NxMField* m_field;
    std::unique_ptr<VbString[]> m_values;
    int m_start;
    int m_count;
    bool m_deleted = false; // the rows are removed: a redo has nothing to do
};
