#pragma once

#include <QStringList>

namespace orvane {

/// The libraries whose code was running when the calling thread threw its latest exception, by the names that the
/// system loaded them under: first the one that threw, then the one that called it, and so on; each once in a row.
///
/// For naming the plug-in that an exception comes from, in the handler. This library therefore takes the place of the
/// C++ runtime's `__cxa_throw`, notes where it was called from, and passes on.
[[nodiscard]] QStringList throwingLibraries();

} // namespace orvane
