#include "FieldEditors/MFWidgets/DvMFStringWidget.h"

#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/MFWidgets/RowColumns.h"
#include "FieldEditors/MFWidgets/RowTexts.h"
#include "FieldEditors/MFWidgets/RowValues.h"
#include "FieldEditors/OrvMFSwapRowsCommand.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/list/NxMFString.h"

DvMFStringWidget::DvMFStringWidget(const char* name)
    : DvMFieldWidget(name)
{
    m_handledType = NxMFString::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvMFStringWidget"));
    m_name = "MFString";
}

DvMFStringWidget::~DvMFStringWidget() = default;

void DvMFStringWidget::load()
{
    setElementTypeLabel(QStringLiteral("MFString"));
    DvMFieldWidget::load();
    orvane::setUpColumn(m_table);
}

void DvMFStringWidget::swapRows(int first, int second)
{
    if (m_field == nullptr || !orvane::hasRow(*m_field, first) || !orvane::hasRow(*m_field, second))
        return;
    // Contract: by a command, unlike the other lists.
    OrvServices::getInstance()->pushCommand(new OrvMFSwapRowsCommand(m_field, first, second));
}

void DvMFStringWidget::reservedRowOperation() { }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all editors
void DvMFStringWidget::setCellValue(int row, int /*column*/, QString value)
{
    if (m_field == nullptr)
        return;
    const VbString text = orvane::toVbString(value);
    if (auto* const list = orvane::listAs<NxMFString>(m_field); list != nullptr)
        list->set1Value(row, text);
    else
        m_field->set1(row, text);
    orvane::pushSetRowCommand(m_field, row);
}

QString DvMFStringWidget::getCellValue(int row, int column)
{
    if (m_field == nullptr || column >= 1 || row >= m_field->getNum())
        return {};
    if (const auto* const list = orvane::listAs<NxMFString>(m_field); list != nullptr)
        return orvane::toQString(orvane::valueOf(*list, row));
    return orvane::rowText(m_field, row, column);
}

bool DvMFStringWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFString::getClassTypeId());
}
