#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"

/// Like the command of a slider's drag: it holds the texts before and after, and reads the new one when it is executed.
class SetValueCommand : public OrvCommand {
public:
    explicit SetValueCommand(NxField& field)
        : m_field(field)
    {
        m_field.get(m_old);
    }

    void execute() override { m_field.get(m_new); }
    void undo() override { m_field.set(m_old); }
    void redo() override { m_field.set(m_new); }

private:
    NxField& m_field;
    VbString m_old;
    VbString m_new;
};
