#pragma once

#include "meridane/base/values/VbString.h"

#include <QObject>

class OrvProfileSetting;

/// A part of the tool that a plug-in adds: a dock, a tool bar, an editor.
///
/// The host calls `load` once, before everything else, and `unload` once, after the last `deactivate`. In between,
/// `activate` and `deactivate` alternate, and `show` and `hide` change the visibility only. `load` builds the
/// extension's own objects and uses nothing else; `activate` connects it to the rest of the tool. Thread of the user
/// interface only.
class OrvExtension : public QObject {
    Q_OBJECT

public:
    ~OrvExtension() override;

    /// Connects the extension to the rest of the tool. An override calls this body, which records that it is active.
    virtual void activate();
    /// The counterpart of `activate`. An override calls this body.
    virtual void deactivate();
    /// Hides the extension's widget. An override calls this body first.
    virtual void hide();
    /// Builds the extension's own objects, hidden. There is no body to call.
    virtual void load() = 0;
    /// Shows the extension's widget. An override calls this body first.
    virtual void show();
    /// Destroys what `load` built. There is no body to call.
    virtual void unload() = 0;

    /// The settings of this extension in the active profile; null when the profile doesn't run it. The profile owns it.
    [[nodiscard]] OrvProfileSetting* getProfileSetting() const noexcept { return m_profileSetting; }

    [[nodiscard]] const VbString& getName() const noexcept { return m_name; } ///< By which profiles name it.
    /// One sentence for the user.
    [[nodiscard]] const VbString& getDescription() const noexcept { return m_description; }
    [[nodiscard]] const VbString& getAuthor() const noexcept { return m_author; } ///< Who wrote it.
    [[nodiscard]] const VbString& getVersion() const noexcept { return m_version; } ///< Of any form.
    /// True from `activate` to `deactivate`.
    [[nodiscard]] bool isActive() const noexcept { return m_active; }

protected:
    OrvExtension();

    /// Set by the constructor of a derived class.
    VbString m_name;
    VbString m_description; ///< One sentence for the user.
    VbString m_author; ///< Who wrote it.
    VbString m_version; ///< Of any form.

private:
    friend class OrvPluginsManager; // which knows the active profile

    bool m_active = false;
    OrvProfileSetting* m_profileSetting = nullptr;
};
