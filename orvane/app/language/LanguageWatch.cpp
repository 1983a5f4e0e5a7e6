#include "orvane/app/language/LanguageWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

LanguageWatch* LanguageWatch::ofApplication()
{
    static QPointer<LanguageWatch> watch;
    QCoreApplication* const application = QCoreApplication::instance();
    if (watch.isNull() && application != nullptr) {
        watch = new LanguageWatch(application);
        application->installEventFilter(watch);
    }
    return watch;
}

bool LanguageWatch::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && object == QCoreApplication::instance())
        Q_EMIT changed();
    return false;
}
