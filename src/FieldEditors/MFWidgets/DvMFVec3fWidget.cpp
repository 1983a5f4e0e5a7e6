#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFVec3f.h"

DvMFVec3fWidget::DvMFVec3fWidget(const char* name)
    : DvMFVec3fWidget(orvane::kindNumber(orvane::TableKind::Plain), name)
{
}

DvMFVec3fWidget::DvMFVec3fWidget(int tableKind, const char* name)
    : DvMFieldWidget(tableKind, name)
{
    m_handledType = NxMFVec3f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFVec3fWidget"));
    m_name = "MFVec3f";
}

DvMFVec3fWidget::~DvMFVec3fWidget() = default;

void DvMFVec3fWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFVec3f"));
    DvMFieldWidget::load();
    orvane::setUpColumns(m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
}

void DvMFVec3fWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFVec3f>(m_field, first, second);
}

void DvMFVec3fWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFVec3fWidget::setCellValue(int row, int column, QString value)
{
    setRowComponent(value.toFloat(), row, column);
}

void DvMFVec3fWidget::setRowComponent(float value, int row, int component)
{
    orvane::setComponent<NxMFVec3f>(m_field, row, component, value);
}

QString DvMFVec3fWidget::getCellValue(int row, int column)
{
    return orvane::componentText<NxMFVec3f>(m_field, row, column);
}

int DvMFVec3fWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFVec3fWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFVec3f::getClassTypeId());
}
