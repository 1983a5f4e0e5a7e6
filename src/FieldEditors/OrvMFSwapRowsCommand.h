#pragma once

#include "orvane/extender/OrvCommand.h"

class NxMField;

/// Exchanges two rows of a list through their text form: the command itself makes the change. The field isn't owned and
/// must outlive the command.
class OrvMFSwapRowsCommand final : public OrvCommand {
public:
    OrvMFSwapRowsCommand(NxMField* field, int first, int second);

    void execute() override;
    /// Swaps once more, which restores the rows.
    void undo() override;
    void redo() override;
    ~OrvMFSwapRowsCommand() override;

private:
    NxMField* m_field;
    int m_first;
    int m_second;
};
