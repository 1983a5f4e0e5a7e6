#include "orvane/app/command_line/CommandLine.h"

#include "orvane/app/command_line/CommandOptions.h"
#include "orvane/app/command_line/FoundPlaces.h"
#include "orvane/app/view/picture/ScenePicture.h"

#include <QColor>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using orvane::Failure;
using orvane::Result;

namespace {

using Options = orvane::CommandOptions;

QString sizeLimits()
{
    return QStringLiteral("at most %1 a side and %2 million in all")
        .arg(CommandLine::longestSide)
        .arg(CommandLine::mostPixels / 1000000);
}

// Splits "PATH=TEXT"; the path may contain an equals sign in double quotes only.
Result<CommandLine::Assignment> parseAssignment(const QString& argument)
{
    bool quoted = false;
    for (qsizetype i = 0; i < argument.size(); ++i) {
        const QChar character = argument.at(i);
        if (quoted && character == u'\\')
            ++i;
        else if (character == u'"')
            quoted = !quoted;
        else if (character == u'=' && !quoted) {
            if (i > 0)
                return CommandLine::Assignment{argument.left(i), argument.mid(i + 1)};
            break;
        }
    }
    return Failure{QStringLiteral("--set expects PATH=TEXT, not '%1'.").arg(argument)};
}

Result<QSize> parseSize(const QString& argument, bool isOfPicture)
{
    QSize size;
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,9})x([0-9]{1,9})$"));
    const QRegularExpressionMatch match = pattern.match(argument);
    if (match.hasMatch())
        size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty())
        return Failure{QStringLiteral("--size expects WxH, such as 1280x800, not '%1'.").arg(argument)};
    if (!(isOfPicture ? ScenePicture::isUsableSize(size) : CommandLine::isUsableSize(size)))
        return Failure{QStringLiteral("--size %1 is too large: %2.")
                           .arg(argument, isOfPicture ? ScenePicture::sizeLimits() : sizeLimits())};
    return size;
}

QString nameOf(const QCommandLineOption& option)
{
    return QStringLiteral("--") + option.names().constFirst();
}

Result<> checkFiles(const QStringList& files, bool diff)
{
    if (!diff && files.size() > 1)
        return Failure{QStringLiteral("One file at a time: '%1' is one too many.").arg(files[1])};
    if (files.contains(QString()))
        return Failure{QStringLiteral("The name of the file is empty.")};
    if (diff && files.size() != 2)
        return Failure{
            QStringLiteral("--diff expects two files, such as --diff old.mrd new.mrd, not %1.").arg(files.size())};
    return {};
}

Result<> checkDescribe(const QCommandLineParser& parser, const Options& options)
{
    for (const QCommandLineOption& option : {options.select, options.set, options.get, options.find, options.list,
             options.diff, options.check, options.listExtensions, options.exportTo, options.screenshot, options.picture,
             options.size, options.watch}) {
        if (parser.isSet(option))
            return Failure{
                QStringLiteral("--describe opens no scene, so it can't be used with %1.").arg(nameOf(option))};
    }
    if (parser.positionalArguments().contains(QString()))
        return Failure{QStringLiteral("The name of the class is empty.")};
    return {};
}

Result<> checkWatch(const QCommandLineParser& parser, const Options& options)
{
    if (!parser.isSet(options.watch))
        return {};
    for (const QCommandLineOption& option : {options.get, options.find, options.list, options.diff, options.check,
             options.listExtensions, options.exportTo, options.screenshot, options.picture}) {
        if (parser.isSet(option))
            return Failure{QStringLiteral("--watch needs a window that stays open, so it can't be used with %1.")
                               .arg(nameOf(option))};
    }
    if (parser.positionalArguments().isEmpty())
        return Failure{QStringLiteral("--watch expects a file, such as --watch robot.glb.")};
    return {};
}

Result<> checkSettings(const QCommandLineParser& parser, const Options& options)
{
    if (parser.isSet(options.settings) && parser.isSet(options.noSettings))
        return Failure{QStringLiteral("--settings and --no-settings can't be used together.")};
    if (!parser.isSet(options.resetSettings))
        return {};
    const QStringList used = parser.optionNames() + parser.positionalArguments();
    for (const QString& name : used) {
        if (name != options.resetSettings.names().constFirst() && name != options.settings.names().constFirst()
            && name != parser.value(options.settings))
            return Failure{
                QStringLiteral("--reset-settings does nothing else, so it can't be used with '%1'.").arg(name)};
    }
    return {};
}

