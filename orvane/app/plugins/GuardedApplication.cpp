#include "orvane/app/plugins/GuardedApplication.h"

#include "orvane/extender/OrvPluginsManager.h"

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        OrvPluginsManager* const plugins = OrvPluginsManager::getInstance();
        if (plugins == nullptr || !plugins->handleException(QStringLiteral("an event")))
            throw;
        return true;
    }
}
