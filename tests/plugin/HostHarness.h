#pragma once

#include "ToolHarness.h"

#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include <memory>

/// A plug-in of some extensions that a test owns.
class TestPlugin final : public OrvPlugin {
public:
    explicit TestPlugin(const QList<OrvExtension*>& extensions)
    {
        m_name = "Test";
        for (OrvExtension* const extension : extensions)
            addExtension(extension);
    }
    ~TestPlugin() override = default;
};

/// The whole host around some extensions, of which one runs by itself and controls the named others.
class HostHarness : public ToolHarness {
public:
    HostHarness(const QList<OrvExtension*>& extensions, const QString& running, const QStringList& controlled)
        : m_own(std::make_unique<TestPlugin>(extensions))
    {
        start(*m_own, running, controlled);
    }
    /// The same with a plug-in that outlives the host.
    HostHarness(OrvPlugin& plugin, const QString& running, const QStringList& controlled)
    {
        start(plugin, running, controlled);
    }
    ~HostHarness() { manager.unloadPlugins(); }

    /// Makes a new profile the active one.
    void runProfile(const QString& running, const QStringList& controlled)
    {
        const QString name = QStringLiteral("Profile %1").arg(++m_profiles);
        const QList<OrvProfile::Entry> entries{{running, true, controlled}};
        if (const auto error = manager.addProfile(std::make_unique<OrvProfile>(name, entries)))
            qFatal("%s", qUtf8Printable(*error));
        manager.setActiveProfile(manager.findProfile(name));
    }

    /// The dock that an extension put into the main window.
    [[nodiscard]] QDockWidget* dock() const { return shell.window.findChild<QDockWidget*>(); }

    OrvPluginsManager manager;

private:
    void start(OrvPlugin& plugin, const QString& running, const QStringList& controlled)
    {
        if (const auto error = manager.addPlugin(&plugin))
            qFatal("%s", qUtf8Printable(*error));
        runProfile(running, controlled);
        shell.window.show();
    }

    std::unique_ptr<TestPlugin> m_own;
    int m_profiles = 0;
};

/// Records when a widget is shown and hidden.
class VisibilityRecorder final : public QObject {
public:
    VisibilityRecorder(QWidget* widget, QStringList& calls)
        : QObject(widget)
        , m_calls(calls)
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::ShowToParent)
            m_calls << QStringLiteral("dock shows");
        else if (event->type() == QEvent::HideToParent)
            m_calls << QStringLiteral("dock hides");
        return false;
    }

private:
    QStringList& m_calls;
};
