#include "meridane/scene/check/NxSceneCheck.h"

#include "meridane/scene/check/detail/CheckWork.h"
#include "meridane/scene/check/detail/WorkMeter.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <chrono>
#include <exception>
#include <utility>

namespace {

// So many places of a step are checked again while it goes on.
constexpr std::size_t mostLivePlaces = 200;

} // namespace

NxSceneCheck::NxSceneCheck(NxRef<NxGroup> scene, NxCheckOptions options)
    : m_scene(std::move(scene))
    , m_options(std::move(options))
    , m_work(std::make_unique<meridane::CheckWork>(*m_scene, m_options))
{
}

NxSceneCheck::~NxSceneCheck() = default;

NxSceneCheck::State NxSceneCheck::step(const meridane::WorkBudget& budget)
{
    if (m_isOutdated)
        restart();
    meridane::WorkMeter meter(budget);
    while (!m_again.empty()) {
        if (meter.isSpent())
            return State::Working;
        meter.count(1);
        noteAgain(m_again.back());
        m_again.pop_back();
    }
    return m_work->step(meter) ? State::Working : State::Done;
}

NxSceneCheck::State NxSceneCheck::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return State::Done;
}

void NxSceneCheck::restart()
{
    m_isOutdated = false;
    m_touched.clear();
    m_again.clear();
    m_work.reset();
    m_work = std::make_unique<meridane::CheckWork>(*m_scene, m_options);
}

std::size_t NxSceneCheck::nodeCount() const
{
    return m_work->nodeCount();
}

void NxSceneCheck::aboutToChange(const meridane::PlaceChange& change) noexcept
{
    auto* const node = dynamic_cast<NxNode*>(change.node);
    if (node == nullptr)
        return;
    try {
        if (change.kind == meridane::ChangeRecord::Kind::Children) {
            m_work->noteChildren(static_cast<NxGroup&>(*node), change.start, change.removed);
            return;
        }
        const bool isName = change.kind == meridane::ChangeRecord::Kind::Name;
        // Rows of a list are reported one by one.
        if (!m_touched.empty() && m_touched.back().node.get() == node && m_touched.back().isName == isName
            && change.kind == meridane::ChangeRecord::Kind::Rows)
            return;
        m_touched.push_back({NxRef<NxNode>(node), isName});
        noteAgain(m_touched.back());
    } catch (const std::exception&) {
        m_isOutdated = true;
    }
}

void NxSceneCheck::noteAgain(const Touched& touched)
{
    if (touched.isName)
        m_work->noteName(*touched.node);
    else
        m_work->noteValue(*touched.node);
}

void NxSceneCheck::noteStep(bool isOver) noexcept
{
    try {
        if (!isOver && m_touched.size() <= mostLivePlaces) {
            for (const Touched& touched : m_touched)
                noteAgain(touched);
        } else if (isOver && m_again.empty()) {
            m_again.swap(m_touched);
        } else if (isOver) {
            m_again.insert(m_again.end(), m_touched.begin(), m_touched.end());
            m_touched.clear();
        }
    } catch (const std::exception&) {
        m_isOutdated = true;
    }
}

void NxSceneCheck::noteFilesFound() noexcept
{
    try {
        m_work->noteFiles();
    } catch (const std::exception&) {
        m_isOutdated = true;
    }
}

std::size_t NxSceneCheck::count(NxSeverity severity) const
{
    return m_work->lists().count(severity);
}

std::size_t NxSceneCheck::listEnd() const
{
    return m_work->lists().end();
}

std::span<const NxSceneProblem> NxSceneCheck::list(std::size_t number) const
{
    return m_work->lists().get(static_cast<std::uint32_t>(number));
}

std::vector<std::uint32_t> NxSceneCheck::takeChangedLists()
{
    return m_work->lists().takeChanges();
}

void NxSceneCheck::reportAll(const Report& report) const
{
    if (listEnd() == 0)
        return;
    const auto pass = [&](std::uint32_t number, std::vector<int> places, bool areChildren) {
        const auto problems = m_work->lists().get(number);
        for (const NxSceneProblem& problem : problems) {
            if (areChildren)
                places.push_back(problem.place);
            const bool goesOn = report(problem, places);
            if (areChildren)
                places.pop_back();
            if (!goesOn)
                return false;
        }
        return true;
    };
    if (!pass(m_work->listsOf(*m_scene).children, {}, true))
        return;
    meridane::NodeTraversal nodes(*m_scene);
    while (const NxNode* const node = nodes.next()) {
        const meridane::CheckWork::NodeLists lists = m_work->listsOf(*node);
        if (lists.values == meridane::ProblemLists::none && lists.children == meridane::ProblemLists::none)
            continue;
        const std::vector<int> places = nodes.indices();
        if (!pass(lists.values, places, false) || !pass(lists.children, places, true))
            return;
    }
}

std::vector<int> NxSceneCheck::placesOf(const NxSceneProblem& problem) const
{
    if (!problem.group)
        return m_work->placesOf(*problem.node);
    std::vector<int> places = m_work->placesOf(*problem.group);
    const bool isTop = problem.group == m_scene;
    if (places.empty() && !isTop)
        return {};
    const int place = problem.group->getChild(problem.place) == problem.node.get()
        ? problem.place
        : problem.group->findChild(problem.node.get());
    if (place < 0)
        return {};
    places.push_back(place);
    return places;
}
