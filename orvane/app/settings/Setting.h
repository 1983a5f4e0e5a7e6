#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <array>
#include <optional>

/// The pages of the Settings window, in their order.
enum class SettingPage { General, View, Editing, Files, Recovery, Log, Plugins, Keys };

inline constexpr std::array allSettingPages{SettingPage::General, SettingPage::View, SettingPage::Editing,
    SettingPage::Files, SettingPage::Recovery, SettingPage::Log, SettingPage::Plugins, SettingPage::Keys};

/// A setting of the user: what it is called, which values it may have, and which one it has by default.
///
/// All settings are in one list (`orvane::settingList`); what is kept in the same file and isn't listed, such as recent
/// files, is the tool's memory. Texts are sources of translation in the context "Settings".
struct Setting {
    enum class Kind { Switch, Number, Choice, Text, Folder };
    struct Choice {
        const char* value; ///< in the file
        const char* title;
    };
    struct Range {
        double least = 0;
        double most = 0;
        int decimals = 0; ///< 0 for whole numbers
        const char* unit = ""; ///< behind the number, such as "MiB"
    };

    QString key; ///< in the file, such as "view/grid"
    SettingPage page = SettingPage::General;
    Kind kind = Kind::Switch;
    QVariant defaultValue = false; ///< bool, double or QString, by the kind
    const char* title = "";
    const char* description = ""; ///< one or two sentences: what it does, and when it takes effect if not at once
    QList<Choice> choices = {}; ///< of a choice
    Range range = {}; ///< of a number
    /// The toolkit preference that the setting sets, or an environment variable that sets it for one run; or null.
    const char* preference = nullptr;

    [[nodiscard]] QString titleText() const;
    [[nodiscard]] QString descriptionText() const;
    [[nodiscard]] QString unitText() const;
    /// The value as a user reads it: "On", "64 MiB", the title of a choice.
    [[nodiscard]] QString valueText(const QVariant& value) const;
    /// The values that are allowed, such as "from 1 to 64 MiB"; empty where all are.
    [[nodiscard]] QString allowedText() const;

    /// A value as the setting's type has it, or nothing if it can't be used: of another type, out of range, no choice.
    /// Values of files and of environment variables are texts.
    [[nodiscard]] std::optional<QVariant> usable(const QVariant& stored) const;
};

namespace orvane {

[[nodiscard]] QString pageTitle(SettingPage page);
/// The page's name in the documentation and in what is remembered; not translated.
[[nodiscard]] QString pageName(SettingPage page);

} // namespace orvane
