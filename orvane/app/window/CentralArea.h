#pragma once

#include <QWidget>

class MessageBar;
class QStackedWidget;
class RecentFiles;
class SceneView;
class StartPage;

/// The middle of the window: the messages, and below them the view of the scene, or the start page while no scene is
/// open.
class CentralArea : public QWidget {
    Q_OBJECT

public:
    /// Takes over the messages and the view. The recent files live longer.
    CentralArea(MessageBar* messages, SceneView* view, RecentFiles& recent, QWidget* parent);

    void showView();
    void showStartPage();

Q_SIGNALS:
    // Of the start page.
    void openRequested();
    void newRequested();
    void fileChosen(const QString& fileName);
    void windowRequested(const QString& fileName);
    void failed(const QString& message);

private:
    void makeStartPage();

    RecentFiles& m_recent;
    QStackedWidget* m_pages;
    SceneView* m_view;
    StartPage* m_startPage = nullptr; // made when it is first shown
};
