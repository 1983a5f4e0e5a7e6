#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/LoadedPlugin.h"

namespace {

class ThrowingExtension : public CountingExtension {
public:
    using CountingExtension::CountingExtension;

    void unload() override { throw std::runtime_error("still in use"); }
};

class ThrowingPlugin : public CountingPlugin {
public:
    void load() override
    {
        addExtension(&m_first);
        addExtension(&m_throwing);
        OrvPlugin::load();
    }

private:
    CountingExtension m_first{"First"};
    ThrowingExtension m_throwing{"Throwing"};
};

} // namespace

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<ThrowingPlugin>::make();
}

void unloadPlugin()
{
    LoadedPlugin<ThrowingPlugin>::destroy();
    throw 1;
}
