#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFVec4f.h"

DvMFVec4fWidget::DvMFVec4fWidget(const char* name)
    : DvMFVec4fWidget(orvane::kindNumber(orvane::TableKind::Plain), name)
{
}

DvMFVec4fWidget::DvMFVec4fWidget(int tableKind, const char* name)
    : DvMFieldWidget(tableKind, name)
{
    m_handledType = NxMFVec4f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFVec4fWidget"));
    m_name = "MFVec4f";
}

DvMFVec4fWidget::~DvMFVec4fWidget() = default;

void DvMFVec4fWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFVec4f"));
    DvMFieldWidget::load();
    orvane::setUpColumns(m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
}

void DvMFVec4fWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFVec4f>(m_field, first, second);
}

void DvMFVec4fWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFVec4fWidget::setCellValue(int row, int column, QString value)
{
    setRowComponent(value.toFloat(), row, column);
}

void DvMFVec4fWidget::setRowComponent(float value, int row, int component)
{
    orvane::setComponent<NxMFVec4f>(m_field, row, component, value);
}

QString DvMFVec4fWidget::getCellValue(int row, int column)
{
    return orvane::componentText<NxMFVec4f>(m_field, row, column);
}

int DvMFVec4fWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFVec4fWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFVec4f::getClassTypeId());
}
