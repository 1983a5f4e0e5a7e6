#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"

#include "FieldEditors/FieldChanges.h"

#include "meridane/scene/fields/single/NxSFRotation.h"

#include <QLineEdit>

DvSFRotationWidget::DvSFRotationWidget(const char* name)
    : DvSF4fBox(name)
{
    m_handledType = NxSFRotation::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFRotationWidget"));
    m_name = "SFRotation";
}

DvSFRotationWidget::~DvSFRotationWidget() = default;

void DvSFRotationWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFRotation"));
    DvSF4fBox::load();
    const QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("radians")};
    setLabels(names);
    for (QLineEdit* const line : {m_xLine, m_yLine, m_zLine, m_wLine})
        disconnect(line, &QLineEdit::editingFinished, this, &DvSFRotationWidget::setFocusLeaveEvent);
}

void DvSFRotationWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    VbVec3f axis;
    float radians = 0;
    static_cast<NxSFRotation*>(m_field)->getValue().getValue(axis, radians);
    float x = 0;
    float y = 0;
    float z = 0;
    axis.getValue(x, y, z);
    showNumbers(x, y, z, radians);
    DvSF4fBox::updateFromField();
}

void DvSFRotationWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    const VbVec4f typed = numbers();
    VbRotation rotation;
    rotation.setValue(VbVec3f(typed[0], typed[1], typed[2]), typed[3]);
    static_cast<NxSFRotation*>(m_field)->setValue(rotation);
    orvane::pushSetValueCommand(m_field);
}

void DvSFRotationWidget::applyIfModified()
{
    if (edited())
        setFocusLeaveEvent();
}
