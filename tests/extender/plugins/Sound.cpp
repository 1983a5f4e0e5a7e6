#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/EntryPoints.h"

namespace {

OrvPlugin* thePlugin = nullptr;

} // namespace

OrvPlugin* loadPlugin()
{
    thePlugin = new CountingPlugin;
    return thePlugin;
}

void unloadPlugin()
{
    delete static_cast<CountingPlugin*>(thePlugin);
    thePlugin = nullptr;
}