/// A running window keeps its own plug-ins and settings, and takes a file to be looked at, not changes from outside.
Result<> checkReuse(const QCommandLineParser& parser, const Options& options)
{
    if (!parser.isSet(options.reuse))
        return {};
    for (const QCommandLineOption& option : {options.plugin, options.profile, options.set, options.get, options.find,
             options.list, options.diff, options.describe, options.check, options.listExtensions, options.exportTo,
             options.screenshot, options.picture, options.size, options.watch, options.newWindow, options.keepGroups,
             options.noPlugins, options.settings}) {
        if (parser.isSet(option))
            return Failure{
                QStringLiteral("--reuse can't be used with %1, which is for a run of its own.").arg(nameOf(option))};
    }
    return {};
}

Result<> checkPictureUse(const QCommandLineParser& parser, const Options& options)
{
    if (!parser.isSet(options.picture)) {
        for (const QCommandLineOption& option : {options.camera, options.background}) {
            if (parser.isSet(option))
                return Failure{QStringLiteral("%1 is for --picture alone.").arg(nameOf(option))};
        }
        return {};
    }
    if (parser.isSet(options.screenshot))
        return Failure{
            QStringLiteral("--picture and --screenshot can't be used together: --size would mean either of them.")};
    if (const QString color = parser.value(options.background);
        parser.isSet(options.background) && !QColor::isValidColor(color))
        return Failure{QStringLiteral("--background expects a color, such as white, #203040 or transparent, not '%1'.")
                           .arg(color)};
    return {};
}

// Refuses what the parser accepts although it would be ignored, or mistaken for an option that wasn't given.
Result<> checkUse(const QCommandLineParser& parser, const Options& options)
{
    for (const QCommandLineOption& option :
        {options.plugin, options.profile, options.select, options.set, options.get, options.find, options.exportTo,
            options.screenshot, options.picture, options.camera, options.background, options.size, options.settings}) {
        if (parser.values(option).contains(QString()))
            return Failure{QStringLiteral("%1 expects %2, not an empty text.").arg(nameOf(option), option.valueName())};
    }
    // Names of files may be any bytes.
    for (const QCommandLineOption& option :
        {options.plugin, options.profile, options.select, options.set, options.get, options.find, options.camera}) {
        const QStringList values = parser.values(option);
        if (!std::all_of(values.begin(), values.end(), [](const QString& value) { return value.isValidUtf16(); }))
            return Failure{QStringLiteral("%1 expects UTF-8.").arg(nameOf(option))};
    }
    for (const QCommandLineOption& option : {options.profile, options.select, options.screenshot, options.picture,
             options.camera, options.background, options.size, options.settings}) {
        if (parser.values(option).size() > 1)
            return Failure{QStringLiteral("%1 can be given once only.").arg(nameOf(option))};
    }
    if (auto settings = checkSettings(parser, options); !settings)
        return settings;
    if (auto watch = checkWatch(parser, options); !watch)
        return watch;
    if (auto reuse = checkReuse(parser, options); !reuse)
        return reuse;
    if (auto picture = checkPictureUse(parser, options); !picture)
        return picture;
    if (parser.isSet(options.diff) && parser.isSet(options.check))
        return Failure{
            QStringLiteral("--diff and --check can't be used together: each has an exit status of its own.")};
    if (parser.isSet(options.json) && !parser.isSet(options.diff) && !parser.isSet(options.describe)
        && !parser.isSet(options.check))
        return Failure{QStringLiteral("--json is for --diff, --describe and --check alone.")};
    return parser.isSet(options.describe) ? checkDescribe(parser, options)
                                          : checkFiles(parser.positionalArguments(), parser.isSet(options.diff));
}

/// Desktops and other programs may name a file by its URL.
QString fileArgument(const QString& argument)
{
    return argument.startsWith(QStringLiteral("file:///")) ? orvane::fromFileUrl(argument.toUtf8()) : argument;
}

