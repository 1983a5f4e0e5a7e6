#pragma once

#include "meridane/base/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

/// A test of files, in a folder of its own.
class FolderCase : public QObject {
protected:
    /// Makes an empty folder.
    void makeFolder()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        // For the tests that give their rights away.
        QCOMPARE(::chmod(m_folder->path().toLocal8Bit().constData(), 0755), 0);
    }

    /// Writes a file whole. The result is a message if that failed.
    static std::optional<std::string> replace(const std::string& path, const std::string& bytes)
    {
        meridane::FileReplacer replacer;
        if (auto message = replacer.open(path))
            return message;
        if (auto message = replacer.write(bytes.data(), bytes.size()))
            return message;
        return replacer.commit();
    }

    [[nodiscard]] std::string path(const char* name) const
    {
        return m_folder->filePath(QString::fromLatin1(name)).toStdString();
    }
    [[nodiscard]] QByteArray contentOf(const char* name) const
    {
        QFile file(QString::fromStdString(path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// Adds a file, a folder, a pipe, a link to nothing and a link to itself.
    void makeOddities()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::mkdir(path("folder").c_str(), 0755), 0);
        QCOMPARE(::mkfifo(path("pipe").c_str(), 0644), 0);
        QCOMPARE(::symlink("nothing", path("dangling").c_str()), 0);
        QCOMPARE(::symlink("circle", path("circle").c_str()), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};
