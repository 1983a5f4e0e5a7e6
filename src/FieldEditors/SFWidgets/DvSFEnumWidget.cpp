#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"

#include "FieldEditors/FieldChanges.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/single/NxSFEnum.h"

#include <QComboBox>
#include <QHBoxLayout>

DvSFEnumWidget::DvSFEnumWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFEnum::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFEnumWidget"));
    m_name = "SFEnum";
}

void DvSFEnumWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFEnum"));
    DvSFieldWidget::load();
    m_comboBox = new QComboBox(m_editionFrame);
    m_comboBox->setObjectName(QStringLiteral("comboBox"));
    m_editLayout->addWidget(m_comboBox, 1);
    connect(m_comboBox, &QComboBox::activated, this, &DvSFEnumWidget::setCommandValue);
}

void DvSFEnumWidget::setField(NxField* field)
{
    m_comboBox->clear();
    if (field != nullptr) {
        int count = 0;
        int* values = nullptr;
        VbName* names = nullptr;
        static_cast<NxSFEnum*>(field)->getEnums(count, values, names);
        for (int index = 0; index < count; ++index)
            m_comboBox->insertItem(m_comboBox->count(), orvane::toQString(names[index]));
    }
    DvSFieldWidget::setField(field);
}

void DvSFEnumWidget::updateFromField()
{
    VbString value;
    if (m_field != nullptr)
        m_field->get(value);
    const QString text = orvane::toQString(value);
    const int index = m_comboBox->findData(text, Qt::DisplayRole);
    // Contract: a value without a name replaces the current item until the names are read again.
    if (index >= 0)
        m_comboBox->setCurrentIndex(index);
    else
        m_comboBox->setItemText(m_comboBox->currentIndex(), text);
    DvSFieldWidget::updateFromField();
}

void DvSFEnumWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFEnum*>(m_field)->setValue(orvane::toVbName(m_comboBox->currentText()));
    orvane::pushSetValueCommand(m_field);
}
