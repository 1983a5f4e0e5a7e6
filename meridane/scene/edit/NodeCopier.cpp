#include "meridane/scene/edit/NodeCopier.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace meridane {

namespace {

bool copyFields(NxNode& node, NxNode& copy)
{
    NxFieldData& data = *node.getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        const NxField& from = *data.getField(&node, index);
        NxField& to = *data.getField(&copy, index);
        if (!from.isSame(to) && !to.copyFrom(from))
            return false;
        if (from.isIgnored())
            to.setIgnored(1);
    }
    for (const NxFieldContainer::UnknownField& field : node.getUnknownFields())
        copy.addUnknownField(field);
    return true;
}

/// A group whose children are being copied.
struct Level {
    std::span<NxNode* const> children;
    NxRef<NxGroup> copy;
    std::vector<NxNode*> copies; // of the children so far
    std::vector<NxRef<NxNode>> held;
    bool isShared; // it, or a group above it, may be in several places
};

} // namespace

NxRef<NxNode> NodeCopier::copyAlone(NxNode& node)
{
    NxRef<NxNode> copy(static_cast<NxNode*>(static_cast<NxTypedObject*>(node.getTypeId().createInstance(nullptr))));
    if (!copy)
        return copy;
    if (copy->isOfType(NxUnknownNode::getClassTypeId()))
        static_cast<NxUnknownNode&>(*copy).setClassName(node.getClassName());
    if (!node.getName().isEmpty())
        copy->setName(node.getName());
    return copyFields(node, *copy) ? copy : NxRef<NxNode>();
}

// Nodes may be nested deeply, so it keeps its own stack.
NxRef<NxNode> NodeCopier::copy(NxNode& top)
{
    std::vector<Level> levels;
    NxRef<NxNode> result;
    const auto add = [&](NxNode& node, const NxRef<NxNode>& copied) {
        // One without other references is in several places as well if a group above it is. The top one may be below
        // another one that is copied.
        if (levels.empty() || levels.back().isShared || node.getRefCount() > 1)
            m_copies.try_emplace(&node, copied);
        if (levels.empty()) {
            result = copied;
        } else {
            levels.back().copies.push_back(copied.get());
            levels.back().held.push_back(copied);
        }
    };
    NxNode* next = &top;
    while (next != nullptr) {
        const auto known = m_copies.find(next);
        const NxRef<NxNode> copied = known != m_copies.end() ? known->second : copyAlone(*next);
        if (!copied)
            return {};
        if (known == m_copies.end() && !next->getChildren().empty()) {
            const bool isShared = next->getRefCount() > 1 || (!levels.empty() && levels.back().isShared);
            levels.push_back({next->getChildren(), static_cast<NxGroup*>(copied.get()), {}, {}, isShared});
        } else {
            add(*next, copied);
        }
        next = nullptr;
        while (!levels.empty() && next == nullptr) {
            Level& level = levels.back();
            if (level.copies.size() < level.children.size()) {
                next = level.children[level.copies.size()];
                break;
            }
            level.copy->replaceChildren(0, 0, level.copies);
            const NxRef<NxNode> done(level.copy);
            levels.pop_back();
            NxNode* const original = levels.empty() ? &top : levels.back().children[levels.back().copies.size()];
            add(*original, done);
        }
    }
    return result;
}

} // namespace meridane
