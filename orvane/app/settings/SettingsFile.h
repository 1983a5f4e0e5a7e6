#pragma once

#include "orvane/app/base/Result.h"

#include <QString>
#include <QVariant>

#include <vector>

class SettingsStore;
struct Setting;

/// Settings as a file of their own, which another machine can read: an INI file with the version and all settings,
/// without what the tool remembers.
namespace orvane {

/// A value that importing a file would change.
struct SettingChange {
    const Setting* setting = nullptr;
    QVariant before;
    QVariant after;
};

/// Writes the user's values of all settings. The former content of the file is kept if that fails.
Result<> writeSettings(const SettingsStore& store, const QString& fileName);
/// What differs in the file from the user's values, in the order of the list; nothing is changed. Entries that are no
/// settings are left out. Fails for a file of a later version, and for one with a line or a value that can't be used;
/// the message names file, line and reason.
Result<std::vector<SettingChange>> readSettings(const SettingsStore& store, const QString& fileName);
/// Renames the user's settings file, so that the next run begins with the defaults. The result is the new name; empty
/// if there is no file.
Result<QString> putSettingsAway(const QString& fileName);

} // namespace orvane
