#include "meridane/scene/text/ValueText.h"

#include "meridane/base/values/Unicode.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/text/detail/NanBits.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace meridane {

namespace {

void writeEscaped(std::string& text, std::string_view value)
{
    while (!value.empty()) {
        const std::size_t run = std::min(value.find_first_of("\"\\\n\t"), value.size());
        text += value.substr(0, run);
        value.remove_prefix(run);
        if (value.empty())
            break;
        text += '\\';
        text += value.front() == '\n' ? 'n' : value.front() == '\t' ? 't' : value.front();
        value.remove_prefix(1);
    }
}

void writeQuoted(std::string& text, std::string_view value)
{
    text += '"';
    writeEscaped(text, value);
    text += '"';
}

bool readText(TextReader& reader, std::string_view& text)
{
    reader.skipBlanks();
    return reader.peek() == '"' ? reader.readQuoted(text) : reader.readWord(text, "a text");
}

bool readWholeText(TextReader& reader, std::string_view& text)
{
    if (reader.peek() == '"')
        return reader.readQuoted(text) && reader.expectEnd();
    text = reader.rest();
    reader.advance(text.size());
    return true;
}

// Names are in Latin-1 and end at a NUL.
std::optional<VbName> nameOfUtf8(std::string_view text)
{
    constexpr unsigned char lastLeadByteOfLatin1 = 0xC3;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte == 0 || byte > lastLeadByteOfLatin1)
            return std::nullopt;
    }
    return VbName(utf8ToLatin1(text).c_str());
}

bool takeName(TextReader& reader, std::string_view text, VbName& value)
{
    const std::optional<VbName> name = nameOfUtf8(text);
    if (!name)
        return reader.fail("a name of Latin-1 characters");
    value = *name;
    return true;
}

template <typename Number>
void writeNanBits(std::string& text, Number value)
{
    using Nan = NanBits<Number>;
    const auto bits = std::bit_cast<typename Nan::Bits>(value);
    text += (bits & Nan::sign) != 0 ? "-nan" : "nan";
    const auto fraction = bits & Nan::greatestFraction;
    if (fraction == Nan::plainFraction)
        return;
    std::array<char, 16> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the next line
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), fraction, 16).ptr;
    text += "(0x";
    text.append(digits.data(), end);
    text += ')';
}

} // namespace

void writeNan(std::string& text, float value)
{
    writeNanBits(text, value);
}

void writeNan(std::string& text, double value)
{
    writeNanBits(text, value);
}

bool readValue(TextReader& reader, Flag& value)
{
    constexpr std::string_view expected = "true or false";
    reader.skipBlanks();
    const std::size_t start = reader.position();
    std::string_view word;
    if (!reader.readWord(word, expected))
        return false;
    const bool set = word == "true" || word == "TRUE" || word == "1";
    if (!set && word != "false" && word != "FALSE" && word != "0")
        return reader.failAt(start, expected);
    value = set;
    return true;
}

void writeValue(std::string& text, const Flag& value)
{
    text += value ? "true" : "false";
}

bool readValue(TextReader& reader, VbString& value)
{
    // Longer texts aren't copied.
    constexpr std::size_t largeText = 1 << 16;
    std::string_view text;
    if (!readText(reader, text))
        return false;
    value = text.size() < largeText ? VbString(text) : VbString(reader.takeQuoted(text));
    return true;
}

void writeValue(std::string& text, const VbString& value)
{
    writeQuoted(text, value.view());
}

bool writeValuePart(std::string& text, const VbString& value, std::size_t& position, std::size_t bytes)
{
    if (position == 0)
        text += '"';
    const std::string_view part = value.view().substr(position, bytes);
    writeEscaped(text, part);
    position += part.size();
    if (position < value.view().size())
        return true;
    text += '"';
    return false;
}

// A part may end within a text: the upper bits of the position are the row, the lower ones the place in its text.
bool writeValuesPart(std::string& text, std::span<const VbString> values, std::size_t& position, std::size_t bytes)
{
    constexpr unsigned int placeBits = 33;
    constexpr std::size_t placeMask = (std::size_t{1} << placeBits) - 1;
    const std::size_t start = text.size();
    std::size_t row = position >> placeBits;
    std::size_t place = position & placeMask;
    while (row < values.size() && text.size() - start < bytes) {
        if (row > 0 && place == 0)
            text += ", ";
        if (writeValuePart(text, values[row], place, bytes))
            continue;
        ++row;
        place = 0;
    }
    position = row << placeBits | place;
    return row < values.size();
}

bool readValue(TextReader& reader, VbName& value)
{
    std::string_view text;
    return readText(reader, text) && takeName(reader, text, value);
}

void writeValue(std::string& text, const VbName& value)
{
    writeQuoted(text, latin1ToUtf8(value.getString()));
}

bool readValue(TextReader& reader, VbRotation& value)
{
    VbVec3f axis;
    float radians = 0;
    if (!readValue(reader, axis) || !readValue(reader, radians))
        return false;
    value.setValue(axis, radians);
    return true;
}

void writeValue(std::string& text, const VbRotation& value)
{
    writeValue(text, value.getAxis());
    text += ' ';
    writeValue(text, value.getAngle());
}

bool readValue(TextReader& reader, VbPlane& value)
{
    VbVec3f normal;
    float distance = 0;
    if (!readValue(reader, normal) || !readValue(reader, distance))
        return false;
    value = VbPlane(normal, distance);
    return true;
}

void writeValue(std::string& text, const VbPlane& value)
{
    writeValue(text, value.getNormal());
    text += ' ';
    writeValue(text, value.getDistanceFromOrigin());
}

bool readValue(TextReader& reader, VbMatrix& value)
{
    VbMatrix read;
    for (std::size_t row = 0; row < 4; ++row) {
        for (float& element : read[row]) {
            if (!readValue(reader, element))
                return false;
        }
    }
    value = read;
    return true;
}

void writeValue(std::string& text, const VbMatrix& value)
{
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            if (row + column > 0)
                text += ' ';
            writeValue(text, value[row][column]);
        }
    }
}

bool readValue(TextReader& reader, VbBox2f& value)
{
    VbVec2f min;
    VbVec2f max;
    if (!readValue(reader, min) || !readValue(reader, max))
        return false;
    value = VbBox2f(min, max);
    return true;
}

void writeValue(std::string& text, const VbBox2f& value)
{
    writeValue(text, value.getMin());
    text += ' ';
    writeValue(text, value.getMax());
}

bool readValue(TextReader& reader, VbBox3s& value)
{
    VbVec3s min;
    VbVec3s max;
    if (!readValue(reader, min) || !readValue(reader, max))
        return false;
    value = VbBox3s(min, max);
    return true;
}

void writeValue(std::string& text, const VbBox3s& value)
{
    writeValue(text, value.getMin());
    text += ' ';
    writeValue(text, value.getMax());
}

bool readWholeValue(TextReader& reader, VbString& value)
{
    std::string_view text;
    if (!readWholeText(reader, text))
        return false;
    value = VbString(text);
    return true;
}

bool readWholeValue(TextReader& reader, VbName& value)
{
    std::string_view text;
    return readWholeText(reader, text) && takeName(reader, text, value);
}

} // namespace meridane
