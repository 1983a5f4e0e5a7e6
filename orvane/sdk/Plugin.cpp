#include "orvane/sdk/Plugin.h"

namespace orv {

QStringList titlesOf(const char* classes)
{
    QStringList titles;
    const QStringList names = QString::fromLatin1(classes).split(u',');
    for (const QString& name : names) {
        QString title;
        for (const QChar character : name.section(QStringLiteral("::"), -1).trimmed()) {
            if (character.isUpper() && !title.isEmpty() && title.back().isLower())
                title += u' ';
            title += character;
        }
        titles.append(title);
    }
    return titles;
}

} // namespace orv
