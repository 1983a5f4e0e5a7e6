#include "extender/plugins/LoadedPlugin.h"

#include <stdexcept>

namespace {

/// A plug-in of another version.
class LaterPlugin : public OrvPlugin {
public:
    LaterPlugin()
        : OrvPlugin(orvaneInterfaceVersion + 1)
    {
    }
};

} // namespace

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<LaterPlugin>::make();
}

void unloadPlugin()
{
    LoadedPlugin<LaterPlugin>::destroy();
    throw std::runtime_error("the licence\nwas lost");
}
