#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/LoadedPlugin.h"

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<CountingPlugin>::make();
}

void unloadPlugin()
{
    LoadedPlugin<CountingPlugin>::destroy();
}
