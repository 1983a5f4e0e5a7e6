#pragma once

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

class AppSettings;
class QAction;
class QActionGroup;
class QMenu;
class QString;
class SceneView;
struct NxDrawingStyle;

/// The actions of the view, for menus. Their keys are single letters and digits, so they work only while the view has
/// the focus. The state of the switches is kept in the settings.
class ViewActions : public QObject {
    Q_OBJECT

public:
    /// Both outlive this.
    ViewActions(SceneView* view, AppSettings& settings);

    /// Appends the actions but the switches. Their check marks show the present state of the view.
    void addTo(QMenu* menu);
    /// What the view shows beside the scene: grid, boxes, axes.
    [[nodiscard]] const QList<QAction*>& switches() const { return m_switches; }

private:
    QAction* addAction(const char* name, const char* text, const char* toolTip, const QKeySequence& key = {});
    void addAxis(const char* name, const char* text, Qt::Key key, const VbVec3f& direction, const VbVec3f& up);
    void addSwitch(const char* name, const char* text, const char* toolTip, bool NxDrawingStyle::*part);
    void addProjection(const char* name, const char* text, const char* toolTip, NxViewpoint::Projection projection);
    void addSurfaces(const char* name, const char* text, const char* toolTip, bool wireframe);

    SceneView* m_view;
    AppSettings& m_settings;
    QActionGroup* m_projections;
    QActionGroup* m_surfaces;
    QList<QAction*> m_framing;
    QList<QAction*> m_axes;
    QList<QAction*> m_switches;
    QMenu* m_axesMenu = nullptr; // made when a menu first wants it
};
