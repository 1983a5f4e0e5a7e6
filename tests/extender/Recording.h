#pragma once

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/VbText.h"

#include <QStringList>

#include <functional>

/// Notes each call of the host as "name.operation". An operation may be given something to do, behind the note.
template <typename Base>
class Recording : public Base {
public:
    using Action = std::function<void()>;

    Recording(const QString& name, QStringList& calls)
        : m_calls(calls)
    {
        Base::m_name = orvane::toVbString(name);
    }

    void activate() override
    {
        Base::activate();
        note("activate", whenActivated);
    }
    void deactivate() override
    {
        Base::deactivate();
        note("deactivate", whenDeactivated);
    }
    void hide() override
    {
        Base::hide();
        note("hide", {});
    }
    void load() override { note("load", whenLoaded); }
    void show() override
    {
        Base::show();
        note("show", {});
    }
    void unload() override { note("unload", whenUnloaded); }

    Action whenActivated;
    Action whenDeactivated;
    Action whenLoaded;
    Action whenUnloaded;

private:
    void note(const char* operation, const Action& action)
    {
        m_calls.append(orvane::toQString(Base::getName()) + QLatin1Char('.') + QLatin1String(operation));
        if (action)
            action();
    }

    QStringList& m_calls;
};

using RecordingExtension = Recording<OrvExtension>;

/// The manager leaves out editors that have no widget.
class RecordingEditor : public Recording<OrvEditor> {
public:
    using Recording::Recording;

    /// The widget lives longer.
    void setWidget(QWidget* widget) { m_widget = widget; }
};

/// A plug-in of extensions that a test has made.
class TestPlugin : public OrvPlugin {
public:
    explicit TestPlugin(const QList<OrvExtension*>& extensions, int version = orvaneInterfaceVersion)
        : OrvPlugin(version)
    {
        m_name = "Test plug-in";
        for (OrvExtension* const extension : extensions)
            addExtension(extension);
    }
    ~TestPlugin() override = default;
};

/// What was noted since the last call.
inline QStringList taken(QStringList& calls)
{
    return std::exchange(calls, {});
}

/// The words of a text, for lists of calls.
inline QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}
