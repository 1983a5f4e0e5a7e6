#pragma once

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/Result.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine {
    /// One `--set PATH=TEXT`.
    struct Assignment {
        QString path;
        QString text;
    };

    /// The longest side of a window, in pixels, and the most pixels that it may have: 7680x4320 and a little more. A
    /// picture of that size takes 2 GB of memory.
    static constexpr int longestSide = 8192;
    static constexpr qint64 mostPixels = qint64{32} << 20;

    /// The exit status of a check that failed; 1 and 2 are those of warnings and errors.
    static constexpr int checkFailureStatus = 3;

    QString file;
    QString secondFile; // only with `diff`
    QStringList plugins;
    QString profile;
    QString select;
    QList<Assignment> assignments;
    QStringList queries; // paths of fields
    QStringList searches;
    QStringList exportFiles;
    QString screenshotFile;
    QString pictureFile;
    QString camera; // only with `pictureFile`: the path of a camera, or a bookmark
    QString background; // only with `pictureFile`: the name of a color
    QSize size; // of the picture or the window
    bool list = false;
    bool diff = false;
    bool check = false;
    bool json = false;
    bool describe = false;
    QStringList classes; // only with `describe`
    bool listExtensions = false;
    bool watch = false;
    bool reuse = false; // of a running window
    bool newWindow = false;
    bool keepGroups = false;
    bool noPlugins = false; // but those that are named
    bool noSettings = false;
    bool resetSettings = false; // and nothing else, but for `settingsFile`
    QString settingsFile; // in place of the user's own
    bool version = false;
    bool help = false;

    /// The exit status of a run that failed, for whatever reason.
    [[nodiscard]] int failureStatus() const noexcept;
    /// True when all that is asked for can be done without a window.
    [[nodiscard]] bool isBatch() const;
    /// Where settings are read from and written to.
    [[nodiscard]] AppSettings::Mode settingsMode() const noexcept;
    [[nodiscard]] QString settingsFileName() const;
    /// True when plug-ins or profiles have to be loaded, even without a window.
    [[nodiscard]] bool needsExtensions() const;
    /// True when the window is to be one that another process doesn't have.
    [[nodiscard]] bool needsOwnWindow() const;
    /// The options that hold for further windows, too, as arguments.
    [[nodiscard]] QStringList windowOptions() const;
    /// True when a window of this size, in pixels, is within the limits.
    [[nodiscard]] static bool isUsableSize(const QSize& size);

    /// The command line, or why it can't be used. `arguments` begin with the program's name.
    [[nodiscard]] static orvane::Result<CommandLine> parse(const QStringList& arguments);
    /// The text of `--help`.
    [[nodiscard]] static QString helpText();
};
