#pragma once

#include "Console/MessageQueue.h"
#include "Console/StdStreamRedirector.h"
#include "ui_OrvConsole.h"

#include "orvane/extender/OrvExtension.h"

#include "meridane/base/errors/ErrorCapture.h"

#include <QColor>

#include <cstdint>
#include <ios>
#include <memory>
#include <string>

class QDockWidget;
class QFrame;

/// The callbacks of the two streams; the user data is the console.
// Contract: a text is read up to its first NUL, whatever the count, so a block without one shows more than was written.
// Contract: the view is used on the thread that writes.
void consoleErrorStreamCallback(const char* text, std::streamsize count, void* userData);
void consoleOutputStreamCallback(const char* text, std::streamsize count, void* userData);

/// Shows, in a dock at the bottom, what the process writes to `std::cerr` and `std::cout`, and every error that the
/// toolkit reports.
///
/// It takes over the handlers of the six error classes from `load` to `unload`, active or not, and the two streams
/// while it is active, unless the preference `ORVANE_STDOUT_CAPTURE` is false. Errors may come from any thread and are
/// shown from the event loop; what is written to a stream is shown at once, on the thread that writes.
class OrvConsole final : public OrvExtension, public Ui::m_consoleFrame {
    Q_OBJECT

public:
    OrvConsole();
    ~OrvConsole() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

    bool event(QEvent* event) override;

private Q_SLOTS:
    void clear();
    void outputErrors();
    void outputInfos();
    void outputWarnings();
    void save();

private:
    class ConsoleEvent;
    using Redirector = StdStreamRedirector<char, std::char_traits<char>>;

    friend void consoleErrorStreamCallback(const char* text, std::streamsize count, void* userData);
    friend void consoleOutputStreamCallback(const char* text, std::streamsize count, void* userData);
    static void handleError(const NxError* error, void* console);

    /// How the messages of a category are shown. A message that is filtered out when it arrives is never shown; one
    /// that has arrived is shown whatever is filtered later.
    struct Channel {
        bool isShown;
        QColor color;
    };

    [[nodiscard]] Channel channelOf(std::int32_t category) const;
    void receive(const ConsoleEvent& event);
    void appendStreamed(std::int32_t category, const char* text);

    bool m_outputErrors = true;
    bool m_outputInfos = true;
    bool m_outputWarnings = true;
    QDockWidget* m_dockWidget = nullptr;
    QFrame* m_consoleFrameWidget = nullptr;
    QColor m_errorColor = Qt::darkRed;
    QColor m_infoColor = Qt::darkGreen;
    QColor m_warningColor = Qt::darkYellow;
    meridane::ErrorCapture::Callbacks m_savedHandlerCallbacks{};
    meridane::ErrorCapture::UserData m_savedHandlerData{};
    std::unique_ptr<Redirector> m_stderrRedirector;
    std::unique_ptr<Redirector> m_stdoutRedirector;
    meridane::ErrorCapture m_errorCapture{m_savedHandlerCallbacks, m_savedHandlerData};
    std::unique_ptr<orvane::MessageQueue> m_messages; // null while there is no view
};
