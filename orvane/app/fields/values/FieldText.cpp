#include "orvane/app/fields/values/FieldText.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxMField.h"

#include <QLocale>

#include <string>

namespace orvane {

QString beginningOf(const NxField& field, qsizetype length)
{
    constexpr std::size_t valuesASlice = 64;
    // A character has at most four bytes.
    const auto enough = static_cast<std::size_t>(4 * (length + 1));
    std::string text;
    std::size_t position = 0;
    bool more = true;
    while (more && text.size() < enough)
        more = field.writeText(text, position, valuesASlice);
    QString beginning = toQString(std::string_view(text).substr(0, enough));
    if (beginning.size() <= length)
        return beginning;
    if (beginning.at(length - 1).isHighSurrogate())
        --length;
    return beginning.left(length) + QChar(0x2026);
}

QString typeName(const NxField& field)
{
    return QString::fromLatin1(field.getTypeId().getName().getString());
}

QString rowCountText(const NxMField& list)
{
    QString type = typeName(list);
    if (type.startsWith(QStringLiteral("MF")))
        type.remove(0, 2);
    static const QLocale locale = messageLocale();
    return countText(list.getNum(), locale) + QStringLiteral(" × ") + type;
}

} // namespace orvane
