#include "FieldEditors/SFWidgets/DvSFLineWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/EditLine.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxSField.h"

#include <QLineEdit>
#include <QSignalBlocker>

DvSFLineWidget::DvSFLineWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSField::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFLineWidget"));
    m_name = "SField";
}

void DvSFLineWidget::load()
{
    setFieldTypeLabel(QLatin1String("SField"));
    DvSFieldWidget::load();
    lineEdit = orvane::addEditLine(*m_editionFrame, *m_editLayout);
    const auto applyText = qOverload<const QString&>(&DvSFLineWidget::applyChanges);
    connect(lineEdit, &QLineEdit::editingFinished, this, &DvSFLineWidget::setFocusLeaveEvent);
    connect(lineEdit, &QLineEdit::returnPressed, this, qOverload<>(&DvSFLineWidget::applyChanges));
    connect(lineEdit, &QLineEdit::textChanged, this, applyText);
    connect(lineEdit, &QLineEdit::cursorPositionChanged, this, &DvSFLineWidget::setCursorPosition);
    // Contract: a keystroke emits this signal beside textChanged, so it writes twice and pushes two commands.
    connect(lineEdit, &QLineEdit::textEdited, this, applyText);
}

void DvSFLineWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    const QSignalBlocker blocker(lineEdit);
    VbString text;
    m_field->get(text);
    lineEdit->setText(orvane::toQString(text));
    DvSFieldWidget::updateFromField();
    lineEdit->setCursorPosition(m_cursorPosition);
}

bool DvSFLineWidget::edited()
{
    return lineEdit->isModified();
}

void DvSFLineWidget::applyChanges(const QString& /*text*/)
{
    if (m_field == nullptr)
        return;
    const int position = lineEdit->cursorPosition();
    // Contract: a text that the field refuses pushes a command all the same. The line keeps it until the next change of
    // the field.
    m_field->set(orvane::toVbString(lineEdit->text()));
    lineEdit->setCursorPosition(position);
    orvane::pushSetValueCommand(m_field);
}

void DvSFLineWidget::setCursorPosition(int /*oldPos*/, int newPos)
{
    m_cursorPosition = newPos;
}
