#pragma once

#include "orvane/app/base/Result.h"

#include <QStringList>

#include <functional>

/// Further windows of the tool. Each is a process of its own, so that one that crashes or hangs leaves the others
/// alone.
class NewWindow {
public:
    /// Starts the program with these arguments; false if that can't be done.
    using Start = std::function<bool(const QStringList& arguments)>;

    /// Starts this program, with the options that this window was started with and that hold for others too.
    static void setOptions(const QStringList& options);
    /// Something else that starts windows. Before any is set there are no further windows.
    static void setStart(Start start);
    /// Opens a window with that file, or without one. The result says only whether the process could be started.
    [[nodiscard]] static orvane::Result<> open(const QString& fileName);
};
