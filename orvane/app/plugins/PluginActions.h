#pragma once

#include <QObject>

class MessageBar;
class PluginLoader;
class QMenu;
class QWidget;

/// What the window has of plug-ins: the page of them in the Help menu, and a question about each that has ended the
/// program while it was loaded.
class PluginActions : public QObject {
    Q_OBJECT

public:
    /// All live as long as the window, which is the parent.
    PluginActions(PluginLoader& loader, MessageBar& messages, QMenu& menu, QWidget* window);

private:
    void ask();
    void showPage();

    PluginLoader& m_loader;
    MessageBar& m_messages;
    QWidget* m_window;
};
