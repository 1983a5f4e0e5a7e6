#include "extender/plugins/EntryPoints.h"

OrvPlugin* loadPlugin()
{
    return nullptr;
}

void unloadPlugin() { }
