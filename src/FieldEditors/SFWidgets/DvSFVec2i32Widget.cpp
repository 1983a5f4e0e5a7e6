#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "meridane/scene/fields/single/NxSFVec2i32.h"

#include <QSpinBox>

DvSFVec2i32Widget::DvSFVec2i32Widget(const char* name)
    : DvSF2iSpinBox(name)
{
    m_handledType = NxSFVec2i32::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFVec2i32Widget"));
    m_name = "SFVec2i32";
}

DvSFVec2i32Widget::~DvSFVec2i32Widget() = default;

void DvSFVec2i32Widget::load()
{
    setFieldTypeLabel(QLatin1String("SFVec2i32"));
    DvSF2iSpinBox::load();
    const QString names[] = {QStringLiteral("x"), QStringLiteral("y")};
    setLabels(names);
    setSpinBoxRange(orvane::kindNumber(orvane::SpinBoxKind::Int32));
}

void DvSFVec2i32Widget::updateFromField()
{
    if (m_field == nullptr)
        return;
    // Both numbers are read before the first spin box is set, since its change writes the field.
    int x = 0;
    int y = 0;
    static_cast<NxSFVec2i32*>(m_field)->getValue().getValue(x, y);
    showNumbers(x, y);
    DvSF2iSpinBox::updateFromField();
}

void DvSFVec2i32Widget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFVec2i32*>(m_field)->setValue(m_xSpinBox->value(), m_ySpinBox->value());
    orvane::pushVectorCommand(m_field, m_editionFrame);
}
