#pragma once

#include "orvane/app/view/picture/ScenePicture.h"

#include <QCommandLineOption>
#include <QString>

class QCommandLineParser;

namespace orvane {

/// The options of the command line, in the order in which the help shows them.
struct CommandOptions {
    QString windowSizes; ///< the limits of a window's size, in words

    QCommandLineOption plugin{
        QStringLiteral("plugin"), QStringLiteral("Load this plug-in as well; repeatable."), QStringLiteral("FILE")};
    QCommandLineOption profile{
        QStringLiteral("profile"), QStringLiteral("Start with this profile."), QStringLiteral("NAME")};
    QCommandLineOption select{QStringLiteral("select"),
        QStringLiteral("Select a node or field, such as /robot/arm.rotation."), QStringLiteral("PATH")};
    QCommandLineOption set{QStringLiteral("set"),
        QStringLiteral("Set a field from its text form, in the order given; repeatable."), QStringLiteral("PATH=TEXT")};
    QCommandLineOption get{
        QStringLiteral("get"), QStringLiteral("Print a field's value; repeatable."), QStringLiteral("PATH")};
    QCommandLineOption find{QStringLiteral("find"),
        QStringLiteral("Print the path of each node that matches, or of each field, such as 't:Mesh hand' or 'f:radius "
                       ">1'; repeatable. docs/query.md describes the words."),
        QStringLiteral("QUERY")};
    QCommandLineOption list{QStringLiteral("list"),
        QStringLiteral("Print each node with its class and each field with its type and value. A node that is "
                       "in several places is printed in full once, then with the path of the first place.")};
    QCommandLineOption diff{QStringLiteral("diff"),
        QStringLiteral(
            "Compare the file with a second one and print each difference: its kind, the path, what the first "
            "file has and what the second one has. The status is 0 if there are none, 1 if there are "
            "some and 2 for an error.")};
    QCommandLineOption describe{QStringLiteral("describe"),
        QStringLiteral("Print what these node classes are, or all: each field's type, default, unit, range and "
                       "description.")};
    QCommandLineOption check{QStringLiteral("check"),
        QStringLiteral(
            "Look for everything that is wrong with the scene and print each problem: the path, error, warning or "
            "information, its identifier and a sentence. The status is 0 if there are no errors and warnings, 1 if "
            "there are warnings, 2 if there are errors and 3 if the file can't be checked.")};
    QCommandLineOption json{QStringLiteral("json"),
        QStringLiteral("Print the differences, the description or the problems as one JSON object.")};
    QCommandLineOption listExtensions{QStringLiteral("list-extensions"),
        QStringLiteral("Print each extension's order, class, name and handled type.")};
    QCommandLineOption exportTo{QStringLiteral("export"),
        QStringLiteral("Write the scene to a file, in the format that its extension names; repeatable."),
        QStringLiteral("FILE")};
    QCommandLineOption screenshot{QStringLiteral("screenshot"),
        QStringLiteral("Write a picture of the window, once it has settled, and quit; needs no display."),
        QStringLiteral("FILE")};
    QCommandLineOption picture{QStringLiteral("picture"),
        QStringLiteral("Write a picture of the scene alone; needs no display. 1920x1080 unless --size is given."),
        QStringLiteral("FILE")};
    QCommandLineOption camera{QStringLiteral("camera"),
        QStringLiteral("Where --picture looks from: the path of a camera, such as /camera, or the name of a bookmark; "
                       "otherwise all of the scene is in view."),
        QStringLiteral("PATH")};
    QCommandLineOption background{QStringLiteral("background"),
        QStringLiteral("The background of --picture: a color, such as white or #203040, or transparent, which it is "
                       "otherwise where the format allows it; else it is white."),
        QStringLiteral("COLOR")};
    QCommandLineOption size{QStringLiteral("size"),
        QStringLiteral("Size of the window in pixels, %1; or that of --picture, %2.")
            .arg(windowSizes, ScenePicture::sizeLimits()),
        QStringLiteral("WxH")};
    QCommandLineOption watch{QStringLiteral("watch"),
        QStringLiteral(
            "Reload the file by itself when it changes on disk, while the scene has no changes of your own.")};
    QCommandLineOption keepGroups{QStringLiteral("keep-groups"),
        QStringLiteral("Keep the groups of models that have one child and no effect, which are joined otherwise.")};
    QCommandLineOption noPlugins{QStringLiteral("no-plugins"),
        QStringLiteral("Load no plug-ins but those that --plugin names, for when one of them does harm.")};
    QCommandLineOption reuse{QStringLiteral("reuse"),
        QStringLiteral("Open the file in the window that was used last, if there is one; without a file, bring that "
                       "window to the front.")};
    QCommandLineOption newWindow{QStringLiteral("new-window"),
        QStringLiteral("Open a window of its own even if the settings let running windows take files.")};
    QCommandLineOption noSettings{QStringLiteral("no-settings"), QStringLiteral("Neither read nor write settings.")};
    QCommandLineOption settings{QStringLiteral("settings"),
        QStringLiteral("Use this file of settings instead of the user's own; it is made if there is none."),
        QStringLiteral("FILE")};
    QCommandLineOption resetSettings{QStringLiteral("reset-settings"),
        QStringLiteral("Begin with the default settings again: keep a copy of the file of settings, and quit.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Print the version.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this help.")};

    /// Adds the options and the arguments.
    void addTo(QCommandLineParser& parser) const;
};

} // namespace orvane
