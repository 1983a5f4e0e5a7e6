#include "FieldEditors/MFWidgets/QULongValidator.h"

#include "FieldEditors/MFWidgets/UnsignedRange.h"

QULongValidator::QULongValidator(unsigned bottom, unsigned top, QObject* parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
{
}

QULongValidator::QULongValidator(QObject* parent)
    : QValidator(parent)
{
}

QValidator::State QULongValidator::validate(QString& input, int& /*position*/) const
{
    return orvane::validateUnsigned(input, m_bottom, m_top);
}

void QULongValidator::setRange(unsigned bottom, unsigned top)
{
    if (bottom == m_bottom && top == m_top)
        return;
    m_bottom = bottom;
    m_top = top;
    Q_EMIT changed();
}
