#pragma once

#include "orvane/app/history/StepIndex.h"

#include <cstddef>
#include <vector>

namespace meridane {
class Journal;
}

/// Puts one place of the scene into a state of the history for a moment, to look at it: the value of a field, its
/// ignored flag or the name of a node. The destructor puts the present state back. Nobody is notified, and nothing else
/// may happen in between.
class PastState {
public:
    /// The steps of a history and how to find them. All live longer.
    struct History {
        const OrvStepList& steps;
        const StepIndex& index;
        const meridane::Journal& journal;
    };

    /// The place as it was after `position` steps of the history. If that needs more than `mostRecords` records, or the
    /// records don't fit the scene (which only happens where the commands alone undo steps), it isn't reached.
    PastState(const History& history, const StepPlace& place, int position, std::size_t mostRecords);
    PastState(const PastState&) = delete;
    PastState& operator=(const PastState&) = delete;
    ~PastState();

    [[nodiscard]] bool isReached() const noexcept { return m_isReached; }

private:
    void collect(const History& history, const StepPlace& place, int position, std::size_t mostRecords);
    bool add(const StepPlace& place, meridane::ChangeRecord& record);
    [[nodiscard]] bool doFit() const;

    /// In the order in which they lead from the past to the present. Only the last one may hold a whole value.
    std::vector<meridane::ChangeRecord*> m_records;
    bool m_isReached = false;
};
