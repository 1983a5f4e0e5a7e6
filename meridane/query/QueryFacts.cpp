#include "meridane/query/QueryFacts.h"

#include "meridane/scene/check/NxSceneProblem.h"

#include <algorithm>
#include <cstdint>

namespace meridane {
namespace {

bool isAboutUse(NxProblemKind kind) noexcept
{
    return kind == NxProblemKind::UnusedMaterial || kind == NxProblemKind::UnusedTexture
        || kind == NxProblemKind::UnusedComplexity || kind == NxProblemKind::UnusedLight
        || kind == NxProblemKind::EmptyGroup;
}

} // namespace

bool QueryFacts::add(const NxSceneProblem& problem, std::size_t first, std::size_t count)
{
    const auto insert = [](Addresses& addresses, const void* address) {
        if (address != nullptr)
            addresses[partOf(address)].insert(address);
    };
    if (problem.kind == NxProblemKind::MissingFile)
        insert(m_missing, problem.field);
    if (!isAboutUse(problem.kind))
        return false;
    if (problem.places == nullptr || problem.group == nullptr) {
        insert(m_unused, problem.node.get());
        return false;
    }
    const std::size_t all = problem.places->size();
    const std::size_t begin = std::min(first, all);
    const std::size_t end = begin + std::min(count, all - begin);
    for (std::size_t i = begin; i < end; ++i)
        insert(m_unused, problem.group->getChild((*problem.places)[i]));
    return end < all;
}

std::size_t QueryFacts::partOf(const void* address) noexcept
{
    constexpr unsigned int alignmentBits = 4;
    return (reinterpret_cast<std::uintptr_t>(address) >> alignmentBits) % partCount;
}

bool QueryFacts::contains(const Addresses& addresses, const void* address)
{
    return addresses[partOf(address)].contains(address);
}

} // namespace meridane
