#pragma once

#include "orvane/app/tree/facts/PlaceCount.h"

#include "meridane/gl/places/NodeFigures.h"

#include <QBasicTimer>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QRect>

#include <memory>

class HiddenNodes;
class QHelpEvent;
class QTreeView;
class SceneTreeModel;

/// The tool tips of the scene tree. A tip is shown at once; what takes longer to find out is added when it is known,
/// unless the tip is gone by then.
class TreeTips : public QObject {
    Q_OBJECT

public:
    /// The view shows the model; all live longer.
    TreeTips(QTreeView* view, SceneTreeModel* model, const HiddenNodes& hidden);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool show(const QHelpEvent& event);
    void begin(const QModelIndex& index);
    void goOn();
    void end();
    [[nodiscard]] QString placesText() const;
    void showText(const QString& text);

    QTreeView* m_view;
    SceneTreeModel* m_model;
    const HiddenNodes& m_hidden;
    std::unique_ptr<meridane::NodeFigures> m_figures; // that are being computed
    std::unique_ptr<PlaceCount> m_places; // that are being counted
    QPersistentModelIndex m_index;
    QBasicTimer m_timer;
    QString m_text;
    QPoint m_place; // on the screen
    QRect m_row; // in the viewport
};
