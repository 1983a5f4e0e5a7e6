#include "extender/broken/EditorOfFloats.h"

#include <QLabel>
#include <QTimer>

#include <memory>

namespace {

enum class Place { Activate, Deactivate, Timer };

class Editor;

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override;

    void deleteEditor() { m_editor.reset(); }

    QObject context; // of its timers

private:
    std::unique_ptr<OrvEditor> m_editor;
};

/// Its plug-in deletes it while a dock shows it.
class Editor : public EditorOfFloats {
public:
    explicit Editor(Plugin& plugin)
        : m_plugin(plugin)
    {
        setWidget(new QLabel);
    }

    void activate() override
    {
        EditorOfFloats::activate();
        if (Place::DELETES_IN == Place::Timer)
            QTimer::singleShot(0, &m_plugin.context, [plugin = &m_plugin] { plugin->deleteEditor(); });
        if (Place::DELETES_IN == Place::Activate)
            m_plugin.deleteEditor();
    }

    void deactivate() override
    {
        EditorOfFloats::deactivate();
        if (Place::DELETES_IN == Place::Deactivate)
            m_plugin.deleteEditor();
    }

private:
    Plugin& m_plugin;
};

void Plugin::load()
{
    m_editor = std::make_unique<Editor>(*this);
    addExtension(m_editor.get());
    OrvPlugin::load();
}

} // namespace

BROKEN_PLUGIN(Plugin)
