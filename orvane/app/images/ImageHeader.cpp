#include "orvane/app/images/ImageHeader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace orvane {
namespace {

enum class Order { LowFirst, HighFirst };

constexpr std::size_t headSize = 64;

/// A number of `count` bytes; 0 beyond the end.
std::uint64_t numberAt(std::string_view bytes, std::size_t place, std::size_t count, Order order)
{
    if (place > bytes.size() || count > bytes.size() - place)
        return 0;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t from = order == Order::HighFirst ? i : count - 1 - i;
        value = value << 8U | static_cast<unsigned char>(bytes[place + from]);
    }
    return value;
}

StatedImageSize sizeAt(std::string_view bytes, std::size_t width, std::size_t height, std::size_t count, Order order)
{
    return {numberAt(bytes, width, count, order), numberAt(bytes, height, count, order)};
}

// A list of segments, each with its length; that of the frame has the size.
StatedImageSize jpegSize(const ByteSource& file)
{
    constexpr int mostSegments = 4096;
    std::uint64_t place = 2;
    for (int segment = 0; segment < mostSegments; ++segment) {
        const std::string bytes = file(place, 9);
        if (bytes.size() < 4 || bytes[0] != '\xff')
            return {};
        const auto kind = static_cast<unsigned char>(bytes[1]);
        if (kind == 0xff) { // bytes that fill
            ++place;
            continue;
        }
        const bool isTable = kind == 0xc4 || kind == 0xc8 || kind == 0xcc;
        if (kind >= 0xc0 && kind <= 0xcf && !isTable)
            return sizeAt(bytes, 7, 5, 2, Order::HighFirst);
        const std::uint64_t length = numberAt(bytes, 2, 2, Order::HighFirst);
        if (length < 2 || kind == 0xd9 || kind == 0xda) // the end, or pixels
            return {};
        place += 2 + length;
    }
    return {};
}

StatedImageSize tiffSize(const ByteSource& file, std::string_view head)
{
    constexpr std::size_t entrySize = 12;
    constexpr std::uint64_t widthTag = 256;
    constexpr std::uint64_t heightTag = 257;
    constexpr std::uint64_t shortType = 3;
    const Order order = head[0] == 'I' ? Order::LowFirst : Order::HighFirst;
    const std::uint64_t place = numberAt(head, 4, 4, order);
    const std::size_t count = numberAt(file(place, 2), 0, 2, order);
    const std::string entries = file(place + 2, count * entrySize);
    StatedImageSize size;
    for (std::size_t entry = 0; entry < count; ++entry) {
        const std::size_t start = entry * entrySize;
        const std::uint64_t tag = numberAt(entries, start, 2, order);
        const std::size_t bytes = numberAt(entries, start + 2, 2, order) == shortType ? 2 : 4;
        if (tag == widthTag)
            size.width = numberAt(entries, start + 8, bytes, order);
        else if (tag == heightTag)
            size.height = numberAt(entries, start + 8, bytes, order);
    }
    return size;
}

StatedImageSize webpSize(std::string_view head)
{
    const std::string_view kind = head.substr(12, 4);
    if (kind == "VP8 ") {
        constexpr std::uint64_t sizeBits = 0x3fff; // above them is a scale
        const StatedImageSize size = sizeAt(head, 26, 28, 2, Order::LowFirst);
        return {size.width & sizeBits, size.height & sizeBits};
    }
    if (kind == "VP8L") {
        constexpr unsigned int sizeBits = 14;
        constexpr std::uint64_t mask = (1U << sizeBits) - 1;
        const std::uint64_t bits = numberAt(head, 21, 4, Order::LowFirst);
        return {(bits & mask) + 1, (bits >> sizeBits & mask) + 1};
    }
    if (kind == "VP8X") {
        const StatedImageSize size = sizeAt(head, 24, 27, 3, Order::LowFirst);
        return {size.width + 1, size.height + 1};
    }
    return {};
}

StatedImageSize bmpSize(std::string_view head)
{
    constexpr std::uint64_t oldHeader = 12;
    if (numberAt(head, 14, 4, Order::LowFirst) == oldHeader)
        return sizeAt(head, 18, 20, 2, Order::LowFirst);
    StatedImageSize size = sizeAt(head, 18, 22, 4, Order::LowFirst);
    // Negative if the first row is the top row.
    if (size.height > 0x7fffffff)
        size.height = 0x100000000 - size.height;
    return size;
}

// Words with white space and comments between them, as text.
StatedImageSize netpbmSize(std::string_view head)
{
    std::array<std::uint64_t, 2> numbers{};
    std::size_t place = 2;
    for (std::uint64_t& number : numbers) {
        while (place < head.size() && (head[place] == '#' || static_cast<unsigned char>(head[place]) <= ' '))
            place = head[place] == '#' ? std::min(head.find('\n', place), head.size()) : place + 1;
        const auto result = std::from_chars(head.data() + place, head.data() + head.size(), number);
        if (result.ec != std::errc())
            return {};
        place = static_cast<std::size_t>(result.ptr - head.data());
    }
    return {numbers[0], numbers[1]};
}

// The format has no sign of its own.
bool isTga(std::string_view head)
{
    if (head.size() < 18 || static_cast<unsigned char>(head[1]) > 1)
        return false;
    const auto kind = static_cast<unsigned char>(head[2]) & ~8; // with or without compression
    const auto depth = static_cast<unsigned char>(head[16]);
    return kind >= 1 && kind <= 3 && (depth == 8 || depth == 15 || depth == 16 || depth == 24 || depth == 32);
}

} // namespace

std::optional<StatedImageSize> statedImageSize(const ByteSource& file)
{
    using std::string_view_literals::operator""sv;
    const std::string bytes = file(0, headSize);
    const std::string_view head = bytes;
    if (head.starts_with("\x89PNG\r\n\x1a\n"sv))
        return sizeAt(head, 16, 20, 4, Order::HighFirst);
    if (head.starts_with("\xff\xd8\xff"sv))
        return jpegSize(file);
    if (head.starts_with("GIF8"sv))
        return sizeAt(head, 6, 8, 2, Order::LowFirst);
    if (head.starts_with("RIFF"sv) && head.size() >= 16 && head.substr(8, 4) == "WEBP"sv)
        return webpSize(head);
    if (head.starts_with("II*\0"sv) || head.starts_with("MM\0*"sv))
        return tiffSize(file, head);
    if (head.starts_with("8BPS"sv))
        return sizeAt(head, 18, 14, 4, Order::HighFirst);
    if (head.starts_with("BM"sv))
        return bmpSize(head);
    if (head.starts_with("P5"sv) || head.starts_with("P6"sv))
        return netpbmSize(file(0, 4096));
    if (isTga(head))
        return sizeAt(head, 12, 14, 2, Order::LowFirst);
    return std::nullopt;
}

} // namespace orvane
