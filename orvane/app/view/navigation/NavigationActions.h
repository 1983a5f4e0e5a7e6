#pragma once

#include <QList>
#include <QObject>

class AppSettings;
class FlyTool;
class QAction;
class QMenu;
class QStatusBar;
class SceneView;
class ViewAnimation;

/// How the user moves about in the view, beside what every view can do: flying, animation, and what is to be preferred.
/// Kept in the settings.
class NavigationActions : public QObject {
    Q_OBJECT

public:
    /// The view is the parent; the others live as long.
    NavigationActions(SceneView* view, AppSettings& settings, QStatusBar* bar);

    /// For the View menu.
    [[nodiscard]] QAction* menuAction() const;

private:
    QAction* addSwitch(const char* name, const QString& text, const QString& tip, bool isOn);

    SceneView* m_view;
    AppSettings& m_settings;
    QMenu* m_menu;
    ViewAnimation* m_animation;
};
