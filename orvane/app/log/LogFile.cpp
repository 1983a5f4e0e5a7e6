#include "orvane/app/log/LogFile.h"

#include "orvane/app/log/LogModel.h"

#include "meridane/base/Files.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include <numeric>

namespace {

struct LogFileText {
    Q_DECLARE_TR_FUNCTIONS(LogFile)
};

/// A line of the log may name any file, and a click on it must not run one.
bool couldRun(const QFileInfo& file)
{
    return file.isExecutable() || file.suffix().compare(QStringLiteral("desktop"), Qt::CaseInsensitive) == 0;
}

} // namespace

QString orvane::logText(const LogModel& model, const std::vector<int>& rows)
{
    QString text;
    for (const int row : rows)
        text += model.lineText(row) + u'\n';
    return text;
}

orvane::Result<> orvane::writeLog(const LogModel& model, const QString& fileName)
{
    std::vector<int> rows(static_cast<std::size_t>(model.rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    const QByteArray bytes = logText(model, rows).toUtf8();
    meridane::FileReplacer file;
    auto failure = file.open(toStdFileName(fileName));
    if (!failure)
        failure = file.write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!failure)
        failure = file.commit();
    return toResult(failure);
}

orvane::Result<> orvane::openInDesktop(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return Failure{LogFileText::tr("%1 doesn't exist any more.").arg(path)};
    const bool opensFolder = !file.isDir() && couldRun(file);
    const QString opened = opensFolder ? file.absolutePath() : file.absoluteFilePath();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(opened)))
        return Failure{LogFileText::tr("The desktop has no program that opens %1.").arg(opened)};
    return {};
}
