#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowTexts.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxMField.h"

DvMFDefaultFieldWidget::DvMFDefaultFieldWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMField::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFDefaultFieldWidget"));
    m_name = "MField";
}

DvMFDefaultFieldWidget::~DvMFDefaultFieldWidget() = default;

void DvMFDefaultFieldWidget::load()
{
    setElementTypeLabel(QStringLiteral("MField"));
    DvMFieldWidget::load();
    orvane::setUpColumn(m_table);
}

void DvMFDefaultFieldWidget::swapRows(int first, int second)
{
    orvane::swapExistingRows(m_field, first, second);
}

void DvMFDefaultFieldWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFDefaultFieldWidget::setCellValue(int row, int /*column*/, QString value)
{
    if (m_field == nullptr)
        return;
    // Contract: the command is pushed even if the field refuses the text.
    m_field->set1(row, orvane::toVbString(value));
    orvane::pushSetRowCommand(m_field, row);
}

QString DvMFDefaultFieldWidget::getCellValue(int row, int column)
{
    return orvane::rowText(m_field, row, column);
}

bool DvMFDefaultFieldWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMField::getClassTypeId());
}
