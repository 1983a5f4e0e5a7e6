#include "orvane/app/instance/NewWindow.h"

#include <QCoreApplication>
#include <QProcess>

#include <utility>

namespace {

struct NewWindowTexts {
    Q_DECLARE_TR_FUNCTIONS(NewWindow)
};

NewWindow::Start& startFunction()
{
    static NewWindow::Start start;
    return start;
}

bool startProgram(const QStringList& arguments)
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

/// Arguments of a process are text in QProcess; as a URL every name is.
QString argumentOf(const QString& fileName)
{
    return fileName.isValidUtf16() ? fileName : QString::fromLatin1(orvane::toFileUrl(fileName));
}

} // namespace

void NewWindow::setOptions(const QStringList& options)
{
    setStart([options](const QStringList& arguments) { return startProgram(options + arguments); });
}

void NewWindow::setStart(Start start)
{
    startFunction() = std::move(start);
}

orvane::Result<> NewWindow::open(const QString& fileName)
{
    QStringList arguments{QStringLiteral("--new-window")};
    if (!fileName.isEmpty())
        arguments << QStringLiteral("--") << argumentOf(fileName);
    if (startFunction() && startFunction()(arguments))
        return {};
    return orvane::Failure{NewWindowTexts::tr("Another window can't be opened: the program %1 can't be started.")
                               .arg(QCoreApplication::applicationFilePath())};
}
