#include "Console/OrvConsole.h"

#include "orvane/extender/OrvShell.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFrame>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextOption>

#include <iostream>
#include <utility>

namespace {

/// Each error class has a handler of its own, reached through static operations.
struct ErrorClass {
    NxErrorHandler (*getHandlerCallback)();
    void* (*getHandlerData)();
    void (*setHandlerCallback)(NxErrorHandler callback, void* data);
};

template <typename Error>
constexpr ErrorClass errorClass{&Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback};

constexpr std::array errorClasses{errorClass<NxDebugError>, errorClass<NxError>, errorClass<NxErrorStack>,
    errorClass<NxGLError>, errorClass<NxMemoryError>, errorClass<NxReadError>};

/// In characters. The default way to break lines looks for the end of a word over and over, which takes minutes for a
/// word of a megabyte.
constexpr qsizetype longText = 10'000;

constexpr auto turnEvent = static_cast<QEvent::Type>(QEvent::User + 1);
constexpr qint64 longestTurn = 400; // in milliseconds
constexpr int largestTurn = 2000; // in messages, which the view then takes some tens of milliseconds to lay out

constexpr std::int32_t errorCategory = 0;
constexpr std::int32_t infoCategory = 1;
constexpr std::int32_t warningCategory = 2;

std::int32_t categoryOf(const NxError& error)
{
    if (!error.isOfType(NxDebugError::getClassTypeId()))
        return errorCategory;
    switch (static_cast<const NxDebugError&>(error).getSeverity()) {
    case NxDebugError::Warning:
        return warningCategory;
    case NxDebugError::Information:
        return infoCategory;
    default:
        return errorCategory;
    }
}

} // namespace

/// One error on its way to the thread of the user interface.
class OrvConsole::ConsoleEvent final : QEvent {
public:
    static constexpr Type eventType = User;

    explicit ConsoleEvent(const QString& text)
        : QEvent(eventType)
        , m_text(text)
    {
    }

    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    [[nodiscard]] std::int32_t category() const noexcept { return m_category; }
    /// Any value but those of an information and a warning stands for an error.
    void setCategory(std::int32_t category) noexcept { m_category = category; }

private:
    friend OrvConsole; // which posts it, and meets it again

    QString m_text;
    std::int32_t m_category = errorCategory;
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
    static_assert(errorClasses.size() == errorClassCount);
    for (std::size_t index = 0; index < errorClassCount; ++index) {
        m_savedHandlerCallbacks[index] = errorClasses[index].getHandlerCallback();
        m_savedHandlerData[index] = errorClasses[index].getHandlerData();
    }
    // The former handlers aren't called meanwhile: what the console takes goes to the console alone.
    for (const ErrorClass& one : errorClasses)
        one.setHandlerCallback(&handleError, this);
}

void OrvConsole::show()
{
    OrvExtension::show();
    m_dockWidget->show();
    m_consoleFrameWidget->show();
}

void OrvConsole::unload()
{
    m_arrived.clear();
    delete std::exchange(m_consoleFrameWidget, nullptr);
    delete std::exchange(m_dockWidget, nullptr);
    for (std::size_t index = 0; index < errorClassCount; ++index)
        errorClasses[index].setHandlerCallback(m_savedHandlerCallbacks[index], m_savedHandlerData[index]);
}

bool OrvConsole::event(QEvent* event)
{
    if (event->type() == ConsoleEvent::eventType)
        receive(*static_cast<ConsoleEvent*>(event));
    else if (event->type() == turnEvent)
        takeTurn();
    return QObject::event(event);
}

// The view takes its time for each line. So that many errors at once don't hold up the window, they are shown in turns,
// and whatever else waits in the event loop comes in between. Those that wait are under way as in the event queue,
// which can't hand them over in parts: nothing is kept once it is shown.
void OrvConsole::receive(const ConsoleEvent& event)
{
    // An error may still be under way when the view is gone.
    if (m_consoleFrameWidget == nullptr)
        return;
    const Channel channel = channelOf(event.category());
    if (!channel.isShown)
        return;
    if (!m_turn.isValid())
        startTurn();
    if (m_arrived.empty() && !turnIsOver())
        append(channel.color, event.text());
    else
        m_arrived.push_back({channel.color, event.text()});
}

void OrvConsole::startTurn()
{
    m_turn.start();
    QCoreApplication::postEvent(this, new QEvent(turnEvent), Qt::LowEventPriority);
}

bool OrvConsole::turnIsOver() const
{
    return m_turn.hasExpired(longestTurn);
}

void OrvConsole::takeTurn()
{
    m_turn.invalidate();
    if (m_arrived.empty())
        return;
    startTurn();
    // In one edit, so that the view lays out its lines once.
    QScrollBar* const bar = m_consoleOutput->verticalScrollBar();
    const bool endIsInSight = bar->value() >= bar->maximum();
    QTextCursor edit(m_consoleOutput->document());
    edit.beginEditBlock();
    for (int shown = 0; !m_arrived.empty() && shown < largestTurn && !turnIsOver(); ++shown) {
        append(m_arrived.front().color, m_arrived.front().text);
        m_arrived.pop_front();
    }
    edit.endEditBlock();
    if (endIsInSight)
        bar->setValue(bar->maximum());
}

OrvConsole::Channel OrvConsole::channelOf(std::int32_t category) const
{
    switch (category) {
    case infoCategory:
        return {m_outputInfos, m_infoColor};
    case warningCategory:
        return {m_outputWarnings, m_warningColor};
    default:
        return {m_outputErrors, m_errorColor};
    }
}

void OrvConsole::clear()
{
    m_consoleOutput->clear();
    m_consoleOutput->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

// The flags don't read the buttons: both start on, and each toggle inverts once.
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
    // Without truncating: a longer file keeps its remainder behind the text. That is meant.
    if (file.open(QIODevice::ReadWrite | QIODevice::Text))
        file.write(m_consoleOutput->toPlainText().toLatin1().constData());
}

/// Runs on the thread that reports the error, so it touches no widget.
void OrvConsole::handleError(const NxError* error, void* console)
{
    auto message = std::make_unique<ConsoleEvent>(QString::fromUtf8(error->getDebugString().toUtf8()));
    message->setCategory(categoryOf(*error));
    QCoreApplication::postEvent(static_cast<OrvConsole*>(console), message.release());
}

void OrvConsole::append(const QColor& color, const QString& text)
{
    if (text.size() > longText)
        m_consoleOutput->setWordWrapMode(QTextOption::WrapAnywhere);
    m_consoleOutput->setTextColor(color);
    m_consoleOutput->append(text);
}

void OrvConsole::appendStreamed(std::int32_t category, const char* text)
{
    const Channel channel = channelOf(category);
    if (channel.isShown)
        append(channel.color, QString::fromUtf8(text));
}

void consoleErrorStreamCallback(const char* text, std::streamsize /*count*/, void* userData)
{
    static_cast<OrvConsole*>(userData)->appendStreamed(errorCategory, text);
}

void consoleOutputStreamCallback(const char* text, std::streamsize /*count*/, void* userData)
{
    static_cast<OrvConsole*>(userData)->appendStreamed(infoCategory, text);
}
