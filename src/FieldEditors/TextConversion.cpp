#include "FieldEditors/TextConversion.h"

namespace orvane {

QString toQString(const VbString& text)
{
    if (text.isNull())
        return {};
    return QStringView(text.toUtf16(), text.getLength()).toString();
}

VbString toVbString(const QString& text)
{
    return VbString().fromUtf16(text.utf16());
}

} // namespace orvane
