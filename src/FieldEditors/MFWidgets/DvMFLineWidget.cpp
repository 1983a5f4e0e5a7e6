#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/RowChanges.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/NxMField.h"

#include <QHeaderView>

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
    m_table->setColumnCount(1);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    m_table->setNumRows(0);
}

void DvMFLineWidget::swapRows(int first, int second)
{
    const int rows = m_field != nullptr ? m_field->getNum() : 0;
    if (first >= 0 && second >= 0 && first < rows && second < rows)
        orvane::swapRowTexts(*m_field, first, second);
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
    if (m_field == nullptr || column >= 1 || row >= m_field->getNum())
        return {};
    VbString text;
    m_field->get1(row, text);
    return orvane::toQString(text);
}

bool DvMFLineWidget::prepareForField(NxField* field)
{
    return dynamic_cast<NxMField*>(field) != nullptr;
}
