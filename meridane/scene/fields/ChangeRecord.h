#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxRef.h"

#include <cstddef>
#include <cstdint>

namespace meridane {

/// What one write replaced: the state of one place before it, with which the write can be undone and redone.
///
/// A place is the value of a field, some rows of a list, an ignored flag, the name of a node or some children of a
/// group. A record keeps its node alive. Thread of the user interface only.
class ChangeRecord {
public:
    /// What the place is.
    enum class Kind : std::uint8_t { Value, Rows, Ignored, Name, Children };

    ChangeRecord(const ChangeRecord&) = delete;
    ChangeRecord& operator=(const ChangeRecord&) = delete;
    virtual ~ChangeRecord();

    /// What the place of this record is.
    [[nodiscard]] Kind kind() const noexcept { return m_kind; }
    /// The node that the place belongs to.
    [[nodiscard]] NxFieldContainer& node() const noexcept { return *m_node; }
    /// The field that the place belongs to; null for a name and for children.
    [[nodiscard]] virtual NxField* field() const noexcept { return nullptr; }

    /// Exchanges the state of the place with the recorded one, without notifications and without a new record. Called
    /// first, it undoes the write; called again, it redoes the write, and so on. The scene must be in the state that
    /// directly followed the write, or directly preceded it.
    virtual void exchange() = 0;
    /// Whether the place is in the recorded state now, bit for bit.
    [[nodiscard]] virtual bool isSameAsNow() const = 0;
    /// Which rows of a list or children of a group the place consists of.
    struct Extent {
        std::size_t start = 0; ///< the first of them, counted from 0
        std::size_t present = 0; ///< how many they are in the scene; for a list only while it isn't being written
        std::size_t recorded = 0; ///< how many they are in the recorded state
    };
    /// The extent of rows, of children and of the value of a list; nothing for other places.
    [[nodiscard]] virtual Extent extent() const noexcept { return {}; }
    /// By how many rows or children the place is longer now than in the recorded state; 0 for other places.
    [[nodiscard]] std::ptrdiff_t growth() const noexcept
    {
        if (m_kind != Kind::Rows && m_kind != Kind::Children)
            return 0;
        const Extent extent = this->extent();
        return static_cast<std::ptrdiff_t>(extent.present) - static_cast<std::ptrdiff_t>(extent.recorded);
    }
    /// Shows what is recorded in the place itself, whatever the state of the scene: the value, the flag, the name, or
    /// the recorded rows as a list of their own. Called again, it puts the present state back, which must happen before
    /// anything else. Without notifications and records, and not for children.
    virtual void show() { exchange(); }
    /// Notifies the observers of the place that it changed.
    virtual void notify() const = 0;
    /// The memory of the record in bytes, approximately.
    [[nodiscard]] virtual std::size_t bytes() const = 0;
    /// Called once when no more writes are added to the step of this record: the next write to the place makes a new
    /// record.
    virtual void close() noexcept { }

protected:
    /// Holds a reference to the node until the record is destroyed.
    ChangeRecord(Kind kind, NxFieldContainer& node)
        : m_node(&node)
        , m_kind(kind)
    {
    }

private:
    NxRef<NxFieldContainer> m_node;
    Kind m_kind;
};

} // namespace meridane
