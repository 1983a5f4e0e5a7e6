#pragma once

#include "orvane/app/command_line/CommandLine.h"

#include <QString>

#include <optional>

class NxField;
class NxGroup;

/// What the command line does to a scene: fields read and written by path. The results are messages of what is wrong,
/// or nothing.
namespace orvane {

/// Finds the field that an assignment names and tries its text on a copy, so that the text is known to be taken.
[[nodiscard]] std::optional<QString> findAssignedField(
    NxGroup* scene, const CommandLine::Assignment& assignment, NxField*& field);
/// Sets a field from its text form. A path that leads to no field, and a text that the field refuses, change nothing.
[[nodiscard]] std::optional<QString> setField(NxGroup* scene, const CommandLine::Assignment& assignment);
/// Gives the field's text form in `text`.
[[nodiscard]] std::optional<QString> getField(NxGroup* scene, const QString& path, QString& text);

} // namespace orvane
