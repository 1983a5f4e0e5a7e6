#pragma once

#include "meridane/base/values/detail/VbNameChunk.h"

/// An interned name: a pointer-sized value that compares in one step. The text is Latin-1.
class VbName {
public:
    /// The empty name.
    VbName()
        : m_text(VbNameChunk::insert(""))
    {
    }
    /// Interns the NUL-terminated text; a null pointer gives the empty name.
    VbName(const char* text) // NOLINT(google-explicit-constructor): literals are names
        : m_text(VbNameChunk::insert(text))
    {
    }

    /// The interned text, NUL-terminated, valid for the life of the process.
    [[nodiscard]] const char* getString() const noexcept { return m_text; }
    /// Whether the name has no characters.
    [[nodiscard]] bool isEmpty() const noexcept { return *m_text == '\0'; }

    /// Whether the texts are equal, by comparing two pointers.
    friend bool operator==(const VbName& left, const VbName& right) noexcept { return left.m_text == right.m_text; }

private:
    const char* m_text;
};
