#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/EditLine.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/NxSFString.h"

#include <QLineEdit>

DvSFStringWidget::DvSFStringWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFString::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFStringWidget"));
    m_name = "SFString";
}

void DvSFStringWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFString"));
    DvSFieldWidget::load();
    lineEdit = orvane::addEditLine(*m_editionFrame, *m_editLayout);
    // Past edited(): whenever the line says so, the field is written, changed or not. Meant.
    connect(lineEdit, &QLineEdit::editingFinished, this, &DvSFStringWidget::setCommandValue);
}

void DvSFStringWidget::updateFromField()
{
    VbString text;
    if (m_field != nullptr) {
        if (m_field->isOfType(NxSFString::getClassTypeId()))
            text = static_cast<NxSFString*>(m_field)->getValue();
        else
            m_field->get(text);
    }
    lineEdit->setText(orvane::toQString(text));
    DvSFieldWidget::updateFromField();
}

void DvSFStringWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    const QString text = lineEdit->text();
    if (m_field->isOfType(NxSFString::getClassTypeId()))
        static_cast<NxSFString*>(m_field)->setValue(orvane::toVbString(text));
    else
        m_field->set(orvane::toVbString(text));
    orvane::pushSetValueCommand(m_field);
}

bool DvSFStringWidget::edited()
{
    return lineEdit->isModified();
}
