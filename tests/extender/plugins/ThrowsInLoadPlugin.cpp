#include "extender/plugins/EntryPoints.h"

#include <stdexcept>

OrvPlugin* loadPlugin()
{
    throw std::runtime_error("no licence\nfor this machine");
}

void unloadPlugin() { }
