#include "orvane/extender/OrvEditor.h"

OrvEditor::OrvEditor() = default;

OrvEditor::~OrvEditor() = default;

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
