#include "FieldEditors/MFWidgets/UnsignedRange.h"

QValidator::State orvane::validateUnsigned(const QString& input, unsigned bottom, unsigned top)
{
    if (input.isEmpty())
        return QValidator::Acceptable;
    bool isNumber = false;
    const unsigned number = input.toUInt(&isNumber, 10);
    if (!isNumber)
        return QValidator::Invalid;
    return number < bottom || number > top ? QValidator::Intermediate : QValidator::Acceptable;
}
