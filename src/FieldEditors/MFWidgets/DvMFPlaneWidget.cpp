#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/list/NxMFPlane.h"

DvMFPlaneWidget::DvMFPlaneWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFPlane::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFPlaneWidget"));
    m_name = "MFPlane";
}

DvMFPlaneWidget::~DvMFPlaneWidget() = default;

void DvMFPlaneWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFPlane"));
    DvMFieldWidget::load();
    orvane::setUpColumns(
        m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("distance")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
}

void DvMFPlaneWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFPlane>(m_field, first, second);
}

void DvMFPlaneWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFPlaneWidget::setCellValue(int row, int column, QString value)
{
    const float number = value.toFloat();
    orvane::changeRow<NxMFPlane>(m_field, row, [column, number](VbPlane& plane) {
        VbVec3f normal = plane.getNormal();
        if (column >= 0 && column < 3)
            normal[static_cast<std::size_t>(column)] = number;
        plane = VbPlane(normal, column == 3 ? number : plane.getDistanceFromOrigin());
    });
}

QString DvMFPlaneWidget::getCellValue(int row, int column)
{
    // Contract: only the first of the four columns shows a text.
    const NxMFPlane* const list = orvane::listAs<NxMFPlane>(m_field);
    if (list == nullptr || column != 0 || !orvane::hasRow(*list, row))
        return {};
    return orvane::numberText((*list)[row].getNormal()[0]);
}

int DvMFPlaneWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFPlaneWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFPlane::getClassTypeId());
}
