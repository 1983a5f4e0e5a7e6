#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/LoadedPlugin.h"

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<CountingPlugin>::make(orvaneInterfaceVersion + 1);
}

void unloadPlugin()
{
    LoadedPlugin<CountingPlugin>::destroy();
}
