#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowValues.h"
#include "FieldEditors/SFWidgets/NumberLine.h"

#include "meridane/scene/fields/list/NxMFRotation.h"

#include <array>

DvMFRotationWidget::DvMFRotationWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFRotation::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFRotationWidget"));
    m_name = "MFRotation";
}

DvMFRotationWidget::~DvMFRotationWidget() = default;

void DvMFRotationWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFRotation"));
    DvMFieldWidget::load();
    orvane::setUpColumns(
        m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("radians")});
    m_table->setNumRows(0);
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
}

void DvMFRotationWidget::swapRows(int first, int second)
{
    orvane::swapValues<NxMFRotation>(m_field, first, second);
}

void DvMFRotationWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFRotationWidget::setCellValue(int row, int column, QString value)
{
    const float number = value.toFloat();
    orvane::changeRow<NxMFRotation>(m_field, row, [column, number](VbRotation& rotation) {
        // Contract: the column "radians" changes nothing, and the fourth component stays as it was.
        std::array<float, 4> quaternion = rotation.getQuaternion();
        if (column >= 0 && column < 3)
            quaternion[static_cast<std::size_t>(column)] = number;
        rotation.setValue(quaternion.data());
    });
}

QString DvMFRotationWidget::getCellValue(int row, int column)
{
    // Contract: only the first of the four columns shows a text.
    const NxMFRotation* const list = orvane::listAs<NxMFRotation>(m_field);
    if (list == nullptr || column != 0 || !orvane::hasRow(*list, row))
        return {};
    return orvane::numberText((*list)[row].getQuaternion()[0]);
}

int DvMFRotationWidget::getCellAlignment()
{
    return Qt::AlignLeft;
}

bool DvMFRotationWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFRotation::getClassTypeId());
}
