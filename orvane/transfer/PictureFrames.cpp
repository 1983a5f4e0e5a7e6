#include "orvane/transfer/PictureFrames.h"

#include "orvane/transfer/Frames.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr std::string_view pictureWord = "picture ";
constexpr std::string_view refusedWord = "refused ";
constexpr std::size_t longestReplyLine = 300;

bool takeSize(std::string_view& line, std::size_t most, std::size_t& number)
{
    const std::optional<std::size_t> taken = takeNumber(line);
    number = taken.value_or(0);
    return number >= 1 && number <= most;
}

} // namespace

std::string pictureRequest(std::size_t fileSize)
{
    return std::string(pictureWord).append(std::to_string(fileSize)).append("\n");
}

std::size_t pictureRequestSize(std::string_view line)
{
    std::size_t size = 0;
    const bool whole = takeStart(line, pictureWord) && takeSize(line, maxPictureFileSize, size) && line.empty();
    return whole ? size : 0;
}

std::string pictureReply(int width, int height, int components)
{
    return std::string(pictureWord)
        .append(std::to_string(width))
        .append(" ")
        .append(std::to_string(height))
        .append(" ")
        .append(std::to_string(components))
        .append("\n");
}

std::string pictureRefusal(std::string_view reason)
{
    std::string line(reason.substr(0, longestReplyLine - refusedWord.size() - 1));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return std::string(refusedWord).append(line).append("\n");
}

PictureReply::State PictureReply::take(std::string_view bytes)
{
    if (m_state == State::Incomplete && m_size == 0)
        m_state = takeHead(bytes);
    if (bytes.empty())
        return m_state;
    if (m_state != State::Incomplete || bytes.size() > m_size - m_picture.bytes.size())
        return m_state = State::Broken;
    m_picture.bytes.insert(m_picture.bytes.end(), bytes.begin(), bytes.end());
    if (m_picture.bytes.size() == m_size)
        m_state = State::Complete;
    return m_state;
}

PictureReply::State PictureReply::takeHead(std::string_view& bytes)
{
    const std::size_t end = bytes.find('\n');
    const std::string_view part = bytes.substr(0, end);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    if (m_line.size() + part.size() > longestReplyLine)
        return State::Broken;
    m_line += part;
    return end == std::string_view::npos ? State::Incomplete : takeLine(m_line);
}

PictureReply::State PictureReply::takeLine(std::string_view line)
{
    constexpr std::size_t maxComponents = 4;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t components = 0;
    if (takeStart(line, refusedWord)) {
        m_reason = line;
        return State::Refused;
    }
    const bool isPicture = takeStart(line, pictureWord) && takeSize(line, maxPictureSide, width) && takeStart(line, " ")
        && takeSize(line, maxPictureSide, height) && takeStart(line, " ") && takeSize(line, maxComponents, components)
        && line.empty() && isUsablePictureSize(width, height);
    if (!isPicture)
        return State::Broken;
    m_size = width * height * components;
    m_picture = {static_cast<int>(width), static_cast<int>(height), static_cast<int>(components), {}};
    m_picture.bytes.reserve(m_size);
    return State::Incomplete;
}

} // namespace orvane
