#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// Settings by their names.
using Settings = std::map<std::string, std::string, std::less<>>;

/// A line of a settings file that can't be parsed. Line and column count from 1, the column in characters.
struct SettingsProblem {
    int line;
    int column;
    std::string expected;
};

/// The contents of a settings file, and its errors.
struct SettingsText {
    Settings settings;
    std::vector<SettingsProblem> problems;
};

/// Parses the text of a settings file; see `NxPreferences::setFile` for the format.
[[nodiscard]] SettingsText parseSettings(std::string_view text);

} // namespace meridane
