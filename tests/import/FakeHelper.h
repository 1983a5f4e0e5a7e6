#pragma once

#include "orvane/app/base/HelperProcess.h"

#include <QFile>
#include <QTemporaryDir>

/// Replaces the import helper by a shell script with that content.
inline HelperOptions fakeHelper(const QTemporaryDir& folder, const QByteArray& script)
{
    HelperOptions options;
    options.program = folder.filePath(QStringLiteral("helper"));
    QFile file(options.program);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("#!/bin/sh\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return options;
}

/// A command of such a script that writes the head of a packed scene which has no lists and a text of that size.
inline QByteArray packedHead(qsizetype textSize)
{
    const QByteArray head = "text " + QByteArray::number(textSize) + '\n';
    return "printf 'orvane-scene 2 " + QByteArray::number(head.size() + textSize) + "\\ntext "
        + QByteArray::number(textSize) + "\\n'";
}

/// A command that writes a packed scene which has no lists and that text, without a quote or a backslash in it.
inline QByteArray packedText(const QByteArray& text)
{
    return packedHead(text.size()) + "; printf '%s' '" + text + '\'';
}
