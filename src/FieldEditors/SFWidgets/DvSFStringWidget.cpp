#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

#include "FieldEditors/SFWidgets/EditLine.h"

#include "meridane/scene/fields/single/NxSFString.h"

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
    // Contract: finished editing writes the field, whether the text has changed or not.
    connect(lineEdit, &QLineEdit::editingFinished, this, &DvSFStringWidget::setCommandValue);
}

void DvSFStringWidget::updateFromField()
{
    orvane::showString(lineEdit, m_field, NxSFString::getClassTypeId());
    DvSFieldWidget::updateFromField();
}

void DvSFStringWidget::applyChanges()
{
    orvane::applyString(lineEdit, m_field, NxSFString::getClassTypeId());
}

bool DvSFStringWidget::edited()
{
    return lineEdit->isModified();
}
