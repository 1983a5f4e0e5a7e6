#include "FieldEditors/SFWidgets/DvSFNameWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/EditLine.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/single/NxSFName.h"

#include <QLineEdit>

DvSFNameWidget::DvSFNameWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFName::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFNameWidget"));
    m_name = "SFName";
}

void DvSFNameWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFName"));
    DvSFieldWidget::load();
    lineEdit = orvane::addEditLine(*m_editionFrame, *m_editLayout);
    // Contract: finished editing writes the field, whether the text has changed or not.
    connect(lineEdit, &QLineEdit::editingFinished, this, &DvSFNameWidget::setCommandValue);
}

void DvSFNameWidget::updateFromField()
{
    VbString text;
    if (m_field != nullptr) {
        if (m_field->isOfType(NxSFName::getClassTypeId()))
            text.fromLatin1(static_cast<NxSFName*>(m_field)->getValue().getString());
        else
            m_field->get(text);
    }
    lineEdit->setText(orvane::toQString(text));
    DvSFieldWidget::updateFromField();
}

void DvSFNameWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    const QString text = lineEdit->text();
    if (m_field->isOfType(NxSFName::getClassTypeId()))
        static_cast<NxSFName*>(m_field)->setValue(orvane::toVbName(text));
    else
        m_field->set(orvane::toVbString(text));
    orvane::pushSetValueCommand(m_field);
}

bool DvSFNameWidget::edited()
{
    return lineEdit->isModified();
}
