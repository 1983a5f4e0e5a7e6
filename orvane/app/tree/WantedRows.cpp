#include "orvane/app/tree/WantedRows.h"

#include "orvane/app/tree/SceneTreeModel.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>
#include <unordered_set>

namespace {

/// Nodes that are still to be found. Most nodes of a scene are asked for and none of them, so an answer must be cheap.
class NodesToFind {
public:
    explicit NodesToFind(std::span<NxNode* const> nodes)
        : m_places(std::bit_ceil(2 * nodes.size() + 1))
        , m_shift(64 - std::countr_zero(m_places.size()))
    {
        for (const NxNode* const node : nodes) {
            const std::size_t place = placeOf(node);
            if (node == nullptr || m_places[place].node != nullptr)
                continue;
            m_places[place] = {node, false};
            ++m_left;
        }
    }

    [[nodiscard]] bool isEmpty() const noexcept { return m_left == 0; }
    /// Whether it is one of them, and wasn't taken before.
    bool take(const NxNode* node)
    {
        Place& place = m_places[placeOf(node)];
        if (place.node == nullptr || place.isTaken)
            return false;
        place.isTaken = true;
        --m_left;
        return true;
    }

private:
    struct Place {
        const NxNode* node = nullptr;
        bool isTaken = false;
    };

    /// Where the node is, or the free place for it.
    [[nodiscard]] std::size_t placeOf(const NxNode* node) const
    {
        constexpr std::uint64_t factor = 0x9E3779B97F4A7C15; // spreads addresses over the highest bits
        const auto address = reinterpret_cast<std::uintptr_t>(node); // NOLINT(*-reinterpret-cast): to be hashed
        std::size_t place = (std::uint64_t{address} * factor) >> m_shift;
        while (m_places[place].node != nullptr && m_places[place].node != node)
            place = (place + 1) & (m_places.size() - 1);
        return place;
    }

    std::vector<Place> m_places;
    int m_shift;
    std::size_t m_left = 0;
};

/// Nodes are anywhere in memory: those that are next are asked for early.
void readAhead(std::span<NxNode* const> children, std::size_t next)
{
    constexpr std::size_t ahead = 12;
    if (next + ahead < children.size())
        __builtin_prefetch(children[next + ahead]);
}

} // namespace

WantedRows::WantedRows(SceneTreeModel& model, std::span<NxNode* const> nodes)
    : m_model(model)
    , m_first(nodes.empty() ? nullptr : nodes.front())
{
    NodesToFind wanted(nodes);
    std::unordered_set<const NxNode*> entered; // groups with several references
    m_levels.push_back({m_model.scene()->getChildren()});
    while (!m_levels.empty() && !wanted.isEmpty()) {
        Level& level = m_levels.back();
        if (level.next == level.children.size()) {
            m_levels.pop_back();
            continue;
        }
        readAhead(level.children, level.next);
        const NxNode& node = *level.children[level.next++];
        if (wanted.take(&node))
            add(node);
        const auto children = node.getChildren();
        if (!children.empty() && (node.getRefCount() == 1 || entered.insert(&node).second))
            m_levels.push_back({children});
    }
}

/// Adds the latest node of the deepest level.
void WantedRows::add(const NxNode& node)
{
    Level& level = m_levels.back();
    if (level.group == none) {
        level.group = m_groups.size();
        m_groups.push_back({latestParent(), {}});
    }
    const auto row = static_cast<int>(level.next) - 1;
    Group& group = m_groups[level.group];
    if (!group.rows.empty() && group.rows.back().second == row - 1)
        group.rows.back().second = row;
    else
        group.rows.emplace_back(row, row);
    if (&node == m_first)
        m_firstNode = m_model.index(row, SceneTreeModel::NameColumn, group.parent);
}

/// The row of the group whose children are in the deepest level, with its rows up to date.
QModelIndex WantedRows::latestParent()
{
    auto first = std::ranges::find(m_levels, false, &Level::isUpdated);
    for (; first != m_levels.end(); ++first) {
        if (first != m_levels.begin()) {
            const Level& above = *std::prev(first);
            first->parent = m_model.index(static_cast<int>(above.next) - 1, SceneTreeModel::NameColumn, above.parent);
        }
        m_model.updateRows(first->parent);
        first->isUpdated = true;
    }
    return m_levels.back().parent;
}

QItemSelection WantedRows::ranges() const
{
    QItemSelection ranges;
    for (const Group& group : m_groups) {
        for (const auto& [top, bottom] : group.rows) {
            ranges.append(QItemSelectionRange(m_model.index(top, SceneTreeModel::NameColumn, group.parent),
                m_model.index(bottom, SceneTreeModel::ColumnCount - 1, group.parent)));
        }
    }
    return ranges;
}
