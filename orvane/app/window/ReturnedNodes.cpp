#include "orvane/app/window/ReturnedNodes.h"

#include "orvane/app/history/StepTravel.h"
#include "orvane/app/structure/TreeNodes.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/journal/JournalStep.h"
#include "meridane/scene/nodes/ChildrenRecord.h"

#include <QTreeView>

#include <algorithm>
#include <map>
#include <utility>

namespace {

using meridane::ChildrenRecord;

/// The node that a step brought to its place when it was undone or redone just now; the last one of several.
NxNode* returnedBy(const meridane::JournalStep& step)
{
    NxNode* returned = nullptr;
    for (const auto& record : step.records()) {
        if (record->kind() != meridane::ChangeRecord::Kind::Children)
            return nullptr; // more than a change of the structure
        const auto& children = static_cast<const ChildrenRecord&>(*record);
        const ChildrenRecord::Extent rows = children.extent();
        const auto present = children.group().getChildren();
        if (rows.present == 1 && rows.start < present.size())
            returned = present[rows.start];
    }
    return returned;
}

} // namespace

ReturnedNodes::ReturnedNodes(
    OrvServices& services, const StepTravel& travel, SceneTreePanel* tree, const StepSelections& selections)
    : QObject(tree)
    , m_services(services)
    , m_travel(travel)
    , m_tree(tree)
    , m_selections(selections)
{
    connect(&services, &OrvServices::stepFinished, this, [this] {
        const OrvStepList& steps = m_services.steps();
        const meridane::JournalStep* const changes
            = steps.position() > 0 ? steps.changes(steps.position() - 1) : nullptr;
        if (changes != nullptr)
            noteMovedRows(*changes);
        // A step may end while the tree takes rows away, which selects another node.
        QMetaObject::invokeMethod(this, &ReturnedNodes::unfoldMovedRows, Qt::QueuedConnection);
    });
    connect(&services.steps(), &OrvStepList::movedOver, this, &ReturnedNodes::noteStep);
    connect(&travel, &StepTravel::ended, this, &ReturnedNodes::show);
    connect(&services.document(), &OrvDocument::aboutToClose, this, [this] {
        m_returned = NxRef<NxNode>();
        m_rows.reset();
        m_moved.clear();
        m_unfolded.clear();
    });
    connect(tree->view(), &QTreeView::expanded, this, [this](const QModelIndex& index) { noteUnfolded(index, true); });
    connect(
        tree->view(), &QTreeView::collapsed, this, [this](const QModelIndex& index) { noteUnfolded(index, false); });
}

void ReturnedNodes::noteStep(int index)
{
    const OrvStepList& steps = m_services.steps();
    const meridane::JournalStep* const changes = index < steps.count() ? steps.changes(index) : nullptr;
    m_returned = NxRef<NxNode>(changes != nullptr ? returnedBy(*changes) : nullptr);
    const StepSelections::Rows* const rows = m_selections.afterMove(index);
    m_rows = rows != nullptr ? std::optional(*rows) : std::nullopt;
    if (changes != nullptr)
        noteMovedRows(*changes);
    if (!m_travel.isUnderway())
        show();
}

void ReturnedNodes::noteMovedRows(const meridane::JournalStep& changes)
{
    // Each takes a way through the scene. Steps with more come from files, whose folds are kept otherwise.
    constexpr std::size_t mostRecords = 200;
    if (changes.records().size() > mostRecords)
        return;
    std::map<NxGroup*, std::size_t> known; // where in `m_moved`
    for (const auto& record : changes.records()) {
        if (m_unfolded.empty() || record->kind() != meridane::ChangeRecord::Kind::Children)
            continue;
        const auto& children = static_cast<const ChildrenRecord&>(*record);
        const ChildrenRecord::Extent rows = children.extent();
        const auto first = static_cast<int>(rows.start);
        const auto end = static_cast<int>(rows.start + std::max(rows.present, rows.recorded));
        const auto [place, isNew] = known.try_emplace(&children.group(), m_moved.size());
        if (isNew) {
            m_moved.push_back({NxRef<NxGroup>(&children.group()), first, end});
            continue;
        }
        // The tree takes away and shows again what is between two changes of a group, too.
        MovedRows& moved = m_moved[place->second];
        moved.first = std::min(moved.first, first);
        moved.end = std::max(moved.end, end);
    }
}

void ReturnedNodes::show()
{
    select();
    unfoldMovedRows();
}

void ReturnedNodes::select()
{
    const NxRef<NxNode> node = std::exchange(m_returned, NxRef<NxNode>());
    if (const auto rows = std::exchange(m_rows, std::nullopt); rows && m_services.document().root() != nullptr) {
        orvane::selectNodes(*m_tree, orvane::nodesIn(*m_services.document().root(), *rows));
        return;
    }
    if (!node)
        return;
    const QModelIndex index = m_tree->model()->findNode(node.get());
    if (!index.isValid())
        return;
    unfold(index);
    m_tree->select(index);
}

// The tree has taken them away and shown them again, folded.
void ReturnedNodes::unfoldMovedRows()
{
    const meridane::Journal* const journal = m_services.document().journal();
    for (const MovedRows& moved : std::exchange(m_moved, {})) {
        if (journal == nullptr || m_unfolded.empty())
            return;
        const bool isTop = moved.group.get() == m_services.document().root();
        const QModelIndex parent = isTop ? QModelIndex() : m_tree->model()->findNode(moved.group.get());
        if ((!isTop && !parent.isValid()) || !orvane::updateRows(*m_tree, parent))
            continue;
        for (int row = moved.first; row < std::min(moved.end, m_tree->model()->rowCount(parent)); ++row) {
            const QModelIndex index = m_tree->model()->index(row, SceneTreeModel::NameColumn, parent);
            if (!m_tree->model()->node(index)->getChildren().empty())
                unfold(index);
        }
    }
}

void ReturnedNodes::noteUnfolded(const QModelIndex& index, bool isUnfolded)
{
    const meridane::Journal* const journal = m_services.document().journal();
    const NxNode* const node = m_tree->model()->node(index);
    const auto number = journal != nullptr && node != nullptr ? journal->number(*node) : std::nullopt;
    if (!number)
        return;
    if (isUnfolded)
        m_unfolded.insert(*number);
    else
        m_unfolded.erase(*number);
}

void ReturnedNodes::unfold(const QModelIndex& index)
{
    const meridane::Journal* const journal = m_services.document().journal();
    std::vector<QPersistentModelIndex> waiting{index};
    while (!waiting.empty()) {
        const QModelIndex next = waiting.back();
        waiting.pop_back();
        const auto number = journal->number(*m_tree->model()->node(next));
        if (!number || !m_unfolded.contains(*number))
            continue;
        m_tree->model()->fetchMore(next); // which the view may put off
        m_tree->view()->expand(next);
        for (int row = 0; row < m_tree->model()->rowCount(next); ++row) {
            const QModelIndex child = m_tree->model()->index(row, SceneTreeModel::NameColumn, next);
            if (!m_tree->model()->node(child)->getChildren().empty())
                waiting.emplace_back(child);
        }
    }
}
