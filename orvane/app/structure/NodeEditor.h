#pragma once

#include "orvane/app/structure/NodeEdit.h"

#include <QObject>

class SceneTreePanel;
class Session;
class StepSelections;

/// Makes changes of the structure in the open scene: each is one step of the history, and the tree selects its result.
class NodeEditor : public QObject {
    Q_OBJECT

public:
    /// Both live longer.
    NodeEditor(Session& session, SceneTreePanel* tree);
    ~NodeEditor() override;

    /// The group that holds the top nodes; null while no scene is open.
    [[nodiscard]] NxGroup* scene() const;
    /// The selected nodes; empty if there are none.
    [[nodiscard]] meridane::NodeSet selected() const;
    /// Where a node goes that is added: to the end of the group that was selected last, behind another node that was
    /// selected last, or to the end of the scene. A scene must be open.
    [[nodiscard]] NodeSpot spotForAdding() const;
    /// Behind the node that was selected last, else as `spotForAdding`.
    [[nodiscard]] NodeSpot spotBehindSelected() const;

    /// Whether nodes stay where they are in the world when they move to other groups.
    [[nodiscard]] NodePlaces places() const noexcept { return m_places; }
    void setPlaces(NodePlaces places) { m_places = places; }

    /// Makes the change. Returns whether there was one; a failure, or a note, goes to `said`.
    bool apply(MadeEdit edit);
    /// What was selected before and after the steps.
    [[nodiscard]] const StepSelections& selections() const noexcept { return *m_selections; }

Q_SIGNALS:
    /// Something for the status bar: why nothing could be done, or what the user should know.
    void said(const QString& text);

private:
    Session& m_session;
    SceneTreePanel* m_tree;
    StepSelections* m_selections;
    NodePlaces m_places = NodePlaces::Keep;
};
