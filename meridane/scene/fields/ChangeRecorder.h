#pragma once

#include <cstdint>
#include <memory>
#include <span>

class NxField;
class NxFieldContainer;
class NxNode;

namespace meridane {

class ChangeRecord;

/// Receives a record of each write to the nodes of one scene, before the write happens. At most one recorder is
/// attached at a time; without one, a write only costs the test for it. Thread of the user interface only.
class ChangeRecorder {
public:
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// The recorder that is attached, or null.
    [[nodiscard]] static ChangeRecorder* attached() noexcept { return s_attached; }
    /// The attached recorder if it follows that node, which may be null. It has room for one more record, so that `add`
    /// can't fail. May throw `std::bad_alloc`.
    [[nodiscard]] static ChangeRecorder* of(const NxFieldContainer* node);

    /// Takes the record of a write that happens next. Only after `of`, once for each call.
    virtual void add(std::unique_ptr<ChangeRecord> record) noexcept = 0;
    /// Takes back the latest record, of rows: the write has failed and changed nothing.
    virtual void withdraw() noexcept = 0;
    /// Whether a row of a list needs no record, since the open step has one already.
    [[nodiscard]] virtual bool hasRow(const NxField& list, int row) const noexcept = 0;
    /// Notes that the record that was added last is one of that row alone. May throw `std::bad_alloc`.
    virtual void noteRow(const NxField& list, int row) = 0;
    /// Follows these nodes, and those below them, from now on. They are about to become children of a node that is
    /// followed. May throw `std::bad_alloc`; then nothing else has changed.
    virtual void follow(std::span<NxNode* const> nodes) = 0;
    /// A record that was taken earlier is about to be exchanged.
    virtual void noteExchange(const ChangeRecord& record) noexcept = 0;
    /// A node that was followed is being destroyed.
    virtual void forget(const NxFieldContainer& node) noexcept = 0;

protected:
    ChangeRecorder() = default;
    virtual ~ChangeRecorder() = default;

    /// Attaches a recorder in place of the present one; null for none. It must be detached before it is destroyed.
    static void attach(ChangeRecorder* recorder) noexcept { s_attached = recorder; }

    /// The number that the recorder gave a node; 0 for none.
    [[nodiscard]] static std::uint32_t numberOf(const NxFieldContainer& node) noexcept;
    /// Gives a node a number below 2^31 of the recorder's choice; 0 takes it away.
    static void setNumber(NxFieldContainer& node, std::uint32_t number) noexcept;

    /// What the recorder has of a field or a node from before the present step, so that further writes make no records.
    struct Marks {
        bool value = false; ///< the whole value, or the whole list, is recorded
        bool ignored = false; ///< the ignored flag is recorded
        bool name = false; ///< the name is recorded

        /// Whether there is no record of the field or node.
        [[nodiscard]] bool isEmpty() const noexcept { return !value && !ignored && !name; }
    };
    /// What the recorder has of the value and of the ignored flag.
    [[nodiscard]] static Marks marksOf(const NxField& field) noexcept;
    /// Whether the recorder has the name.
    [[nodiscard]] static Marks marksOf(const NxFieldContainer& node) noexcept;
    /// Removes the marks: the next write makes a record again.
    static void removeMarks(NxField& field) noexcept;
    /// Removes the mark of the name.
    static void removeMarks(NxFieldContainer& node) noexcept;

private:
    /// Whether the node is one of the scene.
    [[nodiscard]] virtual bool follows(const NxFieldContainer& node) const noexcept = 0;
    virtual void makeRoom() = 0;

    static ChangeRecorder* s_attached;
};

} // namespace meridane
