#pragma once

#include "meridane/scene/file/NxScenePathNamer.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>

#include <optional>
#include <vector>

class FieldTitleBar;
class NodeLock;
class QDockWidget;
class QMainWindow;
class SceneTreePanel;
class Session;

/// Gives docks of extensions that show the editor of the selected field a title bar with the field's path. A dock that
/// leaves the window gets its usual title bar back, and its title is never touched.
class FieldTitleBars : public QObject {
    Q_OBJECT

public:
    /// All live as long as the window.
    FieldTitleBars(Session& session, SceneTreePanel* tree, const NodeLock& lock, QMainWindow* window);
    ~FieldTitleBars() override;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void updateSoon();
    void show(const QString& path);
    void forget(QObject* dock);
    [[nodiscard]] QList<QDockWidget*> editorDocks() const;
    [[nodiscard]] std::vector<int> places() const;
    [[nodiscard]] std::optional<QString> selectedPath();

    Session& m_session;
    SceneTreePanel* m_tree;
    const NodeLock& m_lock;
    QMainWindow* m_window;
    QHash<QDockWidget*, FieldTitleBar*> m_bars;
    NxScenePathNamer m_namer;
    QBasicTimer m_timer;
};
