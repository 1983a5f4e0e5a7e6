#include "FieldEditors/MFWidgets/DvMFColorWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFColor.h"

DvMFColorWidget::DvMFColorWidget(const char* name)
    : DvMFVec3fWidget(orvane::kindNumber(orvane::TableKind::Color), name)
{
    m_handledType = NxMFColor::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFColorWidget"));
    m_name = "MFColor";
}

DvMFColorWidget::~DvMFColorWidget() = default;

void DvMFColorWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFColor"));
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the direct base, whose columns are others
    DvMFieldWidget::load();
    orvane::setUpColorColumns(
        m_table, {QStringLiteral("Color"), QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")});
}

void DvMFColorWidget::setRowColor(int row, const VbVec4f& value)
{
    auto* const list = orvane::listAs<NxMFVec3f>(m_field);
    if (list == nullptr)
        return;
    list->set1Value(row, VbVec3f(value[0], value[1], value[2]));
    orvane::pushSetRowValueCommand(list, row);
}

QString DvMFColorWidget::getCellValue(int row, int column)
{
    if (column == 0)
        return QStringLiteral("Color");
    return DvMFVec3fWidget::getCellValue(row, column - 1);
}

bool DvMFColorWidget::prepareForField(NxField* /*field*/)
{
    // Contract: any field is accepted. One that is no list of such vectors shows blank cells and is never written.
    return true;
}

void DvMFColorWidget::setRowComponent(float value, int row, int component)
{
    // Contract: other components are ignored, while the list with opacity has no such limit.
    if (value >= 0 && value <= 1)
        DvMFVec3fWidget::setRowComponent(value, row, component);
}
