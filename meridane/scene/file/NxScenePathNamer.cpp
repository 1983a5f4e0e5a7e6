#include "meridane/scene/file/NxScenePathNamer.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/file/detail/ScenePathStep.h"
#include "meridane/scene/file/detail/SiblingIndex.h"

using meridane::ScenePathStep;
using meridane::SiblingIndex;

namespace {

/// With at most this number of siblings, visiting all of them is fast enough.
constexpr std::size_t fewSiblings = 256;

} // namespace

NxScenePathNamer::NxScenePathNamer() = default;
NxScenePathNamer::~NxScenePathNamer() = default;

std::optional<std::string> NxScenePathNamer::name(
    const NxGroup& scene, std::span<const int> places, const NxField* field, const meridane::WorkBudget& budget)
{
    if (m_revision != NxFieldContainer::getStructureRevision())
        clear();
    m_revision = NxFieldContainer::getStructureRevision();

    std::string text;
    const NxNode* parent = &scene;
    for (const int index : places) {
        const auto place = static_cast<std::size_t>(index);
        const NxNode* const child = parent->getChildren()[place];
        text += '/';
        if (parent->getChildren().size() <= fewSiblings) {
            ScenePathStep::of(*parent, *child).appendTo(text);
        } else {
            SiblingIndex& siblings = m_indices.try_emplace(parent, *parent).first->second;
            while (!siblings.gather(fewSiblings)) {
                if (budget.isSpent())
                    return std::nullopt;
            }
            siblings.step(place).appendTo(text);
        }
        parent = child;
    }
    if (text.empty())
        return "/";
    if (field != nullptr)
        text.append(".").append(parent->getFieldName(field).getString());
    return text;
}

void NxScenePathNamer::clear()
{
    m_indices.clear();
}
