#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"

#include "FieldEditors/FieldChanges.h"

#include "meridane/scene/fields/single/NxSFPlane.h"

DvSFPlaneWidget::DvSFPlaneWidget(const char* name)
    : DvSF4fBox(name)
{
    m_handledType = NxSFPlane::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFPlaneWidget"));
    m_name = "SFPlane";
}

DvSFPlaneWidget::~DvSFPlaneWidget() = default;

void DvSFPlaneWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFPlane"));
    DvSF4fBox::load();
    const QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("distance")};
    setLabels(names);
}

void DvSFPlaneWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    const VbPlane plane = static_cast<NxSFPlane*>(m_field)->getValue();
    float x = 0;
    float y = 0;
    float z = 0;
    plane.getNormal().getValue(x, y, z);
    showNumbers(x, y, z, plane.getDistanceFromOrigin());
    DvSF4fBox::updateFromField();
}

void DvSFPlaneWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    const VbVec4f typed = numbers();
    static_cast<NxSFPlane*>(m_field)->setValue(VbPlane(VbVec3f(typed[0], typed[1], typed[2]), typed[3]));
    orvane::pushSetValueCommand(m_field);
}
