#pragma once

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

    QString file;
    QStringList plugins;
    QString profile;
    QString select;
    QList<Assignment> assignments;
    QStringList queries;
    QString exportFile;
    QString screenshotFile;
    QSize size;
    bool list = false;
    bool listExtensions = false;
    bool noSettings = false;
    bool version = false;
    bool help = false;

    /// True when all that is asked for can be done without a window.
    [[nodiscard]] bool isBatch() const;

    struct ParseResult;
    /// `arguments` come with the program's name first.
    [[nodiscard]] static ParseResult parse(const QStringList& arguments);
    /// The text of `--help`.
    [[nodiscard]] static QString helpText();
};

/// The command line, or the message that says why it can't be used.
struct CommandLine::ParseResult {
    CommandLine commandLine;
    QString error;
};
