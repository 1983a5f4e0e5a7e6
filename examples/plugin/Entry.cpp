#include "SamplePlugin.h"

namespace {

OrvPlugin* thePlugin = nullptr;

} // namespace

// The two functions that the host looks for. They have C linkage, so that their names aren't mangled.
extern "C" {

__attribute__((visibility("default"))) OrvPlugin* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();

OrvPlugin* loadPlugin()
{
    thePlugin = new SamplePlugin;
    return thePlugin;
}

void unloadPlugin()
{
    delete static_cast<SamplePlugin*>(thePlugin);
    thePlugin = nullptr;
}
}
