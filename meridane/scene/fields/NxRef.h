#pragma once

#include <utility>

/// A counted reference to a node, which exists at least as long as the reference.
template <typename Node>
class NxRef {
public:
    NxRef() noexcept = default;
    NxRef(Node* node) // NOLINT(google-explicit-constructor): a pointer converts to a reference that holds it
        : m_node(node)
    {
        if (m_node != nullptr)
            m_node->ref();
    }
    template <typename Derived>
    NxRef(const NxRef<Derived>& other) // NOLINT(google-explicit-constructor): as pointers convert
        : NxRef(other.get())
    {
    }
    NxRef(const NxRef& other)
        : NxRef(other.m_node)
    {
    }
    NxRef(NxRef&& other) noexcept
        : m_node(std::exchange(other.m_node, nullptr))
    {
    }
    ~NxRef()
    {
        if (m_node != nullptr)
            m_node->unref();
    }

    NxRef& operator=(NxRef other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }

    [[nodiscard]] Node* get() const noexcept { return m_node; }
    Node* operator->() const noexcept { return m_node; }
    Node& operator*() const noexcept { return *m_node; }
    explicit operator bool() const noexcept { return m_node != nullptr; }

    friend bool operator==(const NxRef& left, const NxRef& right) noexcept { return left.m_node == right.m_node; }

private:
    Node* m_node = nullptr;
};
