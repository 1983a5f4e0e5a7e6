#pragma once

/// The table of interned names: one copy of each text, kept until the process ends.
class VbNameChunk {
public:
    /// Returns the one copy of the NUL-terminated text, so that equal texts give equal pointers. A null pointer counts
    /// as the empty text. Any thread.
    static const char* insert(const char* text);
};
