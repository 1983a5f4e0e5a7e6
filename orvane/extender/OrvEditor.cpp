#include "orvane/extender/OrvEditor.h"

#include "orvane/extender/detail/CallExtensions.h"

OrvEditor::OrvEditor() = default;

OrvEditor::~OrvEditor()
{
    // Docks know an editor by its address and would use it again.
    if (isActive())
        orvane::handleDyingEditor(*this);
}

NxType OrvEditor::getHandledType()
{
    return m_handledType;
}

void OrvEditor::setEditedObject(NxTypedObject* object)
{
    m_editedObject = object;
}

NxTypedObject* OrvEditor::getEditedObject() const
{
    return m_editedObject;
}

QWidget* OrvEditor::getWidget() const
{
    return m_widget;
}
