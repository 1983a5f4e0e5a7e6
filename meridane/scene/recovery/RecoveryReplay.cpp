#include "meridane/scene/recovery/RecoveryReplay.h"

#include "meridane/scene/recovery/RecoveryFileReader.h"
#include "meridane/scene/recovery/detail/OperationReplay.h"

#include <cassert>
#include <chrono>
#include <new>
#include <stdexcept>
#include <utility>

namespace meridane {

template <typename Action>
void RecoveryReplay::doWithinMemory(const Action& action)
{
    try {
        action();
    } catch (const std::bad_alloc&) {
        fail("the scene doesn't fit in memory");
    } catch (const std::length_error&) {
        fail("the scene doesn't fit in memory");
    }
}

RecoveryReplay::RecoveryReplay(const RecoveryFileReader& file, NxRef<NxGroup> base)
{
    assert(file.state() == RecoveryFileReader::State::Done && "there is a commit");
    const RecoveryDescription& description = file.description();
    if ((description.base == RecoveryDescription::Base::Nothing) == bool(base)) {
        fail(base ? "its changes begin from an empty scene, not from a file"
                  : "its changes begin from the file " + description.fileName + ", which is missing");
        return;
    }
    doWithinMemory([&] {
        m_replay = std::make_unique<OperationReplay>(file.operations(), std::move(base), description.nodeCount);
    });
}

RecoveryReplay::~RecoveryReplay() = default;

RecoveryReplay::State RecoveryReplay::step(const WorkBudget& budget)
{
    if (m_state != State::Working)
        return m_state;
    doWithinMemory([&] {
        if (m_replay->step(budget))
            return;
        if (m_replay->failure().empty())
            m_state = State::Done;
        else
            fail(m_replay->failure());
    });
    return m_state;
}

RecoveryReplay::State RecoveryReplay::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return m_state;
}

double RecoveryReplay::progress() const noexcept
{
    if (m_state == State::Done)
        return 1;
    return m_replay != nullptr ? m_replay->progress() : 0;
}

NxRef<NxGroup> RecoveryReplay::takeScene()
{
    return m_state == State::Done ? m_replay->takeScene() : nullptr;
}

void RecoveryReplay::fail(std::string reason)
{
    m_failure = std::move(reason);
    m_state = State::Failed;
    m_replay.reset();
}

} // namespace meridane
