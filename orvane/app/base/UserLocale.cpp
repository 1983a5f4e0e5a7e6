#include "orvane/app/base/UserLocale.h"

#include <QDateTime>
#include <QRegularExpression>

namespace orvane {

void useProgramLocale()
{
    QLocale::setDefault(QLocale::c());
}

QLocale userLocale()
{
    return QLocale::system();
}

QLocale messageLocale()
{
    QLocale locale = userLocale();
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English);
    return locale;
}

QString countText(qlonglong count, const QLocale& locale)
{
    return locale.toString(count);
}

QString sizeText(qlonglong bytes, const QLocale& locale)
{
    return locale.formattedDataSize(bytes, 1).replace(
        locale.decimalPoint() + locale.zeroDigit() + u' ', QStringLiteral(" "));
}

QString momentText(const QDateTime& moment, const QDate& today, const QLocale& locale)
{
    const bool hasLanguage = locale.language() != QLocale::C;
    QString clock = QStringLiteral("HH:mm:ss");
    if (hasLanguage) {
        // The short form has no seconds, the long one has the time zone too.
        static const QRegularExpression zone(QStringLiteral("^t+\\s*|\\s*\\(?t+\\)?$"));
        clock = locale.timeFormat(QLocale::LongFormat).remove(zone);
    }
    QString text = locale.toString(moment.time(), clock);
    if (moment.date() != today) {
        const QString date
            = hasLanguage ? locale.toString(moment.date(), QLocale::ShortFormat) : moment.date().toString(Qt::ISODate);
        text.prepend(date + u' ');
    }
    return text;
}

} // namespace orvane
