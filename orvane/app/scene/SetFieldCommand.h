#pragma once

#include "orvane/extender/OrvCommand.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

class NxField;

/// Sets a field from its text form, with a real undo. A text that the field refuses changes nothing.
class SetFieldCommand final : public OrvCommand {
public:
    SetFieldCommand(NxField* field, const VbString& text);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    NxRef<NxFieldContainer> m_node; // keeps the field alive
    NxField* m_field;
    VbString m_oldText;
    VbString m_newText;
};
