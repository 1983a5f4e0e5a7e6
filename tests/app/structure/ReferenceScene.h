#pragma once

#include "app/structure/RandomStructure.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <vector>

/// The lists of children of a scene, changed in the simplest way: node by node. What a change of the tool made is
/// compared with it.
class ReferenceScene {
public:
    using Nodes = std::vector<NxNode*>;
    using Set = meridane::NodeSet;

    explicit ReferenceScene(NxGroup& scene) { read(scene); }

    [[nodiscard]] const Nodes& childrenOf(const NxNode& node) const { return m_children.at(&node); }
    [[nodiscard]] bool isSameAs(NxGroup& scene) const
    {
        const ReferenceScene now(scene);
        return std::ranges::all_of(now.m_children, [this](const auto& entry) {
            const auto found = m_children.find(entry.first);
            return found != m_children.end() && found->second == entry.second;
        });
    }

    void remove(const Set& set)
    {
        for (const meridane::NodeRows& rows : set) {
            Nodes& list = m_children[&rows.group()];
            for (std::size_t i = rows.rows.size(); i-- > 0;)
                list.erase(list.begin() + rows.rows[i]);
        }
    }
    void move(const Set& set, const NodeSpot& spot)
    {
        const Nodes nodes = nodesOf(set);
        put(set, {{&spot.group(), spot.index, nodes}});
    }
    void shift(const Set& set, int step)
    {
        for (const meridane::NodeRows& rows : set) {
            Nodes& list = m_children[&rows.group()];
            std::vector<int> order = rows.rows;
            if (step > 0)
                std::ranges::reverse(order);
            std::set<int> taken; // by those that can't move
            for (const int row : order) {
                const int to = row + step;
                if (to < 0 || to >= static_cast<int>(list.size()) || taken.contains(to))
                    taken.insert(row);
                else
                    std::swap(list[static_cast<std::size_t>(row)], list[static_cast<std::size_t>(to)]);
            }
        }
    }
    void moveOut(const Set& set)
    {
        Set moved;
        std::vector<Arrival> arrivals;
        for (const meridane::NodeRows& rows : set) {
            if (rows.path.size() < 2)
                continue;
            moved.push_back(rows);
            arrivals.push_back({rows.path[rows.path.size() - 2], rows.places.back() + 1, nodesOf({rows})});
        }
        put(moved, arrivals);
    }
    void moveIn(const Set& set)
    {
        Set moved;
        std::vector<Arrival> arrivals;
        for (const meridane::NodeRows& rows : set) {
            meridane::NodeRows some{rows.path, rows.places, {}};
            NxGroup* group = nullptr; // above rows that follow each other
            int latest = -2;
            for (const int row : rows.rows) {
                if (row != latest + 1)
                    group = dynamic_cast<NxGroup*>(rows.group().getChild(row - 1));
                latest = row;
                if (group == nullptr)
                    continue;
                some.rows.push_back(row);
                arrivals.push_back({group, group->getNumChildren(), {rows.group().getChild(row)}});
            }
            if (!some.rows.empty())
                moved.push_back(some);
        }
        put(moved, arrivals);
    }
    void share(const Set& set, const NodeSpot& spot) { put({}, {{&spot.group(), spot.index, nodesOf(set)}}); }
    void ungroup(const Set& set)
    {
        Set groups;
        std::vector<Arrival> arrivals;
        for (const meridane::NodeRows& rows : set) {
            meridane::NodeRows some{rows.path, rows.places, {}};
            for (const int row : rows.rows) {
                NxNode* const node = rows.group().getChild(row);
                if (dynamic_cast<NxGroup*>(node) == nullptr)
                    continue;
                some.rows.push_back(row);
                arrivals.push_back({&rows.group(), row, m_children[node]});
            }
            if (!some.rows.empty())
                groups.push_back(some);
        }
        put(groups, arrivals);
    }
    /// Lets new nodes, which are in their groups already, come into the lists.
    void insert(const Set& inserted)
    {
        for (const meridane::NodeRows& rows : inserted) {
            Nodes& list = m_children[&rows.group()];
            for (const int row : rows.rows) {
                NxNode* const node = rows.group().getChild(row);
                list.insert(list.begin() + row, node);
                read(*node);
            }
        }
    }

