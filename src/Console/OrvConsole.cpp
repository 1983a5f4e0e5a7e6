#include "Console/OrvConsole.h"

#include "orvane/extender/OrvShell.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxDebugError.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFrame>

#include <iostream>
#include <utility>

namespace {

/// How the console files a message. Not the numbers of `NxDebugError::Severity`.
enum class Category : std::int32_t { Error = 0, Information = 1, Warning = 2 };

Category categoryOf(const NxError& error)
{
    switch (NxDebugError::severityOf(error)) {
    case NxDebugError::Error:
        break;
    case NxDebugError::Warning:
        return Category::Warning;
    case NxDebugError::Information:
        return Category::Information;
    }
    return Category::Error;
}

} // namespace

/// One error on its way to the thread of the user interface.
class OrvConsole::ConsoleEvent final : QEvent {
public:
    // Contract: the first type that is free for applications, not a registered one.
    static constexpr Type eventType = User;

    explicit ConsoleEvent(const QString& text)
        : QEvent(eventType)
        , m_text(text)
    {
    }

    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    [[nodiscard]] std::int32_t category() const noexcept { return m_category; }
    /// Any value but those of an information and a warning means an error.
    void setCategory(std::int32_t category) noexcept { m_category = category; }

private:
    friend OrvConsole; // which posts and receives it as a QEvent

    QString m_text;
    std::int32_t m_category = static_cast<std::int32_t>(Category::Error);
};

OrvConsole::OrvConsole()
{
    m_name = "Console";
    m_author = "KLD";
    m_description = "A console which prints the standard output and error.";
    m_version = "1.0.0";
}

OrvConsole::~OrvConsole() = default;

void OrvConsole::activate()
{
    OrvShell* const shell = OrvShell::getInstance();
    shell->announceExtension(this, 1);
    OrvExtension::activate();
    m_dockWidget->setWidget(m_consoleFrameWidget);
    m_dockWidget->setWindowTitle(QStringLiteral("Console"));
    if (NxPreferences::getBool("ORVANE_STDOUT_CAPTURE", 1) != 0) {
        m_stderrRedirector = std::make_unique<Redirector>(std::cerr, &consoleErrorStreamCallback, this);
        m_stdoutRedirector = std::make_unique<Redirector>(std::cout, &consoleOutputStreamCallback, this);
    }
    shell->addDockWidget(m_dockWidget, Qt::BottomDockWidgetArea);
    show();
}

void OrvConsole::deactivate()
{
    OrvExtension::deactivate();
    m_dockWidget->setWidget(nullptr);
    m_stderrRedirector.reset();
    m_stdoutRedirector.reset();
    OrvShell* const shell = OrvShell::getInstance();
    shell->removeDockWidget(m_dockWidget);
    hide();
    shell->withdrawExtension(this);
}

void OrvConsole::hide()
{
    OrvExtension::hide();
    m_dockWidget->hide();
    m_consoleFrameWidget->hide();
}

void OrvConsole::load()
{
    m_dockWidget = new QDockWidget;
    m_consoleFrameWidget = new QFrame(m_dockWidget);
    setupUi(m_consoleFrameWidget);
    m_outputErrors = true;
    m_outputInfos = true;
    m_outputWarnings = true;
    connect(m_clearButton, &QPushButton::clicked, this, &OrvConsole::clear);
    connect(m_errorsButton, &QPushButton::toggled, this, &OrvConsole::outputErrors);
    connect(m_infosButton, &QPushButton::toggled, this, &OrvConsole::outputInfos);
    connect(m_saveButton, &QPushButton::clicked, this, &OrvConsole::save);
    connect(m_warningsButton, &QPushButton::toggled, this, &OrvConsole::outputWarnings);
    m_messages = std::make_unique<orvane::MessageQueue>(*m_consoleOutput);
    // Contract: the former handlers aren't called meanwhile.
    m_errorCapture.begin(&handleError, this);
}

void OrvConsole::show()
{
    OrvExtension::show();
    m_dockWidget->show();
    m_consoleFrameWidget->show();
}

void OrvConsole::unload()
{
    m_messages.reset();
    delete std::exchange(m_consoleFrameWidget, nullptr);
    delete std::exchange(m_dockWidget, nullptr);
    m_errorCapture.end();
}

bool OrvConsole::event(QEvent* event)
{
    if (event->type() == ConsoleEvent::eventType)
        receive(*static_cast<ConsoleEvent*>(event));
    return QObject::event(event);
}

void OrvConsole::receive(const ConsoleEvent& event)
{
    // An error may still be in the event queue when the view is gone.
    if (m_messages == nullptr)
        return;
    const Channel channel = channelOf(event.category());
    if (channel.isShown)
        m_messages->add(channel.color, event.text());
}

OrvConsole::Channel OrvConsole::channelOf(std::int32_t category) const
{
    switch (static_cast<Category>(category)) {
    case Category::Information:
        return {m_outputInfos, m_infoColor};
    case Category::Warning:
        return {m_outputWarnings, m_warningColor};
    default:
        return {m_outputErrors, m_errorColor};
    }
}

void OrvConsole::clear()
{
    m_messages->clearView();
}

// Contract: the flags don't read the buttons. Both start on, and each toggle inverts the flag once.
void OrvConsole::outputErrors()
{
    m_outputErrors = !m_outputErrors;
}

void OrvConsole::outputInfos()
{
    m_outputInfos = !m_outputInfos;
}

void OrvConsole::outputWarnings()
{
    m_outputWarnings = !m_outputWarnings;
}

void OrvConsole::save()
{
    const QString fileName = QFileDialog::getSaveFileName(m_consoleFrameWidget, tr("Save the content of the console"),
        QStringLiteral("."), tr("Console outputs (*.txt)"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    // Contract: the file isn't truncated, so a longer one keeps its remainder behind the text.
    if (file.open(QIODevice::ReadWrite | QIODevice::Text))
        file.write(m_consoleOutput->toPlainText().toLatin1().constData());
}

/// Runs on the thread that reports the error, so it touches no widget.
void OrvConsole::handleError(const NxError* error, void* console)
{
    auto message = std::make_unique<ConsoleEvent>(QString::fromUtf8(error->getDebugString().toUtf8()));
    message->setCategory(static_cast<std::int32_t>(categoryOf(*error)));
    QCoreApplication::postEvent(static_cast<OrvConsole*>(console), message.release());
}

void OrvConsole::appendStreamed(std::int32_t category, const char* text)
{
    const Channel channel = channelOf(category);
    if (channel.isShown)
        m_messages->show(channel.color, QString::fromUtf8(text));
}

void consoleErrorStreamCallback(const char* text, std::streamsize /*count*/, void* userData)
{
    static_cast<OrvConsole*>(userData)->appendStreamed(static_cast<std::int32_t>(Category::Error), text);
}

void consoleOutputStreamCallback(const char* text, std::streamsize /*count*/, void* userData)
{
    static_cast<OrvConsole*>(userData)->appendStreamed(static_cast<std::int32_t>(Category::Information), text);
}
