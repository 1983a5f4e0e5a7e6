#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"

#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "meridane/scene/fields/single/NxSFVec4f.h"

DvSFVec4fWidget::DvSFVec4fWidget(const char* name)
    : DvSF4fBox(name)
{
    m_handledType = NxSFVec4f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFVec4fWidget"));
    m_name = "SFVec4f";
}

DvSFVec4fWidget::~DvSFVec4fWidget() = default;

void DvSFVec4fWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFVec4f"));
    DvSF4fBox::load();
    const QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")};
    setLabels(names);
}

void DvSFVec4fWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    float x = 0;
    float y = 0;
    float z = 0;
    float w = 0;
    static_cast<NxSFVec4f*>(m_field)->getValue().getValue(x, y, z, w);
    showNumbers(x, y, z, w);
    DvSF4fBox::updateFromField();
}

void DvSFVec4fWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFVec4f*>(m_field)->setValue(numbers());
    orvane::pushVectorCommand(m_field, m_editionFrame);
}
