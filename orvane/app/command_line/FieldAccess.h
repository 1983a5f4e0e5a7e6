#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include <QString>

class NxField;
class NxGroup;

/// Reads and writes fields of a scene by path. A failure names the path, and changes nothing.
namespace orvane {

/// The field that an assignment names. Fails, too, when the field would refuse the text, which is tried on a copy.
Result<NxField*> findAssignedField(NxGroup* scene, const CommandLine::Assignment& assignment);
/// Sets a field from its text form.
Result<> setField(NxGroup* scene, const CommandLine::Assignment& assignment);
/// The field's text form.
Result<QString> fieldText(NxGroup* scene, const QString& path);

} // namespace orvane
