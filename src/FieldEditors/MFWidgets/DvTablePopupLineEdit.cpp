#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"

#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

DvTablePopupLineEdit::DvTablePopupLineEdit(DvTablePopupWidget* owner, QWidget* parent, const char* name)
    : QLineEdit(parent)
    , m_owner(owner)
{
    setObjectName(QLatin1String(name));
    setAlignment(Qt::AlignLeft);
}

void DvTablePopupLineEdit::setCurrentValue(const QString& /*text*/)
{
    m_owner->setCellValue(m_owner->currentRow(), -1, QString());
}
