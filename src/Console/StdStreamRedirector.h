#pragma once

#include <ios>
#include <ostream>
#include <streambuf>
#include <string>

/// Takes over the buffer of an output stream for as long as it lives, and gives all that is written there to a
/// callback.
///
/// There are two ways, which don't keep the order of the characters between them: what is put character by character
/// waits for the end of its line, what comes as a block goes out at once. That is meant, and so is that flushing sends
/// nothing on. The callback runs on the thread that writes, and nothing is locked.
template <typename Elem, typename Traits>
class StdStreamRedirector : public std::basic_streambuf<Elem, Traits> {
public:
    using int_type = typename Traits::int_type;
    /// Takes a text. A line that was put character by character ends in a NUL and comes without its line end, and
    /// its `count` is always 1. A block is what the writer gave, of `count` characters, and need not end in a NUL.
    using Callback = void (*)(const Elem* text, std::streamsize count, void* userData);

    /// The stream must outlive the redirector, or the former buffer can't be given back.
    StdStreamRedirector(std::basic_ostream<Elem, Traits>& stream, Callback callback, void* userData)
        : m_stream(&stream)
        , m_previousBuffer(stream.rdbuf(this))
        , m_callback(callback)
        , m_userData(userData)
    {
    }
    /// Gives the stream its former buffer back. A line that hasn't ended is dropped.
    ~StdStreamRedirector() override { m_stream->rdbuf(m_previousBuffer); }
    StdStreamRedirector(const StdStreamRedirector&) = delete;
    StdStreamRedirector& operator=(const StdStreamRedirector&) = delete;

protected:
    int_type overflow(int_type character) override
    {
        // The end-of-file value isn't told from others: it adds the byte 0xFF to the line.
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
