#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/LoadedPlugin.h"

namespace {

class ThrowingExtension : public CountingExtension {
public:
    using CountingExtension::CountingExtension;

    void load() override { throw std::runtime_error("no such font"); }
};

class ThrowingPlugin : public CountingPlugin {
public:
    void load() override
    {
        addExtension(&m_first);
        addExtension(&m_throwing);
        addExtension(&m_last);
        OrvPlugin::load();
    }

private:
    CountingExtension m_first{"First"};
    ThrowingExtension m_throwing{"Throwing"};
    CountingExtension m_last{"Last"};
};

} // namespace

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<ThrowingPlugin>::make();
}

void unloadPlugin()
{
    LoadedPlugin<ThrowingPlugin>::destroy();
}
