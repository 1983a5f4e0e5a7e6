#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFVec2f.h"

DvMFVec2fWidget::DvMFVec2fWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFVec2f::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFVec2fWidget"));
    m_name = "MFVec2f";
}

DvMFVec2fWidget::~DvMFVec2fWidget() = default;

void DvMFVec2fWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFVec2f"));
    DvMFieldWidget::load();
    orvane::setUpColumns(m_table, {QStringLiteral("x"), QStringLiteral("y")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
}

void DvMFVec2fWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFVec2f>(m_field, first, second);
}

void DvMFVec2fWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFVec2fWidget::setCellValue(int row, int column, QString value)
{
    orvane::setComponent<NxMFVec2f>(m_field, row, column, value.toFloat());
}

QString DvMFVec2fWidget::getCellValue(int row, int column)
{
    return orvane::componentText<NxMFVec2f>(m_field, row, column);
}

int DvMFVec2fWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFVec2fWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFVec2f::getClassTypeId());
}
