#pragma once

#include <QObject>

class AppSettings;
class MessageBar;
class QAction;
class QMainWindow;
class SettingsWindow;

/// The action that opens the Settings window, and messages about settings that can't be read, written or used.
class SettingsActions : public QObject {
    Q_OBJECT

public:
    /// All live as long as the window, which is the parent. The action is for the Edit menu.
    SettingsActions(AppSettings& settings, MessageBar& messages, QMainWindow* window);

    [[nodiscard]] QAction* action() const noexcept { return m_action; }

private:
    void open();
    void report();

    AppSettings& m_settings;
    MessageBar& m_messages;
    QMainWindow* m_window;
    QAction* m_action;
    SettingsWindow* m_opened = nullptr; // made when it is first opened
};
