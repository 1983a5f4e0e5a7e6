#pragma once

#include "meridane/base/types/NxType.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace meridane {
class JournalStep;
}

class HistoryStep;
class OrvHistory;

/// The finished steps of the undo history, the oldest first, to list them and to look into them.
///
/// Steps have indexes from 0. The first ones, as many as `position` says, are done; the others can be redone.
/// `OrvServices` owns the only object. Thread of the user interface only.
class OrvStepList : public QObject {
    Q_OBJECT

public:
    /// The history lives longer.
    explicit OrvStepList(const OrvHistory& history);
    ~OrvStepList() override;

    [[nodiscard]] int count() const; ///< How many steps there are, undone ones included.
    /// How many of the steps are done.
    [[nodiscard]] int position() const;
    /// Whether the scene was saved in its state after that many steps, from 0 to `count`.
    [[nodiscard]] bool isSavedAt(int position) const;
    /// Whether there were steps before the first one, which were dropped to limit the memory.
    [[nodiscard]] bool hasDropped() const;
    /// The memory of all steps in bytes, estimated.
    [[nodiscard]] std::size_t bytes() const;
    [[nodiscard]] std::size_t limit() const; ///< The limit of that memory, in bytes.

    // Of one step, by its index.

    /// What it changed, such as "Set arm.rotation"; empty if it changed nothing.
    [[nodiscard]] QString label(int index) const;
    /// The class of the node that it changed, added, moved or removed; the bad type for several.
    [[nodiscard]] NxType nodeType(int index) const;
    /// When it began.
    [[nodiscard]] std::chrono::system_clock::time_point time(int index) const;
    /// The changes themselves; null if it changed nothing. Valid until the step changes or is dropped. The records may
    /// only be looked at: the next undo or redo depends on them.
    [[nodiscard]] const meridane::JournalStep* changes(int index) const;
    /// A number that no other step has or had. A step gets another one when a change is added to it, as to a text that
    /// is typed on.
    [[nodiscard]] std::uint64_t number(int index) const;

Q_SIGNALS:
    /// The `dropped` oldest steps are gone. Of those that are there now, all from the index `first` on may be others
    /// than before, and there may be more or fewer of them.
    void changed(int dropped, int first);
    /// The position, the saved state, the memory or its limit has changed, or the steps have.
    void updated();
    /// The step of that index has been undone or redone.
    void movedOver(int index);

private:
    [[nodiscard]] const HistoryStep& step(int index) const;

    const OrvHistory& m_history;
};
