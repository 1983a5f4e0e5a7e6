#include "meridane/base/FileHasher.h"

#include <utility>

namespace meridane {

namespace {

constexpr std::size_t chunk = std::size_t{256} << 10;

} // namespace

FileHasher::FileHasher(std::string path)
    : m_path(std::move(path))
{
}

FileHasher::State FileHasher::step(const WorkBudget& budget)
{
    if (m_state == State::Working && !std::exchange(m_opened, true)) {
        if (const auto failure = m_file.open(m_path))
            finish(failure);
    }
    while (m_state == State::Working && !budget.isSpent()) {
        m_bytes.clear();
        bool atEnd = false;
        const auto failure = m_file.read(m_bytes, chunk, atEnd);
        m_hasher.add(m_bytes);
        if (failure || atEnd)
            finish(failure);
    }
    return m_state;
}

void FileHasher::finish(const std::optional<std::string>& failure)
{
    m_state = failure ? State::Failed : State::Done;
    m_failure = failure.value_or(std::string());
}

} // namespace meridane
