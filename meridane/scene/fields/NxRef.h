#pragma once

#include <utility>

/// A counted reference to a node, which exists at least as long as the reference.
template <typename Node>
class NxRef {
public:
    NxRef() noexcept = default;
    /// Holds a node, which may be null.
    NxRef(Node* node) // NOLINT(google-explicit-constructor): a pointer converts to a reference that holds it
        : m_node(node)
    {
        if (m_node != nullptr)
            m_node->ref();
    }
    /// Holds the node of a reference to a derived class.
    template <typename Derived>
    NxRef(const NxRef<Derived>& other) // NOLINT(google-explicit-constructor): as pointers convert
        : NxRef(other.get())
    {
    }
    /// Holds the same node once more.
    NxRef(const NxRef& other)
        : NxRef(other.m_node)
    {
    }
    /// Takes over the reference of `other`, which is null afterwards.
    NxRef(NxRef&& other) noexcept
        : m_node(std::exchange(other.m_node, nullptr))
    {
    }
    ~NxRef()
    {
        if (m_node != nullptr)
            m_node->unref();
    }

    /// Holds the node of `other` and releases the former one.
    NxRef& operator=(NxRef other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }

    /// The node, or null. It is valid as long as a reference exists.
    [[nodiscard]] Node* get() const noexcept { return m_node; }
    /// The node, which must not be null if it is used.
    Node* operator->() const noexcept { return m_node; }
    /// The node, which must not be null.
    Node& operator*() const noexcept { return *m_node; }
    /// Whether there is a node.
    explicit operator bool() const noexcept { return m_node != nullptr; }

    /// Whether both hold the same node, or none.
    friend bool operator==(const NxRef& left, const NxRef& right) noexcept { return left.m_node == right.m_node; }

private:
    Node* m_node = nullptr;
};
