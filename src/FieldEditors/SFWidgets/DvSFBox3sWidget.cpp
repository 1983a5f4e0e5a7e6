#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"

#include "meridane/scene/fields/single/NxSFBox3s.h"

#include <QLineEdit>

DvSFBox3sWidget::DvSFBox3sWidget(const char* name)
    : DvPopupWidget(2, 3, name)
{
    m_handledType = NxSFBox3s::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFBox3sWidget"));
    m_name = "SFBox3s";
}

DvSFBox3sWidget::~DvSFBox3sWidget() = default;

void DvSFBox3sWidget::load()
{
    // First, since the label keeps the first text that is set.
    setFieldTypeLabel(QLatin1String("SFBox3s"));
    DvPopupWidget::load();
    setLinesValidator(orvane::kindNumber(orvane::ValidatorKind::Int16));
}

void DvSFBox3sWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    const VbBox3s& box = static_cast<NxSFBox3s*>(m_field)->getValue();
    auto line = m_lines.cbegin();
    for (const VbVec3s& corner : {box.getMin(), box.getMax()}) {
        short x = 0;
        short y = 0;
        short z = 0;
        corner.getValue(x, y, z);
        for (const short number : {x, y, z})
            (*line++)->setText(QString::number(number));
    }
    resetLinesCursor();
    DvSFLineWidget::updateFromField();
}

void DvSFBox3sWidget::applyChanges()
{
    if (m_field != nullptr) {
        const auto number = [this](std::size_t index) { return m_lines[index]->text().toShort(); };
        static_cast<NxSFBox3s*>(m_field)->setValue(number(0), number(1), number(2), number(3), number(4), number(5));
        orvane::pushSetValueCommand(m_field);
    }
    // Contract: updates the line with the text form, but not the grid.
    DvSFLineWidget::updateFromField();
}
