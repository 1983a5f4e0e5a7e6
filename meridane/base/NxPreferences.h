#pragma once

#include "meridane/base/values/VbString.h"

/// Named settings of the process. A setting is looked for in the environment first, then among those that the process
/// set itself, then in the settings file; the first place that has it decides.
///
/// A value that is not of the asked kind counts as not set: the default is returned, and no later place is looked at.
/// All operations may be called on any thread (as long as nobody changes the environment meanwhile).
class NxPreferences {
public:
    NxPreferences() = delete;

    /// 0 for `0`, `false`, `no` and `off`, 1 for `1`, `true`, `yes` and `on`, in upper or lower case.
    [[nodiscard]] static int getBool(const char* name, int defaultValue);
    /// A 32-bit integer: decimal with or without a minus sign, or `0x` and hexadecimal digits.
    [[nodiscard]] static int getInt(const char* name, int defaultValue);
    /// A finite number with a decimal point, whatever the locale.
    [[nodiscard]] static float getFloat(const char* name, float defaultValue);
    /// The value as it stands, which may be empty.
    [[nodiscard]] static VbString getString(const char* name, const VbString& defaultValue);

    /// Sets a value for this process; nothing is written anywhere.
    static void set(const char* name, const VbString& value);
    /// Takes back what `set` set.
    static void unset(const char* name);

    /// Reads a settings file, in UTF-8, in place of the one read before; a null or empty path stands for no file.
    /// Its lines are `NAME = value`; the value goes to the end of the line, without the blanks around it. Empty lines
    /// and lines that begin with `#` don't count; of several lines of a name the last counts. Every line that is none
    /// of these is posted as an `NxReadError`, and the other lines hold. A file that doesn't exist holds nothing; one
    /// that can't be read, or is larger than 1 MiB, is posted too, and the settings stay as they were. The file is
    /// never written. Returns non-zero when nothing was posted.
    static int setFile(const char* path);
};
