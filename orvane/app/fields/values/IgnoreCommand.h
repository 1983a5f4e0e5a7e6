#pragma once

#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/extender/OrvCommand.h"

#include <vector>

/// Sets whether the scene ignores the fields of a set.
class IgnoreCommand final : public OrvCommand {
public:
    IgnoreCommand(FieldSet fields, bool ignored);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    FieldSet m_fields;
    std::vector<bool> m_before; // for each field, whether it was ignored
    bool m_ignored;
};
