#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowTexts.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxMField.h"

DvMFLineWidget::DvMFLineWidget(const char* name)
    : DvMFieldWidget(name != nullptr ? name : "DvMFLineWidget")
{
}

DvMFLineWidget::~DvMFLineWidget() = default;

void DvMFLineWidget::load()
{
    DvMFieldWidget::load();
    setUpTable();
}

void DvMFLineWidget::setUpTable()
{
    orvane::setUpColumn(m_table);
}

void DvMFLineWidget::swapRows(int first, int second)
{
    orvane::swapExistingRows(m_field, first, second);
}

void DvMFLineWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFLineWidget::setCellValue(int row, int /*column*/, QString value)
{
    if (m_field != nullptr)
        m_field->set1(row, orvane::toVbString(value));
}

QString DvMFLineWidget::getCellValue(int row, int column)
{
    return orvane::rowText(m_field, row, column);
}

bool DvMFLineWidget::prepareForField(NxField* field)
{
    return dynamic_cast<NxMField*>(field) != nullptr;
}
