#pragma once

#include "orvane/app/HelperProcess.h"

#include <QFile>
#include <QTemporaryDir>

/// A stand-in for the import helper: a shell script with that content.
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
