#pragma once

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/settings/Setting.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <optional>
#include <set>
#include <utility>

/// The values of the settings that are listed in `orvane::settingList`, with their types.
///
/// A value of the file that can't be used, because it has a wrong type or is out of range, counts as the default. The
/// file keeps it until the user changes the setting.
class SettingsStore : public QObject {
    Q_OBJECT

public:
    /// What counts more than the setting in this run.
    struct Overruling {
        QVariant value; ///< invalid if it can't be used
        QString source; ///< such as "ORVANE_HISTORY"
    };

    ~SettingsStore() override;

    /// The one store of these settings. It lives as long as they do.
    [[nodiscard]] static SettingsStore& of(AppSettings& settings);

    /// The value in effect of a listed setting of that kind.
    [[nodiscard]] bool isOn(const QString& key) const { return value(key).toBool(); }
    [[nodiscard]] double number(const QString& key) const { return value(key).toDouble(); }
    /// Of a choice, a text or a folder.
    [[nodiscard]] QString text(const QString& key) const { return value(key).toString(); }
    [[nodiscard]] QVariant value(const QString& key) const;

    /// Calls `apply`, which takes no argument, now and at each change of the setting as long as `owner` lives.
    template <typename Apply>
    void follow(const QString& key, QObject* owner, Apply apply)
    {
        connect(this, &SettingsStore::changed, owner, [key, apply](const QString& changedKey) mutable {
            if (changedKey == key)
                apply();
        });
        apply();
    }

    /// What the user has set, or the default, whatever counts more in this run.
    [[nodiscard]] QVariant ownValue(const Setting& setting) const;
    /// Whether the user has set something else than what would count without.
    [[nodiscard]] bool isChanged(const Setting& setting) const;
    /// The value of the file that can't be used, which counts as the default; empty for none.
    [[nodiscard]] QString unusableValue(const Setting& setting) const;
    /// Sets a value, which must be usable. The default is the same as `reset`.
    void set(const QString& key, const QVariant& value);
    void reset(const QString& key);
    void resetAll();

    /// Lets a value count more than the setting in this run; `source` is what the user has to take away, such as the
    /// option of a command line.
    void overrule(const QString& key, const QVariant& value, const QString& source);
    /// To be called when the file of toolkit preferences has been read: values may follow it.
    void announcePreferences();
    [[nodiscard]] std::optional<Overruling> overruling(const Setting& setting) const;
    /// The value of the file of toolkit preferences, which counts where the setting isn't changed; invalid for none.
    [[nodiscard]] QVariant preferred(const Setting& setting) const;

    /// A sentence for each value of the file that can't be used.
    [[nodiscard]] QStringList unusableValues() const;
    [[nodiscard]] AppSettings& file() const noexcept { return m_settings; }

Q_SIGNALS:
    /// The value in effect may have changed.
    void changed(const QString& key);

private:
    explicit SettingsStore(AppSettings& settings);

    [[nodiscard]] std::optional<QVariant> stored(const Setting& setting) const;
    void applyPreference(const Setting& setting);
    void announce(const QString& key);

    AppSettings& m_settings;
    std::map<QString, Overruling> m_overruled;
    std::set<const char*> m_preferences; // that this store has set
};
