#include "orvane/app/structure/ApplicableEdits.h"

#include "orvane/app/structure/NodeMimeData.h"
#include "orvane/app/structure/NodeUses.h"

#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QAction>

#include <algorithm>

namespace {

using meridane::NodeRows;
using meridane::NodeSet;

bool hasGroup(const NodeRows& rows)
{
    return std::ranges::any_of(rows.rows, [&rows](int row) {
        const NxNode* const node = rows.group().getChild(row);
        return dynamic_cast<const NxGroup*>(node) != nullptr && dynamic_cast<const NxUnknownNode*>(node) == nullptr;
    });
}

bool hasNodesAbove(const NodeRows& rows)
{
    return rows.rows.back() >= static_cast<int>(rows.rows.size());
}

bool hasNodesBelow(const NodeRows& rows)
{
    return rows.rows.front() < rows.group().getNumChildren() - static_cast<int>(rows.rows.size());
}

bool isBelowGroup(const NodeRows& rows)
{
    return std::ranges::any_of(rows.rows, [&rows](int row) {
        return !std::ranges::binary_search(rows.rows, row - 1)
            && dynamic_cast<const NxGroup*>(rows.group().getChild(row - 1)) != nullptr;
    });
}

/// Whether a node, or a group above it, is in other places too.
bool isShared(const NodeRows& rows, NodeUses& uses)
{
    const auto isUsedOften = [&uses](const NxNode* node) { return uses.count(*node) > 1; };
    return std::any_of(rows.path.begin() + 1, rows.path.end(), isUsedOften)
        || std::ranges::any_of(rows.rows, [&](int row) { return isUsedOften(rows.group().getChild(row)); });
}

} // namespace

ApplicableEdits::ApplicableEdits(NxGroup& scene, const NodeSet& selected, const QMimeData* clipboard)
{
    const auto any = [&selected](auto holds) { return std::ranges::any_of(selected, holds); };
    const bool isOnClipboard = clipboard != nullptr && orvane::hasNodes(*clipboard);
    leaveOut("node.paste", !isOnClipboard);
    leaveOut("node.pasteShared", !isOnClipboard || orvane::sceneOf(*clipboard).isEmpty());
    leaveOut("node.ungroup", !any(hasGroup));
    leaveOut("node.moveUp", !any(hasNodesAbove));
    leaveOut("node.moveDown", !any(hasNodesBelow));
    leaveOut("node.moveOut", !any([](const NodeRows& rows) { return rows.path.size() > 1; }));
    leaveOut("node.moveIn", !any(isBelowGroup));
    NodeUses uses(scene);
    leaveOut("node.makeOwn", !any([&uses](const NodeRows& rows) { return isShared(rows, uses); }));
}

bool ApplicableEdits::has(const QAction& action) const
{
    return !m_leftOut.contains(action.objectName());
}

void ApplicableEdits::leaveOut(const char* name, bool isLeftOut)
{
    if (isLeftOut)
        m_leftOut.insert(QLatin1String(name));
}
