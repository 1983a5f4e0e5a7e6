#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/single/NxSFBitMask.h"

#include <QCheckBox>
#include <QFrame>
#include <QVBoxLayout>

DvSFBitMaskWidget::DvSFBitMaskWidget(const char* name)
    : DvSFieldWidget(name)
{
    m_handledType = NxSFBitMask::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFBitMaskWidget"));
    m_name = "SFBitMask";
}

DvSFBitMaskWidget::~DvSFBitMaskWidget()
{
    if (m_boxLayout != nullptr && m_boxLayout->parent() == nullptr)
        delete m_boxLayout;
}

void DvSFBitMaskWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFBitMask"));
    DvSFieldWidget::load();
    m_boxLayout = new QVBoxLayout;
}

void DvSFBitMaskWidget::unload()
{
    removeBoxes();
    DvSFieldWidget::unload();
}

void DvSFBitMaskWidget::setField(NxField* field)
{
    removeBoxes();
    DvSFieldWidget::setField(field);
    if (field != nullptr)
        addBoxes(*static_cast<NxSFEnum*>(field));
    centreEditionArea();
}

void DvSFBitMaskWidget::addBoxes(const NxSFEnum& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    field.getEnums(count, values, names);
    for (int index = 0; index < count; ++index) {
        if (values[index] == 0)
            continue;
        auto* const box = new QCheckBox(orvane::toQString(names[index]), m_editionFrame);
        box->setChecked((values[index] & field.getValue()) != 0);
        m_boxLayout->addWidget(box, 0);
        connect(box, &QCheckBox::clicked, this, &DvSFBitMaskWidget::setBitMaskValue);
        m_checkBoxes.append(box);
    }
    // After a field without any bits the layout is still there, since only removeBoxes takes it out.
    if (m_boxLayout->parent() == nullptr)
        m_editLayout->addLayout(m_boxLayout);
}

void DvSFBitMaskWidget::removeBoxes()
{
    if (m_checkBoxes.isEmpty())
        return;
    for (QCheckBox* const box : std::as_const(m_checkBoxes)) {
        disconnect(this, nullptr, box, nullptr);
        m_boxLayout->removeWidget(box);
        delete box;
    }
    m_checkBoxes.clear();
    m_editLayout->removeItem(m_boxLayout); // it serves the next field
}

void DvSFBitMaskWidget::setBitMaskValue()
{
    if (m_field == nullptr)
        return;
    auto* const field = static_cast<NxSFEnum*>(m_field);
    int mask = 0;
    // NOLINTNEXTLINE(modernize-loop-convert): from the last to the first
    for (auto box = m_checkBoxes.crbegin(); box != m_checkBoxes.crend(); ++box) {
        int value = 0;
        field->enumValueByName(orvane::toVbName((*box)->text()), value);
        if ((*box)->isChecked())
            mask |= value;
    }
    field->setValue(mask);
}
