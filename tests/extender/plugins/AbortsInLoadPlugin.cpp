#include "extender/plugins/EntryPoints.h"

#include <cstdlib>

OrvPlugin* loadPlugin()
{
    std::abort();
}

void unloadPlugin() { }
