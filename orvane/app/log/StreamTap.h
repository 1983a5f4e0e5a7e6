#pragma once

#include <atomic>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string_view>

/// Listens to what is written to an output stream and passes it on, as it comes, to the buffer that the stream had: the
/// same blocks and single characters, on the same thread.
class StreamTap final : public std::streambuf {
public:
    /// Called on the thread that writes.
    using Listener = std::function<void(std::string_view text)>;

    /// Becomes the buffer of the stream, which must live longer.
    StreamTap(std::ostream& stream, Listener listener);
    StreamTap(const StreamTap&) = delete;
    StreamTap& operator=(const StreamTap&) = delete;
    /// Gives the stream its former buffer back if the tap is on top.
    ~StreamTap() override;

    /// Whether the stream writes into this tap and not into something that was put on top of it.
    [[nodiscard]] bool isOnTop() const { return m_stream.rdbuf() == this; }
    /// For a tap that can't be taken out, since something is on top of it: it listens no more, and passes on to
    /// another buffer from now on.
    void retire(std::streambuf* below);
    [[nodiscard]] std::streambuf* below() const noexcept { return m_below; }

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    std::ostream& m_stream;
    std::atomic<std::streambuf*> m_below;
    Listener m_listener;
    std::atomic<bool> m_listens = true;
};
