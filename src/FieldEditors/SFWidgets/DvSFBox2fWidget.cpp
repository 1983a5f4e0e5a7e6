#include "FieldEditors/SFWidgets/DvSFBox2fWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/single/NxSFBox2f.h"

#include <QLineEdit>

DvSFBox2fWidget::DvSFBox2fWidget(const char* name)
    : DvPopupWidget(2, 2, name)
{
    m_handledType = NxSFBox2f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFBox2fWidget"));
    m_name = "SFBox2f";
}

DvSFBox2fWidget::~DvSFBox2fWidget() = default;

void DvSFBox2fWidget::load()
{
    // First, since the label keeps the first text that is set.
    setFieldTypeLabel(QLatin1String("SFBox2f"));
    DvPopupWidget::load();
    setLinesValidator(orvane::kindNumber(orvane::ValidatorKind::Float));
}

void DvSFBox2fWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    const VbBox2f& box = static_cast<NxSFBox2f*>(m_field)->getValue();
    auto line = m_lines.cbegin();
    for (const VbVec2f& corner : {box.getMin(), box.getMax()}) {
        float x = 0;
        float y = 0;
        corner.getValue(x, y);
        for (const float number : {x, y})
            orvane::showNumber(*line++, number);
    }
    resetLinesCursor();
    DvSFLineWidget::updateFromField();
}

void DvSFBox2fWidget::applyChanges()
{
    if (m_field != nullptr) {
        const auto number = [this](std::size_t index) { return orvane::numberIn(m_lines[index]); };
        static_cast<NxSFBox2f*>(m_field)->setValue(number(0), number(1), number(2), number(3));
        orvane::pushSetValueCommand(m_field);
    }
    // Contract: updates the line with the text form, but not the grid.
    DvSFLineWidget::updateFromField();
}
