#pragma once

#include "meridane/base/types/NxType.h"

#include <QList>
#include <QStringList>

#include <vector>

class OrvEditor;
class OrvExtension;
class OrvPlugin;
class QWidget;

namespace orvane {

/// What is wrong with a plug-in that was loaded all the same.
struct PluginFaults {
    /// Each in one line that goes on after the plug-in's name.
    QStringList texts;
    /// The extensions that must not run, since whoever uses them would crash.
    QList<OrvExtension*> unusable;
};

/// Looks through the extensions of a plug-in that has been loaded.
[[nodiscard]] PluginFaults faultsOf(const OrvPlugin& plugin);

/// The node classes that are registered and not abstract.
[[nodiscard]] std::vector<NxType> nodeClasses();
/// Makes a node of each class that has been registered since, and removes those classes that can't do it. The result is
/// a line for each of these, which goes on after the plug-in's name.
[[nodiscard]] QStringList dropBrokenClasses(const std::vector<NxType>& before);

/// Disconnects an extension from what it may connect to while it is active. Returns false if nothing was connected.
[[nodiscard]] bool disconnectFromServices(OrvExtension& extension);

/// Gives an editor an empty widget in place of one that was destroyed, for the dock that shows it. Deleted with the
/// editor.
void replaceWidget(OrvEditor& editor, const QWidget* destroyed);

} // namespace orvane
