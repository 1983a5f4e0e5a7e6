#include "meridane/scene/text/detail/EnumFormat.h"

#include "meridane/scene/text/ValueText.h"

namespace meridane {

bool EnumFormat::readTerm(TextReader& reader, int& value) const
{
    reader.skipBlanks();
    const char first = reader.peek();
    const bool number = (first >= '0' && first <= '9') || first == '+' || first == '-';
    if (number && isMask() && first != '-') {
        unsigned int bits = 0;
        if (!readValue(reader, bits))
            return false;
        value = static_cast<int>(bits);
        return true;
    }
    if (number)
        return readValue(reader, value);

    const std::size_t start = reader.position();
    std::string_view word;
    if (reader.readWord(word, "a name") && enumeration().valueByName(word, value))
        return true;
    std::string expected = "one of";
    for (int i = 0; i < enumeration().count(); ++i)
        expected.append(i == 0 ? " " : ", ").append(enumeration().names()[i].getString());
    return reader.failAt(start, enumeration().count() == 0 ? "a number" : expected);
}

bool EnumFormat::read(TextReader& reader, int& value) const
{
    int read = 0;
    if (!readTerm(reader, read))
        return false;
    while (isMask() && reader.accept('|')) {
        int more = 0;
        if (!readTerm(reader, more))
            return false;
        read |= more;
    }
    value = read;
    return true;
}

void EnumFormat::write(std::string& text, int value) const
{
    const VbName* const name = enumeration().nameByValue(value);
    if (name != nullptr)
        text += name->getString();
    else if (isMask())
        writeMask(text, value);
    else
        writeValue(text, value);
}

void EnumFormat::writeMask(std::string& text, int value) const
{
    auto rest = static_cast<unsigned int>(value);
    const char* separator = "";
    for (int i = 0; i < enumeration().count(); ++i) {
        const auto bits = static_cast<unsigned int>(enumeration().values()[i]);
        if (bits == 0 || (static_cast<unsigned int>(value) & bits) != bits || (rest & bits) == 0)
            continue;
        text.append(separator).append(enumeration().names()[i].getString());
        separator = " | ";
        rest &= ~bits;
    }
    if (rest == 0 && value != 0)
        return;
    if (rest == 0) {
        text += '0';
        return;
    }
    std::array<char, 8> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rest, 16).ptr;
    text.append(separator).append("0x").append(digits.data(), end);
}

} // namespace meridane
