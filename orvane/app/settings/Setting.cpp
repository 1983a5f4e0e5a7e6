#include "orvane/app/settings/Setting.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype longestText = 4096;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

QString translated(const char* text)
{
    return *text == '\0' ? QString() : QCoreApplication::translate("Settings", text);
}

std::optional<QVariant> usableSwitch(const QVariant& stored)
{
    if (stored.typeId() == QMetaType::Bool)
        return stored;
    const QString word = stored.toString().toLower();
    for (const char* const on : {"true", "1", "on", "yes"}) {
        if (word == QLatin1String(on))
            return true;
    }
    for (const char* const off : {"false", "0", "off", "no"}) {
        if (word == QLatin1String(off))
            return false;
    }
    return std::nullopt;
}

std::optional<QVariant> usableNumber(const QVariant& stored, const Setting::Range& range)
{
    bool isNumber = false;
    const double number = stored.toDouble(&isNumber);
    const bool isInside = isNumber && std::isfinite(number) && number >= range.least && number <= range.most;
    if (!isInside || stored.typeId() == QMetaType::Bool || (range.decimals == 0 && number != std::floor(number)))
        return std::nullopt;
    return number;
}

/// As in the file and as it is typed: with a point, and without digits that say nothing.
QString numberText(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

} // namespace

QString Setting::titleText() const
{
    return translated(title);
}

QString Setting::descriptionText() const
{
    return translated(description);
}

QString Setting::unitText() const
{
    return translated(range.unit);
}

QString Setting::valueText(const QVariant& value) const
{
    switch (kind) {
    case Kind::Switch:
        return value.toBool() ? Texts::tr("On") : Texts::tr("Off");
    case Kind::Number: {
        const QString unit = unitText();
        const QString number = numberText(value.toDouble());
        return unit.isEmpty() ? number : number + u' ' + unit;
    }
    case Kind::Choice: {
        const auto found = std::find_if(choices.begin(), choices.end(),
            [&value](const Choice& choice) { return value.toString() == QLatin1String(choice.value); });
        return found == choices.end() ? value.toString() : translated(found->title);
    }
    case Kind::Text:
        return value.toString().isEmpty() ? Texts::tr("empty") : value.toString();
    case Kind::Folder:
        return value.toString().isEmpty() ? Texts::tr("no folder") : QDir::toNativeSeparators(value.toString());
    }
    return {};
}

QString Setting::allowedText() const
{
    switch (kind) {
    case Kind::Switch:
        return Texts::tr("true or false");
    case Kind::Number:
        return Texts::tr("from %1 to %2").arg(numberText(range.least), valueText(range.most));
    case Kind::Choice: {
        QStringList values;
        for (const Choice& choice : choices)
            values.append(QLatin1String(choice.value));
        return values.join(QStringLiteral(", "));
    }
    case Kind::Text:
        return {};
    case Kind::Folder:
        return Texts::tr("a path from the root");
    }
    return {};
}

std::optional<QVariant> Setting::usable(const QVariant& stored) const
{
    switch (kind) {
    case Kind::Switch:
        return usableSwitch(stored);
    case Kind::Number:
        return usableNumber(stored, range);
    case Kind::Choice: {
        const QString text = stored.toString();
        const bool isChoice = std::any_of(choices.begin(), choices.end(),
            [&text](const Choice& choice) { return text == QLatin1String(choice.value); });
        return isChoice ? std::optional<QVariant>(text) : std::nullopt;
    }
    case Kind::Text:
    case Kind::Folder: {
        const QString text = stored.toString();
        const bool isText = stored.typeId() == QMetaType::QString && text.size() <= longestText
            && !text.contains(QChar::Null) && !text.contains(u'\n');
        const bool isUsable = isText && (kind == Kind::Text || text.isEmpty() || QDir::isAbsolutePath(text));
        return isUsable ? std::optional<QVariant>(text) : std::nullopt;
    }
    }
    return std::nullopt;
}

QString orvane::pageTitle(SettingPage page)
{
    switch (page) {
    case SettingPage::General:
        return Texts::tr("General");
    case SettingPage::View:
        return Texts::tr("View");
    case SettingPage::Editing:
        return Texts::tr("Editing");
    case SettingPage::Files:
        return Texts::tr("Files");
    case SettingPage::Recovery:
        return Texts::tr("Recovery and History");
    case SettingPage::Log:
        return Texts::tr("Log");
    case SettingPage::Plugins:
        return Texts::tr("Plug-ins");
    case SettingPage::Keys:
        return Texts::tr("Keys");
    }
    return {};
}

QString orvane::pageName(SettingPage page)
{
    switch (page) {
    case SettingPage::General:
        return QStringLiteral("General");
    case SettingPage::View:
        return QStringLiteral("View");
    case SettingPage::Editing:
        return QStringLiteral("Editing");
    case SettingPage::Files:
        return QStringLiteral("Files");
    case SettingPage::Recovery:
        return QStringLiteral("Recovery and History");
    case SettingPage::Log:
        return QStringLiteral("Log");
    case SettingPage::Plugins:
        return QStringLiteral("Plug-ins");
    case SettingPage::Keys:
        return QStringLiteral("Keys");
    }
    return {};
}
