#pragma once

#include "Console/StdStreamRedirector.h"
#include "ui_OrvConsole.h"

#include "orvane/extender/OrvExtension.h"

#include "meridane/base/errors/NxErrorHandler.h"

#include <QColor>
#include <QElapsedTimer>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <ios>
#include <memory>
#include <string>

class QDockWidget;
class QFrame;

/// What the two streams are given to; the user data is the console. They read a text to its first NUL, whatever the
/// count, so that a block which its writer didn't end with one shows more than was meant. And they use the view on the
/// thread that writes. Both is meant.
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
    static constexpr std::size_t errorClassCount = 6;

    friend void consoleErrorStreamCallback(const char* text, std::streamsize count, void* userData);
    friend void consoleOutputStreamCallback(const char* text, std::streamsize count, void* userData);
    static void handleError(const NxError* error, void* console);

    /// What becomes of a category's messages. What is filtered out when it arrives is gone for good, and what has
    /// arrived is shown whatever is filtered later.
    struct Channel {
        bool isShown;
        QColor color;
    };
    /// A message that arrived and waits for a turn.
    struct Message {
        QColor color;
        QString text;
    };

    [[nodiscard]] Channel channelOf(std::int32_t category) const;
    void receive(const ConsoleEvent& event);
    void startTurn();
    [[nodiscard]] bool turnIsOver() const;
    void takeTurn();
    void appendStreamed(std::int32_t category, const char* text);
    void append(const QColor& color, const QString& text);

    bool m_outputErrors = true;
    bool m_outputInfos = true;
    bool m_outputWarnings = true;
    QDockWidget* m_dockWidget = nullptr;
    QFrame* m_consoleFrameWidget = nullptr;
    QColor m_errorColor = Qt::darkRed;
    QColor m_infoColor = Qt::darkGreen;
    QColor m_warningColor = Qt::darkYellow;
    std::array<NxErrorHandler, errorClassCount> m_savedHandlerCallbacks{};
    std::array<void*, errorClassCount> m_savedHandlerData{};
    std::unique_ptr<Redirector> m_stderrRedirector;
    std::unique_ptr<Redirector> m_stdoutRedirector;
    std::deque<Message> m_arrived; // of a burst, in their order
    QElapsedTimer m_turn; // valid while a turn is under way
};
