#pragma once

#include "meridane/gl/places/NodeFigures.h"

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>

class QHelpEvent;
class QTreeView;
class SceneTreeModel;

/// The tool tips of the scene tree. A tip is shown at once; what takes longer to find out is added when it is known,
/// unless the tip is gone by then.
class TreeTips : public QObject {
    Q_OBJECT

public:
    /// The view shows the model; both live longer.
    TreeTips(QTreeView* view, SceneTreeModel* model);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool show(const QHelpEvent& event);
    void showText(const QString& text);

    QTreeView* m_view;
    SceneTreeModel* m_model;
    std::unique_ptr<meridane::NodeFigures> m_figures; // that are being computed
    QBasicTimer m_timer;
    QString m_text;
    QPoint m_place; // on the screen
    QRect m_row; // in the viewport
};
