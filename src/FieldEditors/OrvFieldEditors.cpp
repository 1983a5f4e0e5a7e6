#include "FieldEditors/OrvFieldEditors.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldSensor.h"

#include <QFrame>

OrvFieldEditors::OrvFieldEditors()
    : m_frame(new QFrame)
{
    m_author = "KLD";
    m_description = "Field Editor for Orvane.";
    m_version = "1.0.0";
    m_widget = m_frame;
}

OrvFieldEditors::~OrvFieldEditors()
{
    delete m_frame;
}

void OrvFieldEditors::activate()
{
    OrvExtension::activate();
    auto* const field = dynamic_cast<NxField*>(m_editedObject);
    if (field == nullptr) {
        m_frame->hide(); // QDockWidget::setWidget has shown it
        return;
    }
    setField(field);
    updateFromField();
    show();
}

void OrvFieldEditors::deactivate()
{
    OrvExtension::deactivate();
    m_fieldSensor->detach();
    hide();
}

void OrvFieldEditors::hide()
{
    OrvExtension::hide();
    m_frame->hide();
}

void OrvFieldEditors::load()
{
    hide();
    m_fieldSensor = new NxFieldSensor(&OrvFieldEditors::fieldChanged, this);
}

void OrvFieldEditors::show()
{
    OrvExtension::show();
    m_frame->show();
}

void OrvFieldEditors::unload()
{
    delete m_fieldSensor;
}

void OrvFieldEditors::setField(NxField* field)
{
    m_fieldSensor->attach(field);
}

void OrvFieldEditors::fieldChanged(void* data, NxSensor* /*sensor*/)
{
    static_cast<OrvFieldEditors*>(data)->updateFromField();
}
