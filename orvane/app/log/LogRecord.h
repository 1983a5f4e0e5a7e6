#pragma once

#include "meridane/scene/check/NxProblemKind.h"

#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <vector>

/// A line of the log, and how often it came again before another one came.
struct LogRecord {
    NxSeverity severity = NxSeverity::Information;
    QString source; ///< such as "Standard error", or the name of an extension
    QString text; ///< of one or more lines
    std::vector<qint64> times = {}; ///< of each line, in milliseconds since 1970
    std::size_t droppedLines = 0; ///< of its first lines

    [[nodiscard]] bool isEqualTo(const LogRecord& other) const
    {
        return severity == other.severity && text == other.text && source == other.source;
    }
};
