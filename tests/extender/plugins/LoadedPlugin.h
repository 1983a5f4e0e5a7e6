#pragma once

#include "extender/plugins/EntryPoints.h"

#include <utility>

/// The plug-in of a class that its library holds from `loadPlugin` to `unloadPlugin`, which call these two.
template <typename Plugin>
class LoadedPlugin {
public:
    template <typename... Arguments>
    static OrvPlugin* make(Arguments... arguments)
    {
        s_plugin = new Plugin(arguments...);
        return s_plugin;
    }
    static void destroy() { delete std::exchange(s_plugin, nullptr); }

private:
    static inline Plugin* s_plugin = nullptr;
};
