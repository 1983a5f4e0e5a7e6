#include "orvane/app/log/StreamLines.h"

#include <QTimer>

#include <chrono>
#include <utility>
#include <vector>

namespace {

constexpr std::chrono::milliseconds patience(500);
constexpr std::size_t longestLine = 100'000;

} // namespace

StreamLines::StreamLines(Receiver receiver, QObject* parent)
    : QObject(parent)
    , m_receiver(std::move(receiver))
{
}

StreamLines::~StreamLines()
{
    for (const auto& [thread, line] : m_unfinished)
        pass(line.text);
}

void StreamLines::pass(std::string_view line) const
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    if (!line.empty())
        m_receiver(QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())));
}

void StreamLines::put(std::string_view text)
{
    std::vector<std::string> lines;
    {
        const std::lock_guard lock(m_mutex);
        Unfinished& unfinished = m_unfinished[std::this_thread::get_id()];
        for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
            unfinished.text += text.substr(0, end);
            lines.emplace_back().swap(unfinished.text);
            text.remove_prefix(end + 1);
        }
        unfinished.text += text;
        unfinished.isNew = true;
        if (unfinished.text.size() > longestLine)
            lines.emplace_back().swap(unfinished.text);
        if (unfinished.text.empty())
            m_unfinished.erase(std::this_thread::get_id());
        else if (!std::exchange(m_isWatched, true))
            QMetaObject::invokeMethod(this, &StreamLines::lookLater, Qt::QueuedConnection);
    }
    for (const std::string& line : lines)
        pass(line);
}

void StreamLines::lookLater()
{
    QTimer::singleShot(patience, this, &StreamLines::look);
}

void StreamLines::look()
{
    std::vector<std::string> lines;
    {
        const std::lock_guard lock(m_mutex);
        for (auto line = m_unfinished.begin(); line != m_unfinished.end();) {
            if (std::exchange(line->second.isNew, false)) {
                ++line;
                continue;
            }
            lines.push_back(std::move(line->second.text));
            line = m_unfinished.erase(line);
        }
        m_isWatched = !m_unfinished.empty();
        if (m_isWatched)
            lookLater();
    }
    for (const std::string& line : lines)
        pass(line);
}
