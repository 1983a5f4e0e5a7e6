#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/EntryPoints.h"

OrvPlugin* loadPlugin()
{
    return new CountingPlugin;
}
