#include "orvane/app/settings/SettingList.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

using Kind = Setting::Kind;
using Settings = std::vector<Setting>;

Settings generalSettings()
{
    return {
        {.key = QStringLiteral("look/language"),
            .page = SettingPage::General,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("system"),
            .title = QT_TRANSLATE_NOOP("Settings", "Language"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "The language of the texts. Numbers and dates are written as the desktop has them in any language."),
            // Each in its own language, so that everybody finds it.
            .choices
            = {{"system", QT_TRANSLATE_NOOP("Settings", "As the desktop")}, {"en", "English"}, {"de", "Deutsch"}}},
    };
}

Settings editingSettings()
{
    return {
        {.key = QStringLiteral("structure/keepPlace"),
            .page = SettingPage::Editing,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Keep places"),
            .description
            = QT_TRANSLATE_NOOP("Settings", "Nodes stay where they are in the world when they move to other groups.")},
    };
}

Settings fileSettings()
{
    return {
        {.key = QStringLiteral("files/oneWindow"),
            .page = SettingPage::Files,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Open files in a running window"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "A file that is opened from a file manager or a terminal comes to the window that was used last, which "
                "asks about unsaved changes. Otherwise each has a window of its own.")},
    };
}

Settings allSettings()
{
    Settings all;
    for (Settings& settings : std::array{generalSettings(), editingSettings(), fileSettings()})
        std::move(settings.begin(), settings.end(), std::back_inserter(all));
    return all;
}

} // namespace

const std::vector<Setting>& orvane::settingList()
{
    static const Settings list = allSettings();
    return list;
}

const Setting* orvane::findSetting(QStringView key)
{
    const Settings& list = settingList();
    const auto found
        = std::find_if(list.begin(), list.end(), [key](const Setting& setting) { return setting.key == key; });
    return found == list.end() ? nullptr : &*found;
}
