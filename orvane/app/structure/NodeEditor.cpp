#include "orvane/app/structure/NodeEditor.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/app/structure/StepSelections.h"
#include "orvane/app/structure/TreeNodes.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <memory>
#include <optional>
#include <utility>

NodeEditor::NodeEditor(Session& session, SceneTreePanel* tree)
    : QObject(tree)
    , m_session(session)
    , m_tree(tree)
    , m_selections(new StepSelections(session.services(), this))
{
}

NodeEditor::~NodeEditor() = default;

NxGroup* NodeEditor::scene() const
{
    return m_session.document().scene();
}

meridane::NodeSet NodeEditor::selected() const
{
    return scene() != nullptr ? orvane::selectedNodes(*m_tree) : meridane::NodeSet();
}

NodeSpot NodeEditor::spotForAdding() const
{
    NodeSpot spot = spotBehindSelected();
    NxNode* const node = m_tree->selectedNode();
    if (node == nullptr || spot.index == 0 || spot.group().getChild(spot.index - 1) != node)
        return spot;
    if (auto* const group = dynamic_cast<NxGroup*>(node)) {
        spot.places.push_back(spot.index - 1);
        spot.path.push_back(group);
        spot.index = group->getNumChildren();
    }
    return spot;
}

NodeSpot NodeEditor::spotBehindSelected() const
{
    if (const std::optional<meridane::NodeRows> last = orvane::lastSelectedNode(*m_tree))
        return {last->path, last->places, last->rows.front() + 1};
    return {{scene()}, {}, scene()->getNumChildren()};
}

bool NodeEditor::apply(MadeEdit edit)
{
    if (!edit) {
        Q_EMIT said(edit.error());
        return false;
    }
    NodeEdit made = std::move(edit).value();
    if (made.changes.isEmpty())
        return false;
    StepSelections::Rows before = orvane::rowsOf(selected());
    OrvServices& services = m_session.services();
    using Undo = UpdateSceneCommand::Undo;
    const auto isComplete = std::make_shared<bool>(true);
    services.pushStep(new UpdateSceneCommand(std::move(made.changes),
                          services.isUndoExact() ? Undo::ByHistory : Undo::ByCommand, m_session.disposal(), isComplete),
        made.label);
    if (!*isComplete) {
        services.undo();
        Q_EMIT said(tr("There isn't enough memory for that; nothing was changed."));
        return false;
    }
    orvane::selectNodes(*m_tree, made.selection);
    m_selections->note(made.label, std::move(before), orvane::rowsOf(made.selection));
    if (!made.note.isEmpty())
        Q_EMIT said(made.note);
    return true;
}
