#include "FieldEditors/MFWidgets/QUIntValidator.h"

#include "FieldEditors/MFWidgets/UnsignedRange.h"

QUIntValidator::QUIntValidator(unsigned bottom, unsigned top, QObject* parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
{
}

QUIntValidator::QUIntValidator(QObject* parent)
    : QValidator(parent)
{
}

QValidator::State QUIntValidator::validate(QString& input, int& /*position*/) const
{
    return orvane::validateUnsigned(input, m_bottom, m_top);
}

void QUIntValidator::setRange(unsigned bottom, unsigned top)
{
    if (bottom == m_bottom && top == m_top)
        return;
    m_bottom = bottom;
    m_top = top;
    Q_EMIT changed();
}
