#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The toolkit's text: Unicode, stored as UTF-8, available as UTF-8, UTF-16 or Latin-1.
///
/// A string is empty, or null (empty with its null state set), or holds text. Bytes that are no valid UTF-8 become
/// U+FFFD, so the stored text is always valid. Returned pointers are valid until the string changes or is destroyed. An
/// empty or null string owns no memory. A value; not to be shared between threads while one of them changes it or
/// requests a conversion.
class VbString {
public:
    /// An empty text that is not null.
    VbString() noexcept = default;
    /// Takes NUL-terminated UTF-8; a null pointer gives a null string.
    VbString(const char* utf8); // NOLINT(google-explicit-constructor): text literals are strings
    /// Takes UTF-8 of any content, NUL bytes included.
    explicit VbString(std::string_view utf8);
    /// The same without a copy.
    explicit VbString(std::string&& utf8);
    /// Copies the text and the null state.
    VbString(const VbString& other);
    /// Takes over the text; the other string is empty afterwards.
    VbString(VbString&& other) noexcept;
    ~VbString();

    /// Takes NUL-terminated UTF-8; a null pointer makes the string null.
    VbString& operator=(const char* utf8);
    /// Copies the text and the null state.
    VbString& operator=(const VbString& other);
    /// Exchanges text and null state with the other string.
    VbString& operator=(VbString&& other) noexcept;

    /// The length in UTF-16 code units, which is what `toUtf16` spans.
    [[nodiscard]] int getLength() const;
    /// True for an empty text, null or not.
    [[nodiscard]] bool isEmpty() const noexcept { return m_text == nullptr || m_text == nullText(); }
    /// True after `makeNull`, until a text is assigned.
    [[nodiscard]] bool isNull() const noexcept { return m_text == nullText(); }
    /// Makes the text null: empty, with its null state set.
    void makeNull();

    /// Replaces the text with NUL-terminated Latin-1. A null pointer makes the string null.
    VbString& fromLatin1(const char* latin1);
    /// Replaces the text with NUL-terminated UTF-16; lone surrogates become U+FFFD. A null pointer makes it null.
    VbString& fromUtf16(const unsigned short* utf16);

    /// The text in Latin-1, NUL-terminated; a character outside Latin-1 becomes a question mark.
    [[nodiscard]] const char* toLatin1() const;
    /// The text in UTF-8, NUL-terminated.
    [[nodiscard]] const char* toUtf8() const;
    /// The text in UTF-16, NUL-terminated. The units belong to the string and are not to be written.
    [[nodiscard]] unsigned short* toUtf16() const;
    /// The text in UTF-8, NUL bytes included.
    [[nodiscard]] std::string_view view() const noexcept;

    /// Compares the text; a null string equals an empty one.
    friend bool operator==(const VbString& left, const VbString& right) noexcept { return left.view() == right.view(); }

private:
    struct Text;

    static Text* nullText() noexcept;
    void assign(std::string_view utf8);
    void take(std::string&& utf8);

    Text* m_text = nullptr;
};
