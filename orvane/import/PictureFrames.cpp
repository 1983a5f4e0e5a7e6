#include "orvane/import/PictureFrames.h"

#include "orvane/import/Frames.h"
#include "orvane/import/Picture.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr std::string_view pictureWord = "picture ";
constexpr std::string_view refusedWord = "refused ";
constexpr std::size_t longestLine = 300;

bool takeSize(std::string_view& line, std::size_t most, std::size_t& number)
{
    const std::optional<std::size_t> taken = takeNumber(line);
    number = taken.value_or(0);
    return number >= 1 && number <= most;
}

bool takePicture(std::string_view line, PictureReply& reply)
{
    constexpr std::size_t mostComponents = 4;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t components = 0;
    const bool whole = takeStart(line, pictureWord) && takeSize(line, maxPictureSide, width) && takeStart(line, " ")
        && takeSize(line, maxPictureSide, height) && takeStart(line, " ") && takeSize(line, mostComponents, components)
        && line.empty() && isUsablePictureSize(width, height);
    reply.width = static_cast<int>(width);
    reply.height = static_cast<int>(height);
    reply.components = static_cast<int>(components);
    reply.size = width * height * components;
    return whole;
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
    std::string line(reason.substr(0, longestLine - refusedWord.size() - 1));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return std::string(refusedWord).append(line).append("\n");
}

PictureReply parsePictureReply(std::string_view bytes)
{
    PictureReply reply;
    std::string_view rest = bytes;
    std::optional<std::string_view> line = takeLine(rest, longestLine);
    if (!line) {
        if (bytes.size() >= longestLine)
            reply.state = PictureReply::State::Broken;
        return reply;
    }
    reply.start = bytes.size() - rest.size();
    if (takeStart(*line, refusedWord)) {
        reply.reason = *line;
        reply.state = rest.empty() ? PictureReply::State::Refused : PictureReply::State::Broken;
    } else if (!takePicture(*line, reply) || rest.size() > reply.size) {
        reply.state = PictureReply::State::Broken;
    } else if (rest.size() == reply.size) {
        reply.state = PictureReply::State::Complete;
    }
    return reply;
}

} // namespace orvane
