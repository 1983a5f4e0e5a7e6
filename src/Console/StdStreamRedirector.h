#pragma once

#include <ios>
#include <ostream>
#include <streambuf>
#include <string>

/// Replaces the buffer of an output stream while it lives, and passes everything that is written there to a callback.
/// The callback runs on the thread that writes, and nothing is locked.
///
/// Contract: single characters wait for the end of their line, while a block is passed on at once, so the order between
/// them isn't kept.
/// Contract: flushing passes nothing on.
template <typename Elem, typename Traits>
class StdStreamRedirector : public std::basic_streambuf<Elem, Traits> {
public:
    using int_type = typename Traits::int_type;
    /// Takes a text: either a line of single characters, which ends in a NUL and has no line end, or a block of `count`
    /// characters, which need not end in a NUL.
    /// Contract: the count of a line is always 1.
    using Callback = void (*)(const Elem* text, std::streamsize count, void* userData);

    /// The stream must outlive the redirector, which puts the former buffer back.
    StdStreamRedirector(std::basic_ostream<Elem, Traits>& stream, Callback callback, void* userData)
        : m_stream(&stream)
        , m_previousBuffer(stream.rdbuf(this))
        , m_callback(callback)
        , m_userData(userData)
    {
    }
    /// Puts the stream's former buffer back. Contract: a line that hasn't ended is dropped.
    ~StdStreamRedirector() override { m_stream->rdbuf(m_previousBuffer); }
    StdStreamRedirector(const StdStreamRedirector&) = delete;
    StdStreamRedirector& operator=(const StdStreamRedirector&) = delete;

protected:
    int_type overflow(int_type character) override
    {
        // Contract: the end-of-file value isn't distinguished; it adds the byte 0xFF to the line.
        const Elem element = Traits::to_char_type(character);
        if (element == Elem('\n')) {
            m_callback(m_line.c_str(), 1, m_userData);
            m_line.clear();
        } else {
            m_line += element;
        }
        return Traits::not_eof(character);
    }

    std::streamsize xsputn(const Elem* text, std::streamsize count) override
    {
        m_callback(text, count, m_userData);
        return count;
    }

private:
    std::basic_ostream<Elem, Traits>* m_stream;
    std::basic_streambuf<Elem, Traits>* m_previousBuffer;
    std::basic_string<Elem, Traits> m_line;
    Callback m_callback;
    void* m_userData;
};
