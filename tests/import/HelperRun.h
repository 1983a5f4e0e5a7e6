#pragma once

#include "Patience.h"
#include "import/SceneOf.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

/// What a run of the import helper gave.
struct HelperRun {
    int status = -1;
    bool crashed = false;
    std::string output;
    QString error;

    /// The last line of what it said.
    [[nodiscard]] QString message() const { return error.trimmed().section(QLatin1Char('\n'), -1); }
};

/// The helper that was built along with the tests.
inline QString helperProgram()
{
    return QString::fromUtf8(ORVANE_IMPORT_PROGRAM);
}

inline HelperRun runHelper(const QStringList& arguments, const std::string& input = {})
{
    QProcess process;
    process.start(helperProgram(), arguments);
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    HelperRun run;
    if (!process.waitForFinished(testPatience))
        return run;
    run.status = process.exitCode();
    run.crashed = process.exitStatus() != QProcess::NormalExit;
    run.output = process.readAllStandardOutput().toStdString();
    run.error = QString::fromUtf8(process.readAllStandardError());
    return run;
}

/// A file of the models that the tests come with.
inline QString modelFile(const char* name)
{
    return QString::fromUtf8(ORVANE_TEST_MODELS) + QLatin1Char('/') + QString::fromUtf8(name);
}
