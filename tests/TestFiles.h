#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Writes a file whole, in place of a former one. Ends the test program if that fails.
inline void writeFile(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("%s can't be written: %s", qPrintable(fileName), qPrintable(file.errorString()));
}

/// The content of a file; null if it can't be read.
inline QByteArray readFile(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
