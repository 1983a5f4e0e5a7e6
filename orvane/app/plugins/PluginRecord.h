#pragma once

#include <QString>
#include <QStringList>

/// What became of a plug-in's file at this start.
struct PluginRecord {
    enum class State {
        Loaded,
        Failed, ///< the message tells why
        LeftOut, ///< it was switched off
        Suspect, ///< a program ended while it was loading it, and the user hasn't decided yet
    };

    QString fileName; ///< as it was found
    State state = State::Loaded;
    QString message = {}; ///< one line, for a failure
    QStringList warnings = {}; ///< what is wrong with it though it was loaded, a line each
    double milliseconds = 0; ///< that loading took
    // What a loaded plug-in says of itself.
    QString name = {};
    QString version = {};
    QString author = {};
    QString description = {};
    QStringList extensions = {}; ///< their names
};
