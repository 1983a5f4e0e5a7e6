#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// Settings by their names.
using Settings = std::map<std::string, std::string, std::less<>>;

/// A place in a settings file that can't be understood. Line and column count from 1, the column in characters.
struct SettingsProblem {
    int line;
    int column;
    std::string expected;
};

/// What a settings file holds, and what is wrong with it.
struct SettingsText {
    Settings settings;
    std::vector<SettingsProblem> problems;
};

/// Takes the text of a settings file apart; see `NxPreferences::setFile` for its form.
[[nodiscard]] SettingsText parseSettings(std::string_view text);

} // namespace meridane
