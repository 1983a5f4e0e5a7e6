#pragma once

#include "orvane/extender/OrvPluginsManager.h"

namespace orvane {

/// Calls code of extensions, such as the slots of a signal. An exception of a plug-in ends with the call, and the
/// manager puts the plug-in to rest; the profile is applied again then, and the selection announced, so that those are
/// called too who would have been called after it. Other exceptions are passed on.
template <typename Call>
void callExtensions(const QString& during, const Call& call)
{
    try {
        call();
    } catch (...) {
        OrvPluginsManager* const plugins = OrvPluginsManager::getInstance();
        if (plugins == nullptr || !plugins->handleException(during))
            throw;
    }
}

} // namespace orvane
