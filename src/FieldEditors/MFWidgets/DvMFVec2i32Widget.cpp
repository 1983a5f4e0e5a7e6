#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFVec2i32.h"

DvMFVec2i32Widget::DvMFVec2i32Widget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFVec2i32::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFVec2i32Widget"));
    m_name = "MFVec2i32";
}

DvMFVec2i32Widget::~DvMFVec2i32Widget() = default;

void DvMFVec2i32Widget::load()
{
    setElementTypeLabel(QStringLiteral("MFVec2i32"));
    DvMFieldWidget::load();
    orvane::setUpColumns(m_table, {QStringLiteral("x"), QStringLiteral("y")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Int32));
}

void DvMFVec2i32Widget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFVec2i32>(m_field, first, second);
}

void DvMFVec2i32Widget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFVec2i32Widget::setCellValue(int row, int column, QString value)
{
    orvane::setComponent<NxMFVec2i32>(m_field, row, column, value.toInt());
}

QString DvMFVec2i32Widget::getCellValue(int row, int column)
{
    return orvane::componentText<NxMFVec2i32>(m_field, row, column);
}

int DvMFVec2i32Widget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFVec2i32Widget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFVec2i32::getClassTypeId());
}
