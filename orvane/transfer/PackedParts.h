#pragma once

#include "orvane/transfer/SpaceNote.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The values of one field of a packed scene.
struct PackedBlock {
    enum class Kind { List, Image };

    Kind kind = Kind::List;
    std::size_t node = 0; // its number
    std::string field; // its name
    // Of an image:
    short width = 0;
    short height = 0;
    int components = 0;
    /// The values as they are in memory.
    std::vector<unsigned char> bytes;
};

/// Splits a packed scene while its bytes arrive, so that each block is in memory once and can be moved. See
/// `PackedScene` for the format.
///
/// Only the form is checked here: lines, sizes, and completeness. Memory for a block is reserved within the size that
/// the first line gives, and isn't written before its bytes arrive.
class PackedParts {
public:
    PackedParts() = default;
    PackedParts(PackedParts&&) = default;
    PackedParts(const PackedParts&) = delete;
    PackedParts& operator=(const PackedParts&) = delete;

    /// Adds the next bytes. Bytes after an error are ignored.
    void take(std::string_view bytes);

    /// Whether the first line is that of a packed scene.
    [[nodiscard]] bool hasBegun() const noexcept { return m_hasBegun; }
    /// Whether all bytes have arrived and have the right form.
    [[nodiscard]] bool isComplete() const noexcept { return m_phase == Phase::Complete; }
    /// Whether the bytes are wrong, so that further bytes can't complete them.
    [[nodiscard]] bool isBroken() const noexcept { return m_phase == Phase::Broken; }
    /// What is wrong or missing, one line; empty when it is complete.
    [[nodiscard]] std::string failure() const;

    /// The warnings that come with the scene, in order, one line of text each.
    [[nodiscard]] const std::vector<std::string>& warnings() const noexcept { return m_warnings; }
    /// The note that comes with the scene, one line.
    [[nodiscard]] const SpaceNote& note() const noexcept { return m_note; }
    /// The blocks so far; the last one may lack bytes.
    [[nodiscard]] const std::vector<PackedBlock>& blocks() const noexcept { return m_blocks; }
    /// The text of the scene file without the blocks, and the blocks in the order of the nodes and fields. To be called
    /// once, when it is complete.
    [[nodiscard]] std::string takeText() noexcept { return std::move(m_text); }
    [[nodiscard]] std::vector<PackedBlock> takeBlocks() noexcept { return std::move(m_blocks); }

private:
    enum class Phase { FirstLine, TextLine, Text, BlockLine, Block, Complete, Broken };

    std::size_t takeSome(std::string_view bytes);
    std::size_t takePartOfLine(std::string_view bytes);
    void readLine();
    void readFirstLine(std::string_view line);
    void readWarning(std::string_view text);
    void readTextLine(std::string_view line);
    void readBlockLine(std::string_view line);
    void endAtEnd();
    void fail(std::string reason);
    void failAtSize();
    [[nodiscard]] std::string part() const;

    Phase m_phase = Phase::FirstLine;
    bool m_hasBegun = false;
    std::string m_failure;
    std::size_t m_left = std::string::npos; // bytes that are still to come, once the first line is known
    std::size_t m_leftOfPart = 0; // the same of the text or the block
    std::string m_line; // that isn't whole yet
    std::vector<std::string> m_warnings;
    SpaceNote m_note;
    std::string m_text;
    std::vector<PackedBlock> m_blocks;
};

} // namespace orvane
