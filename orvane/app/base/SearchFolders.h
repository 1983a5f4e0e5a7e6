#pragma once

#include <QStringList>

/// Where the tool looks for what isn't compiled in. A folder need not exist.
namespace orvane {

/// The folders with plug-ins: those of the environment's ORVANE_PLUGIN_PATH (separated by colons), the user's own
/// `orvane/plugins` in the folder for data, `lib` beside the program's `bin`, and the folder of an installed copy,
/// usually `lib/orvane/plugins`.
[[nodiscard]] QStringList pluginFolders(const QString& chosen = {});
/// The folders with profiles: those that ship with the tool, then the user's own `orvane/profiles` in the folder for
/// configuration.
[[nodiscard]] QStringList profileFolders();
/// The user's own folder `orvane` for what programs remember of their runs: in `XDG_STATE_HOME`, or `~/.local/state`.
[[nodiscard]] QString stateFolder();

} // namespace orvane
