#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/ChangeRecord.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

class OrvStepList;

/// What a record of a step is about: the value of a field, its ignored flag, or the name of a node.
struct StepPlace {
    meridane::ChangeRecord::Kind kind; ///< a value also where rows of a list are recorded
    const void* owner; ///< the field or the node

    /// The place of a record; nothing for children.
    [[nodiscard]] static std::optional<StepPlace> of(const meridane::ChangeRecord& record);

    bool operator==(const StepPlace&) const = default;
};

/// Finds the steps of the history that changed a place of the scene. Steps are read in slices, since one may have
/// changed a million nodes.
class StepIndex {
public:
    /// The list lives longer.
    explicit StepIndex(const OrvStepList& steps);

    /// Follows a change of the list: see `OrvStepList::changed`.
    void follow(int dropped, int first);
    /// Reads steps for about as long as `budget`. Returns true if there are more.
    bool run(const meridane::WorkBudget& budget);
    /// Whether all steps have been read.
    [[nodiscard]] bool isComplete() const;
    /// The first step from the index `begin` to before `end` that changed the place, of those read; -1 for none.
    [[nodiscard]] int findFirst(const StepPlace& place, int begin, int end) const;
    /// The last one.
    [[nodiscard]] int findLast(const StepPlace& place, int begin, int end) const;

private:
    struct Hash {
        std::size_t operator()(const StepPlace& place) const noexcept;
    };
    struct Entry {
        std::int64_t place; // of the step among all steps that ever were
        std::uint64_t number; // of the step, since another one may have come to its place
    };

    [[nodiscard]] std::span<const Entry> entriesOf(const StepPlace& place, int begin, int end) const;
    [[nodiscard]] int indexOf(const Entry& entry) const { return static_cast<int>(entry.place - m_dropped); }
    [[nodiscard]] bool isThere(const Entry& entry) const;
    bool readStep(const meridane::WorkBudget& budget);
    void add(const StepPlace& place);
    void forgetAfter(std::size_t steps);
    void startAgain();

    const OrvStepList& m_steps;
    std::unordered_map<StepPlace, std::vector<Entry>, Hash> m_entries;
    std::deque<std::uint32_t> m_counts; // of the entries of each step that was read
    std::int64_t m_dropped = 0; // steps before the first one of the list
    std::size_t m_nextRecord = 0; // of the step that is being read
    std::size_t m_entryCount = 0;
    std::size_t m_staleCount = 0; // of the entries of steps that are gone
};
