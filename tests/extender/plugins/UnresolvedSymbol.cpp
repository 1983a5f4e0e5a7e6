#include "extender/plugins/EntryPoints.h"

OrvPlugin* makeSomewhereElse();

OrvPlugin* loadPlugin()
{
    return makeSomewhereElse();
}

void unloadPlugin() { }
