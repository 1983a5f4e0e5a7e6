#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The codes of the recovery file. docs/recovery-format.md describes the whole format.
namespace meridane::RecoveryFormat {

/// The first line; a number and a line feed follow.
inline constexpr std::string_view signature = "#mrd-recovery ";
inline constexpr std::string_view version = "1";

/// Written as it is in memory, since the rows of lists are.
inline constexpr std::uint64_t byteOrder = 0x0102030405060708;

/// Checksum, checksum of the entry before, size of the content, kind.
inline constexpr std::size_t entryHeadSize = 25;

enum class EntryKind : std::uint8_t { Description = 1, Operations = 2, Commit = 3 };

enum class Operation : std::uint8_t {
    Class = 1, ///< kind, name, field count, and for each field: name, type, hash of the default
    Node = 2, ///< class
    Name = 3, ///< node, text
    Ignored = 4, ///< node, field, flag
    Value = 5, ///< node, field, part, text
    Image = 6, ///< node, field, part, (first: width, height, components), bytes
    PlainRows = 7, ///< node, field, start, replaced, bytes
    TextRows = 8, ///< node, field, start, replaced, count, texts
    Children = 9, ///< node, start, removed, count, nodes
    UnknownField = 10, ///< node, part, (first: ignored, name), text
};

enum class ClassKind : std::uint8_t { Known = 0, Unknown = 1 };

/// Which part of a content an operation has; both for a content in one part.
inline constexpr std::uint8_t firstPart = 1;
inline constexpr std::uint8_t lastPart = 2;

} // namespace meridane::RecoveryFormat
