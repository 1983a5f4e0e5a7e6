#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"

#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFVec2s.h"

DvMFVec2sWidget::DvMFVec2sWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFVec2s::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFVec2sWidget"));
    m_name = "MFVec2s";
}

DvMFVec2sWidget::~DvMFVec2sWidget() = default;

void DvMFVec2sWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFVec2s"));
    DvMFieldWidget::load();
    orvane::setUpColumns(m_table, {QStringLiteral("x"), QStringLiteral("y")});
    m_table->setNumRows(0);
    // Contract: no value kind, so any text is accepted, and one that is no number reads as 0.
}

void DvMFVec2sWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFVec2s>(m_field, first, second);
}

void DvMFVec2sWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFVec2sWidget::setCellValue(int row, int column, QString value)
{
    orvane::setComponent<NxMFVec2s>(m_field, row, column, value.toShort());
}

QString DvMFVec2sWidget::getCellValue(int row, int column)
{
    return orvane::componentText<NxMFVec2s>(m_field, row, column);
}

int DvMFVec2sWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFVec2sWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFVec2s::getClassTypeId());
}
