#pragma once

#include "Patience.h"
#include "TestFiles.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A test that runs the program to its end, without a display, in a folder of its own.
class ProgramCase : public QObject {
protected:
    struct Outcome {
        /// -1 when the program crashed or didn't end.
        int status = -1;
        QByteArray output;
        QByteArray errors;
    };

    /// Gives the test an empty folder.
    void makeFolder() { m_folder = std::make_unique<QTemporaryDir>(); }

    [[nodiscard]] QString folder() const { return m_folder->path(); }
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const { writeFile(path(name), bytes); }

    [[nodiscard]] QByteArray read(const QString& name) const { return readFile(path(name)); }

    /// Runs the program from the test's folder, in a shell that first does what `ahead` says.
    [[nodiscard]] Outcome run(const QStringList& arguments, const QString& ahead = {}) const
    {
        return runShell(ahead + QStringLiteral(" exec \"$0\" \"$@\""),
            QStringList{QStringLiteral(ORVANE_PROGRAM), QStringLiteral("--no-settings")} + arguments);
    }

    /// Runs a command of the shell from the test's folder; the arguments are $0, $1 and so on.
    [[nodiscard]] Outcome runShell(const QString& command, const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder());
        process.start(QStringLiteral("/bin/sh"), QStringList{QStringLiteral("-c"), command} + arguments);
        if (!process.waitForFinished(testPatience) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