    [[nodiscard]] static Nodes nodesOf(const Set& set)
    {
        Nodes nodes;
        for (const meridane::SetMember& member : inTreeOrder(set))
            nodes.push_back(member.node());
        return nodes;
    }

private:
    struct Arrival {
        NxNode* group;
        int index; // in the list as it is
        Nodes nodes;
    };

    void read(NxNode& node)
    {
        const bool isNew = m_children.try_emplace(&node, node.getChildren().begin(), node.getChildren().end()).second;
        for (NxNode* const child : node.getChildren()) {
            if (isNew)
                read(*child);
        }
    }
    /// Takes nodes out and puts others in; all indices are those before.
    void put(const Set& set, const std::vector<Arrival>& arrivals)
    {
        // Each child in a list of its own, in which what comes before it is put.
        std::map<NxNode*, std::vector<Nodes>> lists;
        for (const Arrival& arrival : arrivals)
            lists.try_emplace(arrival.group, m_children[arrival.group].size() + 1);
        for (const meridane::NodeRows& rows : set)
            lists.try_emplace(&rows.group(), m_children[&rows.group()].size() + 1);
        for (const Arrival& arrival : arrivals) {
            Nodes& before = lists[arrival.group][static_cast<std::size_t>(arrival.index)];
            before.insert(before.end(), arrival.nodes.begin(), arrival.nodes.end());
        }
        std::map<const NxNode*, std::set<int>> leaving;
        for (const meridane::NodeRows& rows : set)
            leaving[&rows.group()].insert(rows.rows.begin(), rows.rows.end());
        for (auto& [group, list] : lists) {
            Nodes& children = m_children[group];
            Nodes result;
            for (std::size_t i = 0; i < list.size(); ++i) {
                result.insert(result.end(), list[i].begin(), list[i].end());
                if (i < children.size() && !leaving[group].contains(static_cast<int>(i)))
                    result.push_back(children[i]);
            }
            children = result;
        }
    }

    std::map<const NxNode*, Nodes> m_children;
};

/// Whether nodes are copies of others as these were before: of the same classes, with the same values, and sharing what
/// these shared. Copies of the top ones may have other names.
class CopyCheck {
public:
    CopyCheck(const ReferenceScene::Set& originals, const ReferenceScene& before)
        : m_before(before)
    {
        for (const NxNode* const node : ReferenceScene::nodesOf(originals))
            m_top.insert(node);
    }

    [[nodiscard]] bool areCopies(const ReferenceScene::Nodes& originals, const ReferenceScene::Nodes& copies)
    {
        return originals.size() == copies.size()
            && std::ranges::equal(
                originals, copies, [this](NxNode* node, NxNode* copy) { return isCopy(*node, *copy); });
    }

private:
    bool isCopy(NxNode& node, NxNode& copy)
    {
        const auto [known, isNew] = m_copies.try_emplace(&node, &copy);
        if (!isNew)
            return known->second == &copy;
        if (&node == &copy || node.getTypeId() != copy.getTypeId() || !m_seen.insert(&copy).second)
            return false;
        if (!m_top.contains(&node) && node.getName() != copy.getName())
            return false;
        const NxFieldData& data = *node.getFieldData();
        for (int index = 0; index < data.getNumFields(); ++index) {
            const NxField& field = *data.getField(&node, index);
            const NxField& copied = *data.getField(&copy, index);
            if (!field.isSame(copied) || field.isIgnored() != copied.isIgnored())
                return false;
        }
        const ReferenceScene::Nodes& children = m_before.childrenOf(node);
        const auto copies = copy.getChildren();
        return std::equal(children.begin(), children.end(), copies.begin(), copies.end(),
            [this](NxNode* child, NxNode* copied) { return isCopy(*child, *copied); });
    }

    ReferenceScene m_before;
    std::set<const NxNode*> m_top;
    std::map<const NxNode*, const NxNode*> m_copies;
    std::set<const NxNode*> m_seen;
};
