#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/single/NxSFMatrix.h"

#include <QLineEdit>

DvSFMatrixWidget::DvSFMatrixWidget(const char* name)
    : DvPopupWidget(4, 4, name)
{
    m_handledType = NxSFMatrix::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFMatrixWidget"));
    m_name = "SFMatrix";
}

DvSFMatrixWidget::~DvSFMatrixWidget() = default;

void DvSFMatrixWidget::load()
{
    // First, since the label keeps the first text that is set.
    setFieldTypeLabel(QLatin1String("SFMatrix"));
    DvPopupWidget::load();
    setLinesValidator(orvane::kindNumber(orvane::ValidatorKind::Float));
}

void DvSFMatrixWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    const VbMatrix& matrix = static_cast<NxSFMatrix*>(m_field)->getValue();
    for (std::size_t index = 0; index < m_lines.size(); ++index)
        orvane::showNumber(m_lines[index], matrix[index / 4][index % 4]);
    resetLinesCursor();
    DvSFLineWidget::updateFromField();
}

void DvSFMatrixWidget::applyChanges()
{
    if (m_field != nullptr) {
        VbMatrix matrix;
        for (std::size_t index = 0; index < m_lines.size(); ++index)
            matrix[index / 4][index % 4] = orvane::numberIn(m_lines[index]);
        static_cast<NxSFMatrix*>(m_field)->setValue(matrix);
        orvane::pushSetValueCommand(m_field);
    }
    // Contract: updates the line with the text form, but not the grid.
    DvSFLineWidget::updateFromField();
}
