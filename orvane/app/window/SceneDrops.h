#pragma once

#include "orvane/app/structure/FileDrops.h"

#include <QObject>

class FileFlow;
class MessageBar;
class NodeActions;
class QDropEvent;
class SceneTreePanel;
class SceneView;
class Session;

/// What is dropped on tree and view, and files that are imported or pasted. Nodes that are added are selected and
/// framed.
class SceneDrops : public QObject {
    Q_OBJECT

public:
    /// All live longer, or are deleted with the object by the window.
    SceneDrops(Session& session, FileFlow& files, SceneTreePanel* tree, SceneView* view, NodeActions& nodes,
        MessageBar& messages);
    ~SceneDrops() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void handle(QDropEvent& event);
    [[nodiscard]] FileDrops::Place placeAt(const QPointF& position) const;

    SceneView* m_view;
    NodeActions& m_nodes;
    FileDrops* m_files;
    QString m_said;
};
