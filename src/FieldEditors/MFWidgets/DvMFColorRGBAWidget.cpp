#include "FieldEditors/MFWidgets/DvMFColorRGBAWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"

#include "meridane/scene/fields/list/NxMFColorRGBA.h"

DvMFColorRGBAWidget::DvMFColorRGBAWidget(const char* name)
    : DvMFVec4fWidget(orvane::kindNumber(orvane::TableKind::Color), name)
{
    m_handledType = NxMFColorRGBA::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFColorRGBAWidget"));
    m_name = "MFColorRGBA";
}

DvMFColorRGBAWidget::~DvMFColorRGBAWidget() = default;

void DvMFColorRGBAWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFColorRGBA"));
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the direct base, whose columns are others
    DvMFieldWidget::load();
    orvane::setUpColorColumns(m_table,
        {QStringLiteral("Color"), QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B"), QStringLiteral("A")});
}

void DvMFColorRGBAWidget::setRowColor(int row, const VbVec4f& value)
{
    auto* const list = orvane::listAs<NxMFVec4f>(m_field);
    if (list == nullptr)
        return;
    list->set1Value(row, value);
    orvane::pushSetRowValueCommand(list, row);
}

QString DvMFColorRGBAWidget::getCellValue(int row, int column)
{
    if (column == 0)
        return QStringLiteral("Color");
    return DvMFVec4fWidget::getCellValue(row, column - 1);
}

bool DvMFColorRGBAWidget::prepareForField(NxField* /*field*/)
{
    // Contract: any field is accepted. One that is no list of such vectors shows blank cells and is never written.
    return true;
}
