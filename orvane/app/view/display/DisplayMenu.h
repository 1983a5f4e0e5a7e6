#pragma once

#include "orvane/app/view/display/StatisticsOverlay.h"

#include "meridane/gl/painting/NxDrawingStyle.h"

#include <QObject>

class AppSettings;
class QAction;
class QActionGroup;
class QKeySequence;
class QMenu;
class SceneView;
class SectionBar;
class Session;

/// The menu of what the view shows: the colours of surfaces, wires, a head light, a section plane, statistics. Its keys
/// work while the view has the focus. All but the section is kept in the settings.
class DisplayMenu : public QObject {
    Q_OBJECT

public:
    /// The view is the parent; the session outlives it.
    DisplayMenu(SceneView* view, Session& session);
    ~DisplayMenu() override;

    /// The entry for another menu.
    [[nodiscard]] QAction* menuAction() const;

private:
    QAction* addAction(const char* name, const char* text, const char* tip, const QKeySequence& key);
    void addShading(
        const char* name, const char* text, const char* tip, const QKeySequence& key, NxDrawingStyle::Shading shading);
    void addSwitch(
        const char* name, const char* text, const char* tip, const QKeySequence& key, bool NxDrawingStyle::*part);
    void addBackground();
    void addSection();
    void addStatistics();

    SceneView* m_view;
    Session& m_session;
    QMenu* m_menu;
    QActionGroup* m_shadings;
    SectionBar* m_section;
    StatisticsOverlay m_statistics;
};
