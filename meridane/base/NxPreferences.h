#pragma once

#include "meridane/base/values/VbString.h"

/// Named settings of the process. A setting is read from the environment, else from those that the process has set,
/// else from the settings file.
///
/// If the first value found isn't of the requested type, the default is returned. All operations may be called on any
/// thread, as long as no thread changes the environment.
class NxPreferences {
public:
    NxPreferences() = delete;

    /// 0 for `0`, `false`, `no` and `off`, 1 for `1`, `true`, `yes` and `on`, in upper or lower case.
    [[nodiscard]] static int getBool(const char* name, int defaultValue);
    /// The value as it is, which may be empty.
    [[nodiscard]] static VbString getString(const char* name, const VbString& defaultValue);

    /// Sets a value for this process; nothing is written anywhere.
    static void set(const char* name, const VbString& value);
    /// Removes a value that `set` has set.
    static void unset(const char* name);

    /// Reads a settings file, in UTF-8, instead of the one read before; a null or empty path means no file.
    /// Its lines are `NAME = value`; the value goes to the end of the line, without the blanks around it. Empty lines
    /// and lines that begin with `#` are ignored; of several lines with the same name the last applies. Every other
    /// line is posted as an `NxReadError`, and the remaining lines apply. A missing file has no settings. A file that
    /// can't be read, or is larger than 1 MiB, is posted too, and the settings don't change. The file is never written.
    /// Returns non-zero when nothing was posted.
    static int setFile(const char* path);
};
