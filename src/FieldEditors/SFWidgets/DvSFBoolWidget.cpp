#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/LayoutMetrics.h"

#include "meridane/scene/fields/single/NxSFBool.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>

DvSFBoolWidget::DvSFBoolWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFBool::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFBoolWidget"));
    m_name = "SFBool";
}

void DvSFBoolWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFBool"));
    DvSFieldWidget::load();
    m_box = new QCheckBox(m_editionFrame);
    m_box->setObjectName(QStringLiteral("m_box"));
    m_box->setFixedSize(
        getLayoutMetric(QStringLiteral("SFBoolWidth")), getLayoutMetric(QStringLiteral("SFComponentHeight")));
    m_editLayout->addWidget(m_box, 0);
    centreEditionArea();
    connect(m_box, &QCheckBox::clicked, this, &DvSFBoolWidget::setCommandValue);
}

void DvSFBoolWidget::updateFromField()
{
    if (m_field != nullptr)
        m_box->setChecked(static_cast<NxSFBool*>(m_field)->getValue() != 0);
    DvSFieldWidget::updateFromField();
}

void DvSFBoolWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFBool*>(m_field)->setValue(m_box->isChecked());
    orvane::pushSetValueCommand(m_field);
}
