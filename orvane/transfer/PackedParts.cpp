#include "orvane/transfer/PackedParts.h"

#include "orvane/transfer/Frames.h"
#include "orvane/transfer/PackedScene.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace orvane {
namespace {

constexpr std::size_t longestLine = PackedScene::longestWarning + 100;
constexpr const char* noBegin = "it doesn't begin like one";

// Takes a blank and a number up to that off.
template <typename Number>
bool takeNumberUpTo(std::string_view& line, Number greatest, Number& number)
{
    const std::optional<std::size_t> found = takeStart(line, " ") ? takeNumber(line) : std::nullopt;
    if (!found || *found > static_cast<std::size_t>(greatest))
        return false;
    number = static_cast<Number>(*found);
    return true;
}

} // namespace

void PackedParts::take(std::string_view bytes)
{
    try {
        while (!bytes.empty() && !isBroken()) {
            if (isComplete())
                return fail("there are bytes behind its end");
            const std::size_t count = takeSome(bytes.substr(0, m_left));
            bytes.remove_prefix(count);
            endAtEnd();
        }
    } catch (const std::bad_alloc&) {
        fail("the scene doesn't fit in memory");
    } catch (const std::length_error&) {
        fail("the scene doesn't fit in memory");
    }
}

std::string PackedParts::failure() const
{
    if (isComplete() || isBroken())
        return m_failure;
    return m_hasBegun ? "bytes are missing at its end" : noBegin;
}

// Returns the number of bytes used.
std::size_t PackedParts::takeSome(std::string_view bytes)
{
    if (m_phase != Phase::Text && m_phase != Phase::Block)
        return takePartOfLine(bytes);
    const std::string_view part = bytes.substr(0, m_leftOfPart);
    if (m_phase == Phase::Text) {
        m_text += part;
    } else {
        const auto* first = reinterpret_cast<const unsigned char*>(part.data());
        std::vector<unsigned char>& block = m_blocks.back().bytes;
        block.insert(block.end(), first, first + part.size());
    }
    m_left -= part.size();
    m_leftOfPart -= part.size();
    if (m_leftOfPart == 0)
        m_phase = Phase::BlockLine;
    return part.size();
}

std::size_t PackedParts::takePartOfLine(std::string_view bytes)
{
    const std::size_t end = bytes.find('\n');
    const std::string_view part = bytes.substr(0, end);
    if (m_line.size() + part.size() > longestLine) {
        m_hasBegun ? failAtSize() : fail(noBegin);
        return part.size();
    }
    m_line += part;
    const std::size_t count = part.size() + (end == std::string_view::npos ? 0 : 1);
    if (m_hasBegun)
        m_left -= count;
    if (end != std::string_view::npos)
        readLine();
    return count;
}

void PackedParts::readLine()
{
    const std::string line = std::exchange(m_line, {});
    if (m_phase == Phase::FirstLine)
        readFirstLine(line);
    else if (m_phase == Phase::TextLine)
        readTextLine(line);
    else
        readBlockLine(line);
}

void PackedParts::readFirstLine(std::string_view line)
{
    const std::optional<std::size_t> size = takeStart(line, PackedScene::firstWords) ? takeNumber(line) : std::nullopt;
    if (!size || !line.empty() || *size > std::numeric_limits<std::size_t>::max() / 2)
        return fail(noBegin);
    m_hasBegun = true;
    m_left = *size;
    m_phase = Phase::TextLine;
}

void PackedParts::readWarning(std::string_view text)
{
    if (m_warnings.size() == PackedScene::mostWarnings)
        return fail("it has more than " + std::to_string(PackedScene::mostWarnings) + " warnings");
    m_warnings.emplace_back(text);
}

void PackedParts::readTextLine(std::string_view line)
{
    if (takeStart(line, "warning "))
        return readWarning(line);
    for (const bool isConverted : {false, true}) {
        if (takeStart(line, isConverted ? "conversion " : "note ")) {
            m_note = {std::string(line), isConverted};
            return;
        }
    }
    const std::optional<std::size_t> size = takeStart(line, "text ") ? takeNumber(line) : std::nullopt;
    if (!size || !line.empty() || *size > m_left)
        return failAtSize();
    m_text.reserve(*size);
    m_leftOfPart = *size;
    m_phase = *size == 0 ? Phase::BlockLine : Phase::Text;
}

void PackedParts::readBlockLine(std::string_view line)
{
    PackedBlock block;
    if (takeStart(line, "image"))
        block.kind = PackedBlock::Kind::Image;
    else if (!takeStart(line, "list"))
        return failAtSize();
    // Each field has at least one byte of text, so that the memory for the blocks is limited by their bytes.
    std::size_t size = 0;
    if (!takeNumberUpTo(line, m_left, size) || m_blocks.size() >= m_text.size())
        return failAtSize();
    bool whole = takeNumberUpTo(line, std::numeric_limits<std::size_t>::max(), block.node);
    if (block.kind == PackedBlock::Kind::Image) {
        constexpr short greatest = std::numeric_limits<short>::max();
        whole = whole && takeNumberUpTo(line, greatest, block.width) && takeNumberUpTo(line, greatest, block.height)
            && takeNumberUpTo(line, 4, block.components);
    }
    if (!whole || !takeStart(line, " "))
        return fail("its " + part() + " doesn't state its node and field");
    block.field = line;
    block.bytes.reserve(size);
    m_blocks.push_back(std::move(block));
    m_leftOfPart = size;
    m_phase = size == 0 ? Phase::BlockLine : Phase::Block;
}

// The total size is known, and so is the end.
void PackedParts::endAtEnd()
{
    if (m_left > 0 || isBroken())
        return;
    if (m_phase == Phase::BlockLine && m_line.empty())
        m_phase = Phase::Complete;
    else
        failAtSize();
}

void PackedParts::fail(std::string reason)
{
    m_warnings = {};
    m_note = {};
    m_text = {};
    m_blocks = {};
    m_failure = std::move(reason);
    m_phase = Phase::Broken;
}

void PackedParts::failAtSize()
{
    fail("its " + part() + " has no size, or one that is too large");
}

// The one whose line is being read.
std::string PackedParts::part() const
{
    return m_phase == Phase::TextLine ? "text" : "block " + std::to_string(m_blocks.size() + 1);
}

} // namespace orvane
