#pragma once

#include "meridane/base/values/VbBox.h"
#include "meridane/base/values/VbColor.h"
#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbPlane.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/scene/text/Flag.h"
#include "meridane/scene/text/TextReader.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <span>
#include <string>

class VbName;
class VbString;

/// The text form of each type of value: a pair of `readValue` and `writeValue`. Written values read back to the same
/// bits, even if they aren't finite. `readValue` changes the value only if it returns true.
namespace meridane {

/// The types of numbers that have a text form.
template <typename Number>
concept TextNumber = std::same_as<Number, float> || std::same_as<Number, double> || std::same_as<Number,
    short> || std::same_as<Number, unsigned short> || std::same_as<Number, int> || std::same_as<Number, unsigned int>;

/// Decimal or, for integers, hexadecimal; see `TextReader::readNumber`.
template <TextNumber Number>
bool readValue(TextReader& reader, Number& value)
{
    return reader.readNumber(value);
}
/// `nan` or `-nan`, with the bits of its fraction in brackets if they aren't the usual ones.
void writeNan(std::string& text, float value);
/// The same in double precision.
void writeNan(std::string& text, double value);
/// The shortest decimal text that reads back to the same value.
template <TextNumber Number>
void writeValue(std::string& text, const Number& value)
{
    if constexpr (std::floating_point<Number>) {
        if (std::isnan(value)) [[unlikely]] {
            writeNan(text, value);
            return;
        }
    }
    std::array<char, 32> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the next line
    text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
}

/// `true` and `false`; `TRUE`, `FALSE`, `1` and `0` are read as well.
bool readValue(TextReader& reader, Flag& value);
/// `true` or `false`.
void writeValue(std::string& text, const Flag& value);

/// Text in double quotes; a word without them is read as well.
bool readValue(TextReader& reader, VbString& value);
/// Text in double quotes, in which quotes, backslashes and line ends are escaped.
void writeValue(std::string& text, const VbString& value);
/// The same in parts of about that many bytes. `position` starts at 0 and is then changed only by this function.
/// Returns true if there is more to write.
bool writeValuePart(std::string& text, const VbString& value, std::size_t& position, std::size_t bytes);
/// The same for the values of a list, with commas between them.
bool writeValuesPart(std::string& text, std::span<const VbString> values, std::size_t& position, std::size_t bytes);
/// So many bytes of text take as long as that many numbers.
constexpr std::size_t textBytesOf(std::size_t values) noexcept
{
    constexpr std::size_t bytesOfNumber = 16;
    return values < std::numeric_limits<std::size_t>::max() / bytesOfNumber ? values * bytesOfNumber : values;
}
/// Text in double quotes or a word, of Latin-1 characters only, without NUL.
bool readValue(TextReader& reader, VbName& value);
/// Text in double quotes, like a `VbString`.
void writeValue(std::string& text, const VbName& value);

/// Components separated by blanks; also for the colours, which are vectors.
template <typename Vector, typename Component, std::size_t Count>
bool readValue(TextReader& reader, VecBase<Vector, Component, Count>& value)
{
    VecBase<Vector, Component, Count> read = value;
    for (std::size_t i = 0; i < Count; ++i) {
        if (!reader.readNumber(read[i]))
            return false;
    }
    value = read;
    return true;
}
/// The components with single blanks between them.
template <typename Vector, typename Component, std::size_t Count>
void writeValue(std::string& text, const VecBase<Vector, Component, Count>& value)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (i > 0)
            text += ' ';
        writeValue(text, value[i]);
    }
}

/// Axis and angle in radians.
bool readValue(TextReader& reader, VbRotation& value);
/// Four numbers: the axis, then the angle in radians.
void writeValue(std::string& text, const VbRotation& value);
/// Normal and distance.
bool readValue(TextReader& reader, VbPlane& value);
/// Four numbers: the normal, then the distance from the origin.
void writeValue(std::string& text, const VbPlane& value);
/// Sixteen numbers row by row.
bool readValue(TextReader& reader, VbMatrix& value);
/// Sixteen numbers row by row, with single blanks between them.
void writeValue(std::string& text, const VbMatrix& value);
/// The smaller corner and the larger one.
bool readValue(TextReader& reader, VbBox2f& value);
/// Four numbers: the smaller corner, then the larger one.
void writeValue(std::string& text, const VbBox2f& value);
/// The smaller corner and the larger one.
bool readValue(TextReader& reader, VbBox3s& value);
/// Six numbers: the smaller corner, then the larger one.
void writeValue(std::string& text, const VbBox3s& value);

/// Reads a value that must fill the whole text.
template <typename Value>
bool readWholeValue(TextReader& reader, Value& value)
{
    return readValue(reader, value) && reader.expectEnd();
}
/// A text that doesn't begin with a quote is used as it is, with its blanks, because people type plain words.
bool readWholeValue(TextReader& reader, VbString& value);
/// The same for names, of Latin-1 characters only.
bool readWholeValue(TextReader& reader, VbName& value);

/// The format of fields whose text depends only on the type of value.
template <typename Value>
struct ValueFormat {
    /// Reads one value and stops behind it.
    bool read(TextReader& reader, Value& value) const { return readValue(reader, value); }
    /// Reads a value that must fill the whole text.
    bool readWhole(TextReader& reader, Value& value) const { return readWholeValue(reader, value); }
    /// Appends the value so that it reads back to the same bits.
    void write(std::string& text, const Value& value) const { writeValue(text, value); }
};

} // namespace meridane
