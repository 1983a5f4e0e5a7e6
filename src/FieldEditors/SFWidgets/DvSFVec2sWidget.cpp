#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/SFWidgets/VectorColumn.h"

#include "meridane/scene/fields/single/NxSFVec2s.h"

#include <QSpinBox>

DvSFVec2sWidget::DvSFVec2sWidget(const char* name)
    : DvSF2iSpinBox(name)
{
    m_handledType = NxSFVec2s::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFVec2sWidget"));
    m_name = "SFVec2s";
}

DvSFVec2sWidget::~DvSFVec2sWidget() = default;

void DvSFVec2sWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFVec2s"));
    DvSF2iSpinBox::load();
    const QString names[] = {QStringLiteral("x"), QStringLiteral("y")};
    setLabels(names);
    setSpinBoxRange(orvane::kindNumber(orvane::SpinBoxKind::Int16));
}

void DvSFVec2sWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    // Both numbers are read before the first spin box is set, since its change writes the field.
    short x = 0;
    short y = 0;
    static_cast<NxSFVec2s*>(m_field)->getValue().getValue(x, y);
    showNumbers(x, y);
    DvSF2iSpinBox::updateFromField();
}

void DvSFVec2sWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFVec2s*>(m_field)->setValue(
        static_cast<short>(m_xSpinBox->value()), static_cast<short>(m_ySpinBox->value()));
    orvane::pushVectorCommand(m_field, m_editionFrame);
}
