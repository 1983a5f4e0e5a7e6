#include "orvane/app/command_line/StandardOutput.h"

#include "orvane/app/base/PlainText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace orvane {

StandardOutput::StandardOutput()
    : m_stream(stdout)
{
}

Result<> StandardOutput::finish()
{
    m_stream.flush();
    if (m_stream.status() == QTextStream::Ok && std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return {};
    return Failure{QStringLiteral("standard output: %1").arg(qt_error_string())};
}

QString jsonLine(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void printError(const QString& message)
{
    std::fprintf(stderr, "orvane: %s\n", qPrintable(oneLine(message)));
}

} // namespace orvane
