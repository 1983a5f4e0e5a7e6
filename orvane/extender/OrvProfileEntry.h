#pragma once

#include <QString>
#include <QStringList>

/// The part of a profile about one extension that runs by itself.
struct OrvProfileEntry {
    /// The extension's name, or "*" for every one that no other entry names.
    QString extension;
    /// False keeps the extension from running.
    bool runs = true;
    /// The names of the controlled extensions; "*" means all.
    QStringList controlled;
};
