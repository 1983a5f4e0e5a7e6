#include "meridane/scene/check/detail/SiblingCheck.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/scene/check/detail/WorkMeter.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace meridane {
namespace {

using Role = ClassPlan::Role;

constexpr std::size_t namesInTable = 1024;
constexpr std::size_t unitsOfChild = 8; // in numbers checked
constexpr std::array<NxProblemKind, 5> unusedKinds{NxProblemKind::UnusedMaterial, NxProblemKind::UnusedTexture,
    NxProblemKind::UnusedComplexity, NxProblemKind::UnusedTexture, NxProblemKind::UnusedTexture};

// Of each role, the last texture applies.
std::size_t waitingKindOf(const NxTexture& texture)
{
    switch (texture.effectiveRole()) {
    case NxTexture::NORMAL:
        return 3;
    case NxTexture::METAL_ROUGHNESS:
        return 4;
    case NxTexture::COLOR:
        break;
    }
    return 1;
}

} // namespace

void SiblingCheck::start(NxGroup& group, Role role)
{
    stop();
    m_group = &group;
    // Which of its children a switch shows may change at any time, and nobody knows what an unknown class does.
    m_isSwitch = role == Role::Switch || role == Role::UnknownGroup;
    m_usesAll = role == Role::UnknownGroup;
}

void SiblingCheck::stop() noexcept
{
    m_group = {};
    m_next = 0;
    m_uses = 0;
    m_seen = 0;
    m_waiting = {};
    m_lights.clear();
    m_lightCount = 0;
    m_mostLights = 0;
    // To free a million names takes longer than a slice.
    if (m_trash.empty())
        m_trash.swap(m_names);
    m_names.clear();
    m_reportedNames = 0;
    if (std::exchange(m_hasReports, false))
        m_reported = {};
    m_problems.clear();
}

bool SiblingCheck::emptyTrash(WorkMeter& meter)
{
    while (!m_trash.empty()) {
        if (meter.isSpent())
            return false;
        meter.count(unitsOfChild * m_trash.back().size());
        m_trash.pop_back();
    }
    return true;
}

std::vector<NxSceneProblem> SiblingCheck::take()
{
    return std::exchange(m_problems, {});
}

bool SiblingCheck::isSpent(WorkMeter& meter)
{
    meter.count(unitsOfChild);
    return meter.isSpent();
}

void SiblingCheck::visit(NxNode& child, const SiblingFacts& facts)
{
    noteName(child);
    use(facts.uses);
    countLights(facts);
    switch (facts.role) {
    case Role::Material:
        replaceWaiting(0, child);
        break;
    case Role::Texture:
        replaceWaiting(waitingKindOf(static_cast<const NxTexture&>(child)), child);
        break;
    case Role::Complexity:
        replaceWaiting(2, child);
        break;
    case Role::Light:
        m_lights.push_back({&child, static_cast<int>(m_next)});
        ++m_lightCount;
        break;
    default:
        break;
    }
}

// Reported where the lights of the group make it too many, not again in the groups above.
void SiblingCheck::countLights(const SiblingFacts& facts)
{
    const bool isDrawn = facts.role == Role::Mesh || facts.role == Role::Group || facts.role == Role::Switch;
    if (!isDrawn || (facts.uses & UsesLight) == 0)
        return;
    const std::size_t lights = facts.lights + (m_isSwitch ? 0 : m_lightCount);
    m_mostLights = std::max(m_mostLights, lights);
    if (lights > m_maxLights && facts.lights <= m_maxLights)
        report(NxProblemKind::TooManyLights, static_cast<int>(m_next), lights, {});
}

void SiblingCheck::noteName(NxNode& child)
{
    const std::string_view name = child.getName().view();
    if (name.empty())
        return;
    if (m_names.empty())
        m_names.resize(m_group->getChildren().size() / namesInTable + 1);
    Namesakes& namesakes = m_names[std::hash<std::string_view>()(name) % m_names.size()][name];
    if (namesakes.count == 0)
        namesakes.first = &child;
    else if (namesakes.first == &child)
        return; // a second use of the same node
    else if (namesakes.count == 1)
        namesakes.second = static_cast<std::uint32_t>(m_next);
    ++namesakes.count;
}

void SiblingCheck::use(std::uint8_t uses)
{
    for (std::size_t kind = 0; kind < m_waiting.size(); ++kind) {
        if ((uses & (1U << kind)) != 0)
            m_waiting[kind] = {};
    }
    if ((uses & UsesLight) != 0)
        m_lights.clear();
    // The lights of the group are added to those that precede it; a material takes the place of the one before.
    m_uses = static_cast<std::uint8_t>(m_uses | (uses & ~m_seen));
}

void SiblingCheck::replaceWaiting(std::size_t kind, NxNode& child)
{
    m_seen = static_cast<std::uint8_t>(m_seen | (1U << kind));
    reportUnused(std::exchange(m_waiting[kind], {&child, static_cast<int>(m_next)}), unusedKinds[kind]);
}

void SiblingCheck::reportUnused(const Waiting& waiting, NxProblemKind kind)
{
    if (waiting.node != nullptr && !m_isSwitch)
        report(kind, waiting.place, 1, {});
}

void SiblingCheck::report(NxProblemKind kind, int place, std::size_t count, std::string_view name)
{
    constexpr std::size_t maxBytes = 60;
    m_hasReports = true;
    Reported& reported = m_reported[static_cast<std::size_t>(kind)];
    if (reported.count == maxReports) {
        reported.more.push_back(place);
        return;
    }
    ++reported.count;
    NxSceneProblem& problem = m_problems.emplace_back();
    problem.kind = kind;
    problem.node = m_group->getChild(place);
    problem.group = m_group;
    problem.place = place;
    problem.count = count;
    problem.total = m_group->getChildren().size();
    problem.detail = excerpt(name, maxBytes);
    problem.isMendable = kind != NxProblemKind::TooManyLights;
    if (kind == NxProblemKind::TooManyLights)
        problem.limit = m_maxLights;
}

bool SiblingCheck::reportNames(WorkMeter& meter)
{
    for (; m_reportedNames < m_names.size(); ++m_reportedNames) {
        if (meter.isSpent())
            return false;
        const Names names = std::exchange(m_names[m_reportedNames], {});
        meter.count(2 * names.size());
        for (const auto& [name, namesakes] : names) {
            if (namesakes.count > 1)
                report(NxProblemKind::DuplicateName, static_cast<int>(namesakes.second), namesakes.count, name);
        }
    }
    for (std::size_t kind = 0; kind < m_waiting.size(); ++kind)
        reportUnused(m_waiting[kind], unusedKinds[kind]);
    for (const Waiting& light : m_lights)
        reportUnused(light, NxProblemKind::UnusedLight);
    reportMore();
    if (m_usesAll)
        m_uses = UsesAll;
    std::sort(m_problems.begin(), m_problems.end(), [](const NxSceneProblem& left, const NxSceneProblem& right) {
        return std::pair(left.place, left.kind) < std::pair(right.place, right.kind);
    });
    return true;
}

void SiblingCheck::reportMore()
{
    for (std::size_t kind = 0; m_hasReports && kind < m_reported.size(); ++kind) {
        std::vector<int>& more = m_reported[kind].more;
        if (more.empty())
            continue;
        m_reported[kind].count = 0;
        const int first = more.front();
        std::vector<int> places = std::exchange(more, {});
        report(static_cast<NxProblemKind>(kind), first, places.size(), m_group->getChild(first)->getName().view());
        if (places.size() > 1)
            m_problems.back().places = std::make_shared<const std::vector<int>>(std::move(places));
    }
}

} // namespace meridane
