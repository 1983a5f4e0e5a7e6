#pragma once

#include <iostream>
#include <sstream>
#include <string>

/// Collects what goes to std::cerr for as long as it lives.
class StreamCapture {
public:
    StreamCapture()
        : m_former(std::cerr.rdbuf(m_text.rdbuf()))
    {
    }
    StreamCapture(const StreamCapture&) = delete;
    StreamCapture& operator=(const StreamCapture&) = delete;
    ~StreamCapture() { std::cerr.rdbuf(m_former); }

    [[nodiscard]] std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_former;
};
