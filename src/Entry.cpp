#include "OrvDefaults.h"

#include <new>

// The two functions that the module exports; the host finds them by these names.
extern "C" {
Q_DECL_EXPORT OrvPlugin* loadPlugin();
Q_DECL_EXPORT void unloadPlugin();
}

namespace {

OrvDefaults* loadedPlugin = nullptr;

} // namespace

// Contract: a second call makes a second plug-in, and the first stays allocated; the host loads a library once. Null
// means any failure, since no exception may leave the module.
OrvPlugin* loadPlugin()
{
    try {
        loadedPlugin = new (std::nothrow) OrvDefaults;
    } catch (...) {
        return nullptr;
    }
    return loadedPlugin;
}

void unloadPlugin()
{
    delete loadedPlugin;
    loadedPlugin = nullptr;
}
