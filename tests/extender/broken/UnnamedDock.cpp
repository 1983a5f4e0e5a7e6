#include "extender/broken/Broken.h"

#include "orvane/extender/OrvShell.h"

#include <QDockWidget>

namespace {

class Extension : public Quiet<OrvExtension> {
public:
    void load() override { m_dock = std::make_unique<QDockWidget>(); }
    void unload() override { m_dock.reset(); }
    void activate() override
    {
        Quiet::activate();
        OrvShell::getInstance()->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
    }
    void deactivate() override
    {
        Quiet::deactivate();
        OrvShell::getInstance()->removeDockWidget(m_dock.get());
    }

private:
    std::unique_ptr<QDockWidget> m_dock;
};

} // namespace

BROKEN_EXTENSION(Extension)
