#include "meridane/scene/recovery/detail/LogNumbers.h"

#include <utility>

namespace meridane {

void LogNumbers::add(std::size_t node, State state)
{
    if (node >= m_nodes.size())
        m_nodes.resize(node + 1);
    m_nodes[node].number = m_count++;
    m_nodes[node].state = state;
}

void LogNumbers::remove(std::size_t node) noexcept
{
    if (node < m_nodes.size())
        m_nodes[node].state = State::Unknown;
}

void LogNumbers::clear() noexcept
{
    m_nodes.clear();
    m_count = 0;
}

bool LogNumbers::isCapturedAgain(std::size_t node) noexcept
{
    return std::exchange(m_nodes[node].commit, m_commit) == m_commit;
}

} // namespace meridane