/// Takes over what needs no check.
void takeValues(const QCommandLineParser& parser, const Options& options, CommandLine& result)
{
    result.describe = parser.isSet(options.describe);
    if (result.describe) {
        result.classes = parser.positionalArguments();
    } else {
        result.file = fileArgument(parser.positionalArguments().value(0));
        result.secondFile = fileArgument(parser.positionalArguments().value(1));
    }
    result.plugins = parser.values(options.plugin);
    result.profile = parser.value(options.profile);
    result.select = parser.value(options.select);
    result.queries = parser.values(options.get);
    result.searches = parser.values(options.find);
    result.exportFiles = parser.values(options.exportTo);
    result.screenshotFile = parser.value(options.screenshot);
    result.pictureFile = parser.value(options.picture);
    result.camera = parser.value(options.camera);
    result.background = parser.value(options.background);
    result.list = parser.isSet(options.list);
    result.diff = parser.isSet(options.diff);
    result.check = parser.isSet(options.check);
    result.json = parser.isSet(options.json);
    result.listExtensions = parser.isSet(options.listExtensions);
    result.watch = parser.isSet(options.watch);
    result.reuse = parser.isSet(options.reuse);
    result.newWindow = parser.isSet(options.newWindow);
    result.keepGroups = parser.isSet(options.keepGroups);
    result.noPlugins = parser.isSet(options.noPlugins);
    result.noSettings = parser.isSet(options.noSettings);
    result.resetSettings = parser.isSet(options.resetSettings);
    result.settingsFile = parser.value(options.settings);
}

} // namespace

int CommandLine::failureStatus() const noexcept
{
    return check ? checkFailureStatus : diff ? 2 : 1;
}

bool CommandLine::isBatch() const
{
    const bool asksForOutput = describe || list || diff || check || listExtensions || !queries.isEmpty()
        || !searches.isEmpty() || !exportFiles.isEmpty() || !pictureFile.isEmpty();
    return asksForOutput && screenshotFile.isEmpty();
}

AppSettings::Mode CommandLine::settingsMode() const noexcept
{
    return noSettings ? AppSettings::Mode::None : AppSettings::Mode::File;
}

QString CommandLine::settingsFileName() const
{
    return settingsFile.isEmpty() ? AppSettings::defaultFileName() : QFileInfo(settingsFile).absoluteFilePath();
}

bool CommandLine::needsExtensions() const
{
    return !isBatch() || listExtensions || !plugins.isEmpty() || !profile.isEmpty();
}

bool CommandLine::needsOwnWindow() const
{
    return newWindow || watch || keepGroups || noPlugins || noSettings || size.isValid() || !plugins.isEmpty()
        || !profile.isEmpty() || !assignments.isEmpty();
}

QStringList CommandLine::windowOptions() const
{
    QStringList result;
    if (noPlugins)
        result.append(QStringLiteral("--no-plugins"));
    if (noSettings)
        result.append(QStringLiteral("--no-settings"));
    for (const QString& plugin : plugins)
        result << QStringLiteral("--plugin") << orvane::absoluteFileName(plugin);
    return result;
}

bool CommandLine::isUsableSize(const QSize& size)
{
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide
        && qint64{size.width()} * size.height() <= mostPixels;
}

Result<CommandLine> CommandLine::parse(const QStringList& arguments)
{
    const Options options{.windowSizes = sizeLimits()};
    QCommandLineParser parser;
    options.addTo(parser);
    if (!parser.parse(arguments))
        return Failure{parser.errorText()};

    CommandLine result;
    result.help = parser.isSet(options.help);
    result.version = parser.isSet(options.version);
    if (result.help || result.version)
        return result;

    if (const auto use = checkUse(parser, options); !use)
        return Failure{use.error()};
    takeValues(parser, options, result);
    for (const QString& argument : parser.values(options.set)) {
        const auto assignment = parseAssignment(argument);
        if (!assignment)
            return Failure{assignment.error()};
        result.assignments.append(assignment.value());
    }
    for (const QString& search : result.searches) {
        if (const auto query = FoundPlaces::parse(search); !query)
            return Failure{query.error()};
    }
    if (parser.isSet(options.size)) {
        const auto size = parseSize(parser.value(options.size), !result.pictureFile.isEmpty());
        if (!size)
            return Failure{size.error()};
        result.size = size.value();
    }

    const bool needsScene = result.list || result.check || !result.queries.isEmpty() || !result.searches.isEmpty()
        || !result.assignments.isEmpty() || !result.select.isEmpty() || !result.exportFiles.isEmpty()
        || !result.pictureFile.isEmpty();
    if (needsScene && result.file.isEmpty())
        return Failure{QStringLiteral(
            "A file is missing: --get, --set, --find, --list, --check, --select, --export and --picture work on one.")};
    return result;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Inspects and edits a 3D scene graph."));
    Options{.windowSizes = sizeLimits()}.addTo(parser);
    // Before there is an application object the parser doesn't know the program's name.
    return parser.helpText().replace(QLatin1String("<executable_name>"), QLatin1String("orvane"));
}
