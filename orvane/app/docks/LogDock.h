#pragma once

#include <QDockWidget>

class LogBook;
class LogPanel;
class MessageBar;
class QMainWindow;
class Session;

/// The log of the tool, with all messages of the window, and its dock. The dock is hidden until the user shows it, and
/// its content is made then.
class LogDock : public QDockWidget {
    Q_OBJECT

public:
    /// All live as long as the window.
    LogDock(Session& session, MessageBar& messages, QMainWindow* window);

    void setVisible(bool visible) override;

    /// The content; null before the dock is first shown.
    [[nodiscard]] LogPanel* panel() const noexcept { return m_panel; }
    [[nodiscard]] LogBook& book() noexcept { return *m_book; }

Q_SIGNALS:
    /// The user chose the path of a node or a field.
    void nodeChosen(const QString& path);

private:
    void setLimit(double lines);
    void fill();

    Session& m_session;
    MessageBar& m_messages;
    QMainWindow* m_window;
    LogBook* m_book;
    LogPanel* m_panel = nullptr; // made when it is first shown
};
