#pragma once

#include "orvane/app/base/Result.h"

#include <QString>

#include <vector>

class LogModel;

/// The log outside of the tool: as text, and the files that its lines name.
namespace orvane {

/// The lines of these rows, each with its end; "\n" separates them.
[[nodiscard]] QString logText(const LogModel& model, const std::vector<int>& rows);
/// Writes all rows to a text file in UTF-8. A file that is there is replaced when everything is written.
Result<> writeLog(const LogModel& model, const QString& fileName);
/// Opens a file or folder in the program that the desktop has for it. Of a file that could run, its folder is opened.
Result<> openInDesktop(const QString& path);

} // namespace orvane
