#pragma once

#include "meridane/scene/fields/ChangeRecord.h"

#include <cstddef>
#include <cstdint>

class NxField;
class NxFieldContainer;

namespace meridane {

/// A change of one place of a scene.
struct PlaceChange {
    /// Why a place changes.
    enum class Cause : std::uint8_t {
        Write, ///< somebody writes to the place
        Exchange, ///< a step is undone or redone
    };

    Cause cause = Cause::Write; ///< why the place changes
    ChangeRecord::Kind kind = ChangeRecord::Kind::Value; ///< what the place is
    NxFieldContainer* node = nullptr; ///< the node that the place belongs to
    NxField* field = nullptr; ///< null for a name and for children
    /// For rows and children, from which one on how many are replaced by how many others. For the value of a list,
    /// `removed` is the number of its rows; how many it gets is unknown.
    std::size_t start = 0;
    std::size_t removed = 0; ///< how many are replaced
    std::size_t inserted = 0; ///< by how many others
};

/// Is informed by a journal of what happens in its scene. Thread of the user interface only.
class JournalListener {
public:
    JournalListener() = default;
    JournalListener(const JournalListener&) = delete;
    JournalListener& operator=(const JournalListener&) = delete;

    /// A place is about to change. Must not write to the scene. Within a step, further writes to the same place aren't
    /// reported (see `Journal::reportAgain`); those to children and to the number of rows always are, unless the whole
    /// list was written before. A write of rows that fails is followed by the opposite change.
    virtual void aboutToChange(const PlaceChange& change) noexcept = 0;
    /// The node of that number is being destroyed; its fields don't exist any more.
    virtual void aboutToDestroy(std::size_t /*number*/) noexcept { }

protected:
    ~JournalListener() = default;
};

} // namespace meridane
