#pragma once

#include <QDockWidget>

class HistoryPanel;
class MessageBar;
class QMainWindow;
class Session;
class StepTravel;

/// The dock with the undo history. It is hidden until the user shows it; its content is made then.
class HistoryDock : public QDockWidget {
    Q_OBJECT

public:
    /// All live as long as the window.
    HistoryDock(Session& session, StepTravel& travel, MessageBar& messages, QMainWindow* window);

    void setVisible(bool visible) override;

private:
    void fill();
    void nameOrigin();

    Session& m_session;
    StepTravel& m_travel;
    MessageBar& m_messages;
    QMainWindow* m_window;
    HistoryPanel* m_panel = nullptr; // made when it is first shown
};
