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
        {.key = QStringLiteral("look/theme"),
            .page = SettingPage::General,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("system"),
            .title = QT_TRANSLATE_NOOP("Settings", "Theme"),
            .description = QT_TRANSLATE_NOOP("Settings", "Whether the windows are light, dark, or as the desktop is."),
            .choices = {{"system", QT_TRANSLATE_NOOP("Settings", "As the desktop")},
                {"light", QT_TRANSLATE_NOOP("Settings", "Light")}, {"dark", QT_TRANSLATE_NOOP("Settings", "Dark")}},
            .preference = "ORVANE_THEME"},
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

Settings surfaceSettings()
{
    return {
        {.key = QStringLiteral("view/shading"),
            .page = SettingPage::View,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("shaded"),
            .title = QT_TRANSLATE_NOOP("Settings", "Shading"),
            .description = QT_TRANSLATE_NOOP("Settings", "How surfaces are colored."),
            .choices
            = {{"shaded", QT_TRANSLATE_NOOP("Settings", "Shaded")}, {"unlit", QT_TRANSLATE_NOOP("Settings", "Unlit")},
                {"normals", QT_TRANSLATE_NOOP("Settings", "Normals")},
                {"checker", QT_TRANSLATE_NOOP("Settings", "Texture coordinates")},
                {"vertexColors", QT_TRANSLATE_NOOP("Settings", "Vertex colors")}}},
        {.key = QStringLiteral("view/wireframe"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Wireframe"),
            .description = QT_TRANSLATE_NOOP("Settings", "Surfaces show their edges alone.")},
        {.key = QStringLiteral("view/wires"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Wireframe over surfaces"),
            .description = QT_TRANSLATE_NOOP("Settings", "Shows the sides of the triangles over the surfaces.")},
        {.key = QStringLiteral("view/headLight"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Head light"),
            .description = QT_TRANSLATE_NOOP("Settings", "Adds a light at the viewer's eye to those of the scene.")},
    };
}

Settings guideSettings()
{
    return {
        {.key = QStringLiteral("view/background"),
            .page = SettingPage::View,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("window"),
            .title = QT_TRANSLATE_NOOP("Settings", "Background"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "What is behind the scene, so that lines and points of any color are seen."),
            .choices = {{"window", QT_TRANSLATE_NOOP("Settings", "As the window")},
                {"light", QT_TRANSLATE_NOOP("Settings", "Light")}, {"dark", QT_TRANSLATE_NOOP("Settings", "Dark")}}},
        {.key = QStringLiteral("view/grid"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Ground grid"),
            .description = QT_TRANSLATE_NOOP("Settings", "Shows a grid on the plane of x and z.")},
        {.key = QStringLiteral("view/axes"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Axes"),
            .description = QT_TRANSLATE_NOOP("Settings", "Shows the axes: x red, y green, z blue.")},
        {.key = QStringLiteral("view/boundingBoxes"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Bounding boxes"),
            .description = QT_TRANSLATE_NOOP("Settings", "Shows a box around each mesh.")},
        {.key = QStringLiteral("view/symbols"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Symbols"),
            .description = QT_TRANSLATE_NOOP("Settings", "Shows lights and cameras as symbols, which can be clicked.")},
        {.key = QStringLiteral("view/statistics"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Statistics"),
            .description
            = QT_TRANSLATE_NOOP("Settings", "Shows nodes, triangles, draw calls, memory and time of the picture.")},
    };
}

Settings handleSettings()
{
    return {
        {.key = QStringLiteral("view/handles"),
            .page = SettingPage::View,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("none"),
            .title = QT_TRANSLATE_NOOP("Settings", "Handles"),
            .description = QT_TRANSLATE_NOOP("Settings", "Which handles the selected nodes have in the view."),
            .choices
            = {{"none", QT_TRANSLATE_NOOP("Settings", "None")}, {"move", QT_TRANSLATE_NOOP("Settings", "Move")},
                {"turn", QT_TRANSLATE_NOOP("Settings", "Turn")}, {"scale", QT_TRANSLATE_NOOP("Settings", "Scale")}}},
        {.key = QStringLiteral("view/handleAxes"),
            .page = SettingPage::View,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("world"),
            .title = QT_TRANSLATE_NOOP("Settings", "Axes of handles"),
            .description = QT_TRANSLATE_NOOP("Settings", "The axes along which handles move, turn and scale."),
            .choices = {{"world", QT_TRANSLATE_NOOP("Settings", "Those of the scene")},
                {"parent", QT_TRANSLATE_NOOP("Settings", "Those of the group above")},
                {"own", QT_TRANSLATE_NOOP("Settings", "Those of the node")}}},
    };
}

Settings navigationSettings()
{
    return {
        {.key = QStringLiteral("view/samples"),
            .page = SettingPage::View,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("4"),
            .title = QT_TRANSLATE_NOOP("Settings", "Smooth edges"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "How many samples each pixel has. More are smoother and need more of the GPU."),
            .choices = {{"0", QT_TRANSLATE_NOOP("Settings", "Off")}, {"2", QT_TRANSLATE_NOOP("Settings", "2 samples")},
                {"4", QT_TRANSLATE_NOOP("Settings", "4 samples")}, {"8", QT_TRANSLATE_NOOP("Settings", "8 samples")}}},
        {.key = QStringLiteral("view/orbitPicked"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Orbit about the picked point"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "A drag goes round what is under the pointer, rather than round the middle of the picture.")},
        {.key = QStringLiteral("view/animate"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Animate the view"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "Views from the sides, framing and bookmarks are reached by a short movement, where the desktop allows "
                "it.")},
        {.key = QStringLiteral("view/flySpeed"),
            .page = SettingPage::View,
            .kind = Kind::Number,
            .defaultValue = 1.0,
            .title = QT_TRANSLATE_NOOP("Settings", "Fly speed"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "How often as fast as usual flights through the scene are. The wheel changes it during a flight."),
            .range = {.least = 0.01, .most = 100, .decimals = 2}},
        {.key = QStringLiteral("view/isOn"),
            .page = SettingPage::View,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Show the view"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "Without it, everything but the view works, on machines where drawing fails. From the next start on."),
            .preference = "ORVANE_VIEW"},
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
        {.key = QStringLiteral("fields/eulerDegrees"),
            .page = SettingPage::Editing,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Rotations in degrees"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "Rotations are shown as three angles in degrees, rather than as an axis and an angle.")},
        {.key = QStringLiteral("lists/statistics"),
            .page = SettingPage::Editing,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Statistics of lists"),
            .description
            = QT_TRANSLATE_NOOP("Settings", "Shows smallest, largest and mean values beside the rows of a list.")},
        {.key = QStringLiteral("editing/manners"),
            .page = SettingPage::Editing,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Help in the editors of plug-ins"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "Adds keys, formulas and messages to the lines in the docks of plug-ins. From the next start on."),
            .preference = "ORVANE_MANNERS"},
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
        {.key = QStringLiteral("files/reloadsByItself"),
            .page = SettingPage::Files,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Reload changed files"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "A file that changes on disk is reloaded without a question while the scene has no changes of your "
                "own.")},
        {.key = QStringLiteral("import/keepGroups"),
            .page = SettingPage::Files,
            .kind = Kind::Switch,
            .defaultValue = false,
            .title = QT_TRANSLATE_NOOP("Settings", "Keep groups of models"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "Imports keep groups that neither hold anything nor move anything, which are left out else."),
            .preference = "ORVANE_KEEP_GROUPS"},
        {.key = QStringLiteral("import/space"),
            .page = SettingPage::Files,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("convert"),
            .title = QT_TRANSLATE_NOOP("Settings", "Axes and units of models"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "What imports do with models whose axes or units differ from those of scenes."),
            .choices = {{"convert", QT_TRANSLATE_NOOP("Settings", "Convert axes and units")},
                {"axes", QT_TRANSLATE_NOOP("Settings", "Convert axes only")},
                {"keep", QT_TRANSLATE_NOOP("Settings", "Keep both")}},
            .preference = "ORVANE_MODEL_SPACE"},
        {.key = QStringLiteral("import/memory"),
            .page = SettingPage::Files,
            .kind = Kind::Number,
            .defaultValue = 4096.0,
            .title = QT_TRANSLATE_NOOP("Settings", "Memory of an import"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "An import that needs more ends with a message. The tool itself goes on in any case."),
            .range = {.least = 64, .most = 1048576, .unit = QT_TRANSLATE_NOOP("Settings", "MiB")},
            .preference = "ORVANE_IMPORT_MEMORY"},
    };
}

Settings recoverySettings()
{
    return {
        {.key = QStringLiteral("recovery/isOn"),
            .page = SettingPage::Recovery,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Keep unsaved changes"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "Unsaved changes are kept on disk, and offered after a crash. From the next start on.")},
        {.key = QStringLiteral("history/limit"),
            .page = SettingPage::Recovery,
            .kind = Kind::Number,
            .defaultValue = 256.0,
            .title = QT_TRANSLATE_NOOP("Settings", "Memory of the history"),
            .description = QT_TRANSLATE_NOOP("Settings", "Beyond it, the oldest steps of undo are dropped."),
            .range = {.least = 1, .most = 1048576, .unit = QT_TRANSLATE_NOOP("Settings", "MiB")},
            .preference = "ORVANE_HISTORY"},
        {.key = QStringLiteral("history/undo"),
            .page = SettingPage::Recovery,
            .kind = Kind::Choice,
            .defaultValue = QStringLiteral("steps"),
            .title = QT_TRANSLATE_NOOP("Settings", "Undo"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "What a step takes back: all that changed, or what the commands of plug-ins take back by themselves. "
                "From the next scene on."),
            .choices = {{"steps", QT_TRANSLATE_NOOP("Settings", "All that changed")},
                {"commands", QT_TRANSLATE_NOOP("Settings", "By the commands")}},
            .preference = "ORVANE_UNDO"},
    };
}

Settings logSettings()
{
    return {
        {.key = QStringLiteral("log/capturesOutput"),
            .page = SettingPage::Log,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Capture the output"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "The console shows what the program and its plug-ins print. When the console is activated the next "
                "time."),
            .preference = "ORVANE_STDOUT_CAPTURE"},
        {.key = QStringLiteral("log/lines"),
            .page = SettingPage::Log,
            .kind = Kind::Number,
            .defaultValue = 100'000.0,
            .title = QT_TRANSLATE_NOOP("Settings", "Lines of the log"),
            .description = QT_TRANSLATE_NOOP("Settings",
                "How many lines the log keeps at most; the oldest ones are dropped. It takes up to 32 MiB of memory "
                "for each 100,000 lines."),
            .range = {.least = 1'000, .most = 10'000'000}},
        {.key = QStringLiteral("log/groupEqualLines"),
            .page = SettingPage::Log,
            .kind = Kind::Switch,
            .defaultValue = true,
            .title = QT_TRANSLATE_NOOP("Settings", "Group equal lines"),
            .description = QT_TRANSLATE_NOOP(
                "Settings", "Equal lines of the log that follow each other are one row with their number.")},
    };
}

Settings pluginSettings()
{
    return {
        {.key = QStringLiteral("plugins/folder"),
            .page = SettingPage::Plugins,
            .kind = Kind::Folder,
            .defaultValue = QString(),
            .title = QT_TRANSLATE_NOOP("Settings", "Folder of plug-ins"),
            .description
            = QT_TRANSLATE_NOOP("Settings", "Plug-ins of this folder are loaded too. From the next start on.")},
    };
}

Settings allSettings()
{
    Settings all;
    for (Settings& settings :
        std::array{generalSettings(), surfaceSettings(), guideSettings(), handleSettings(), navigationSettings(),
            editingSettings(), fileSettings(), recoverySettings(), logSettings(), pluginSettings()})
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
