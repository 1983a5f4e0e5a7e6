#include "orvane/app/command_line/CommandOptions.h"

#include <QCommandLineParser>

void orvane::CommandOptions::addTo(QCommandLineParser& parser) const
{
    parser.addOptions({plugin, profile, select, set, get, find, list, diff, describe, check, json, listExtensions,
        exportTo, screenshot, picture, camera, background, size, watch, reuse, newWindow, keepGroups, noPlugins,
        noSettings, settings, resetSettings, version, help});
    parser.addPositionalArgument(QStringLiteral("file"),
        QStringLiteral("The scene (.mrd) or any model that the import library reads."), QStringLiteral("[file]"));
    parser.addPositionalArgument(
        QStringLiteral("second file"), QStringLiteral("With --diff."), QStringLiteral("[second file]"));
    parser.addPositionalArgument(
        QStringLiteral("classes"), QStringLiteral("With --describe, instead of files."), QStringLiteral("[classes]"));
}
