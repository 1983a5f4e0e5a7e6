#pragma once

#include <cstdint>
#include <vector>

class NxTypedObject;
class VbName;

/// A handle of a run-time class: a 32-bit index into the registry of classes. Cheap to copy and to compare.
///
/// A class is registered once, after its parent, and keeps its index for the life of the process. All operations may be
/// called on any thread.
class NxType {
public:
    /// Makes a new instance on the heap, with its defaults.
    using Factory = NxTypedObject* (*)();

    /// The bad type: derived from nothing, not even itself.
    constexpr NxType() noexcept = default;

    /// Registers a class. A name that is taken gives the bad type. `parent` is the bad type for a root; `factory` is
    /// null for an abstract class.
    static NxType registerClass(const VbName& name, NxType parent, Factory factory);
    /// Removes a class before its code is unloaded: its name is free again and `createInstance` returns null. Its
    /// handles can still be compared.
    static void unregisterClass(NxType type);
    /// The class of that name, or the bad type.
    [[nodiscard]] static NxType fromName(const VbName& name);
    /// All classes now registered that derive from `type`, itself included, in the order of registration.
    [[nodiscard]] static std::vector<NxType> getAllDerivedFrom(NxType type);

    /// Whether this is the bad type.
    [[nodiscard]] bool isBad() const noexcept { return m_index == 0; }
    /// The name of the class, empty for the bad type.
    [[nodiscard]] VbName getName() const;
    /// The parent, or the bad type for a root.
    [[nodiscard]] NxType getParent() const noexcept;
    /// True when an instance can be made.
    [[nodiscard]] bool canCreateInstance() const noexcept;

    /// True when this type is `other` or derives from it, in constant time.
    [[nodiscard]] bool isDerivedFrom(const NxType& other) const noexcept;

    /// Makes a new instance with its fields at their defaults. The result is an `NxTypedObject*`, converted to `void*`.
    /// The caller owns it (a node comes with no reference). With `overrideType` that type is made instead, if it
    /// derives from this one. Null for an abstract or bad type.
    [[nodiscard]] void* createInstance(NxType* overrideType) const;

    /// Whether both are the same class; two bad types are equal.
    friend constexpr bool operator==(const NxType&, const NxType&) noexcept = default;

private:
    constexpr explicit NxType(std::uint32_t index) noexcept
        : m_index(index)
    {
    }

    std::uint32_t m_index = 0;
};
