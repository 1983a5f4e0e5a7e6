#include "orvane/app/log/StreamTap.h"

#include "orvane/app/log/Passing.h"

#include <cstddef>
#include <utility>

using orvane::Passing;
using orvane::Tapped;

namespace {

/// Whether the log has this text already, from another tap.
bool isKnown()
{
    return Passing::isOn(Tapped::Text) || Passing::isOn(Tapped::Error) || Passing::isOn(Tapped::Message);
}

} // namespace

StreamTap::StreamTap(std::ostream& stream, Listener listener)
    : m_stream(stream)
    , m_below(stream.rdbuf())
    , m_listener(std::move(listener))
{
    stream.rdbuf(this);
}

StreamTap::~StreamTap()
{
    if (isOnTop())
        m_stream.rdbuf(m_below);
}

void StreamTap::retire(std::streambuf* below)
{
    m_listens = false;
    m_below = below;
}

StreamTap::int_type StreamTap::overflow(int_type character)
{
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return sync() == 0 ? traits_type::not_eof(character) : traits_type::eof();
    const char one = traits_type::to_char_type(character);
    if (m_listens && !isKnown())
        m_listener({&one, 1});
    const Passing passing(Tapped::Text);
    std::streambuf* const below = m_below;
    return below != nullptr ? below->sputc(one) : traits_type::eof();
}

std::streamsize StreamTap::xsputn(const char* text, std::streamsize count)
{
    if (m_listens && !isKnown() && count > 0)
        m_listener({text, static_cast<std::size_t>(count)});
    const Passing passing(Tapped::Text);
    std::streambuf* const below = m_below;
    return below != nullptr ? below->sputn(text, count) : 0;
}

int StreamTap::sync()
{
    std::streambuf* const below = m_below;
    return below != nullptr ? below->pubsync() : -1;
}
