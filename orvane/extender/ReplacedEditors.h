#pragma once

#include <QStringList>

class OrvExtension;

namespace orvane {

/// Has the extension replace others, which are given by their names: wherever a profile lets a dock control it, those
/// are left out. Before the plug-in is loaded, or it has no effect until the next profile.
void setReplacedEditors(OrvExtension& extension, const QStringList& names);
/// The names that were set; empty for an extension that replaces none.
[[nodiscard]] QStringList replacedEditors(const OrvExtension& extension);

} // namespace orvane
