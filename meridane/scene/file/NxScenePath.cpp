#include "meridane/scene/file/NxScenePath.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/file/detail/ScenePathStep.h"

#include <algorithm>

using meridane::ScenePathStep;

namespace {

/// The path up to a problem, for its message.
std::string placeText(std::string_view path, std::size_t end)
{
    return '\'' + std::string(path.substr(0, end)) + '\'';
}

NxNode* findNamed(std::span<NxNode* const> children, const ScenePathStep& step, std::string& error)
{
    NxNode* found = nullptr;
    for (NxNode* child : children) {
        if (child->getName().view() != step.name)
            continue;
        if (found != nullptr) {
            error = "the name isn't unique, expected Class[index]";
            return nullptr;
        }
        found = child;
    }
    if (found == nullptr)
        error = "there is no child of that name";
    return found;
}

NxNode* findIndexed(std::span<NxNode* const> children, const ScenePathStep& step, std::string& error)
{
    int count = 0;
    for (NxNode* child : children) {
        if (child->getClassName() == step.name && count++ == step.index)
            return child;
    }
    error = "there are " + std::to_string(count) + " children of class " + step.name;
    return nullptr;
}

/// Follows the part of the path after the last step: a dot and the name of a field.
void findField(NxScenePath::Target& target, std::string_view path, std::size_t at)
{
    const std::string name(path.substr(at + 1));
    target.field = target.node()->getField(VbName(name.c_str()));
    if (target.field == nullptr)
        target.error = placeText(path, at) + " has no field '" + name + '\'';
}

/// The steps of a list of nodes, each with a slash before it.
std::string stepsText(const NxGroup* scene, std::span<NxNode* const> nodes)
{
    if (nodes.empty())
        return "/";
    std::string text;
    const NxNode* parent = scene;
    for (const NxNode* node : nodes) {
        text += '/';
        ScenePathStep::of(*parent, *node).appendTo(text);
        parent = node;
    }
    return text;
}

} // namespace

NxScenePath::Target NxScenePath::find(NxGroup* scene, std::string_view path)
{
    Target target;
    const auto fail = [&target](std::string error) {
        target.nodes.clear();
        target.field = nullptr;
        target.error = std::move(error);
        return target;
    };
    if (!path.starts_with('/'))
        return fail('\'' + std::string(path) + "' isn't a path: expected '/' and the name of a node");
    if (path == "/")
        return target;
    const NxNode* parent = scene;
    std::size_t at = 0;
    while (at < path.size() && path[at] == '/') {
        std::size_t end = at + 1;
        ScenePathStep step;
        std::string error = step.parse(path, end);
        NxNode* child = nullptr;
        if (error.empty()) {
            const auto children = parent->getChildren();
            child = step.index < 0 ? findNamed(children, step, error) : findIndexed(children, step, error);
        }
        if (child == nullptr)
            return fail(placeText(path, end) + ": " + error);
        target.nodes.push_back(child);
        parent = child;
        at = end;
    }
    if (at == path.size())
        return target;
    if (path[at] != '.')
        return fail(placeText(path, at) + ": expected '/' or '.' behind it");
    findField(target, path, at);
    return target.error.empty() ? target : fail(target.error);
}

std::string NxScenePath::toText(const NxGroup* scene, std::span<NxNode* const> nodes)
{
    return stepsText(scene, nodes);
}

std::string NxScenePath::toText(const NxGroup* scene, std::span<NxNode* const> nodes, const NxField* field)
{
    std::string text = stepsText(scene, nodes);
    if (!nodes.empty())
        text += std::string(".") + nodes.back()->getFieldName(field).getString();
    return text;
}
