#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/EntryPoints.h"

namespace {

CountingPlugin* thePlugin = nullptr;

} // namespace

OrvPlugin* loadPlugin()
{
    thePlugin = new CountingPlugin(orvaneInterfaceVersion + 1);
    return thePlugin;
}

void unloadPlugin()
{
    delete thePlugin;
    thePlugin = nullptr;
}
