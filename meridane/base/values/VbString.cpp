#include "meridane/base/values/VbString.h"

#include "meridane/base/values/Unicode.h"

#include <memory>
#include <optional>
#include <utility>

// The text and the conversions requested so far. They are made on demand, since most strings are
// only ever read as UTF-8, and an undo history holds a great many of them.
struct VbString::Text {
    struct Conversions {
        std::optional<std::string> latin1;
        std::optional<std::u16string> utf16;
    };

    Conversions& conversions() const
    {
        if (!converted)
            converted = std::make_unique<Conversions>();
        return *converted;
    }

    std::string utf8;
    mutable std::unique_ptr<Conversions> converted;
};

static_assert(sizeof(unsigned short) == sizeof(char16_t));

VbString::Text* VbString::nullText() noexcept
{
    // Only its address is used: it is never read, written or deleted.
    static Text null;
    return &null;
}

VbString::VbString(const char* utf8)
{
    *this = utf8;
}

VbString::VbString(std::string_view utf8)
{
    assign(utf8);
}

VbString::VbString(std::string&& utf8)
{
    take(std::move(utf8));
}

VbString::VbString(const VbString& other)
{
    *this = other;
}

VbString::VbString(VbString&& other) noexcept
    : m_text(std::exchange(other.m_text, nullptr))
{
}

VbString::~VbString()
{
    if (!isNull())
        delete m_text;
}

VbString& VbString::operator=(const char* utf8)
{
    if (utf8 == nullptr)
        makeNull();
    else
        assign(utf8);
    return *this;
}

VbString& VbString::operator=(const VbString& other)
{
    if (this == &other)
        return *this;
    if (other.isNull())
        makeNull();
    else
        assign(other.view());
    return *this;
}

VbString& VbString::operator=(VbString&& other) noexcept
{
    std::swap(m_text, other.m_text);
    return *this;
}

// The new text is made before the old one is deleted, so that a view of this string can be assigned to it.
void VbString::assign(std::string_view utf8)
{
    take(std::string(utf8));
}

void VbString::take(std::string&& utf8)
{
    std::unique_ptr<Text> text;
    if (!utf8.empty()) {
        text = std::make_unique<Text>();
        // A text that was assembled from parts may have much more capacity than it needs.
        if (utf8.capacity() > utf8.size() + utf8.size() / 2)
            utf8.shrink_to_fit();
        if (meridane::findInvalidUtf8(utf8) == std::string_view::npos)
            text->utf8 = std::move(utf8);
        else
            text->utf8 = meridane::replaceInvalidUtf8(utf8);
    }
    if (!isNull())
        delete m_text;
    m_text = text.release();
}

int VbString::getLength() const
{
    if (isEmpty())
        return 0;
    static_cast<void>(toUtf16());
    return static_cast<int>(m_text->conversions().utf16->size());
}

void VbString::makeNull()
{
    if (!isNull())
        delete m_text;
    m_text = nullText();
}

VbString& VbString::fromLatin1(const char* latin1)
{
    if (latin1 == nullptr)
        makeNull();
    else
        assign(meridane::latin1ToUtf8(latin1));
    return *this;
}

VbString& VbString::fromUtf16(const unsigned short* utf16)
{
    if (utf16 == nullptr) {
        makeNull();
        return *this;
    }
    std::u16string units;
    for (; *utf16 != 0; ++utf16)
        units.push_back(static_cast<char16_t>(*utf16));
    assign(meridane::utf16ToUtf8(units));
    return *this;
}

const char* VbString::toLatin1() const
{
    if (isEmpty())
        return "";
    auto& latin1 = m_text->conversions().latin1;
    if (!latin1)
        latin1 = meridane::utf8ToLatin1(m_text->utf8);
    return latin1->c_str();
}

const char* VbString::toUtf8() const
{
    return isEmpty() ? "" : m_text->utf8.c_str();
}

unsigned short* VbString::toUtf16() const
{
    static unsigned short empty[1] = {0};
    if (isEmpty())
        return empty;
    auto& utf16 = m_text->conversions().utf16;
    if (!utf16)
        utf16 = meridane::utf8ToUtf16(m_text->utf8);
    // The same 16-bit units under the type that callers use.
    return reinterpret_cast<unsigned short*>(utf16->data());
}

std::string_view VbString::view() const noexcept
{
    return isEmpty() ? std::string_view() : std::string_view(m_text->utf8);
}
