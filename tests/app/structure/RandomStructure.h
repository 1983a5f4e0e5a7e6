#pragma once

#include "app/AppScenes.h"

#include "orvane/app/structure/GroupEdits.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/NodeSteps.h"

#include <array>
#include <random>
#include <set>
#include <string>
#include <vector>

/// Random scenes, and random changes of their structure by what the tool's actions call; the same ones for the same
/// seed.
class RandomStructure {
public:
    enum class Kind {
        Remove,
        Move,
        MoveInPlace, ///< with the place in the world kept
        Up,
        Down,
        Out,
        In,
        Duplicate,
        Copy,
        Group,
        GroupInPlace,
        Ungroup,
        UngroupInPlace,
        MakeOwn,
        Share,
        Paste,
    };
    static constexpr int kindCount = static_cast<int>(Kind::Paste) + 1;

    struct Change {
        Kind kind;
        meridane::NodeSet set; ///< topmost nodes
        NodeSpot spot; ///< where they come, if the kind has such a place
        MadeEdit edit;
    };

    explicit RandomStructure(unsigned int seed)
        : m_random(seed)
    {
    }

    /// The statements of a scene with groups, transforms, meshes, and nodes that are used several times.
    [[nodiscard]] std::string statements(int depth = 3)
    {
        std::string result;
        for (int i = 1 + number(4); i > 0; --i) {
            if (number(5) == 0 && !m_closed.empty()) {
                result += "use " + m_closed[static_cast<std::size_t>(number(static_cast<int>(m_closed.size())))] + "\n";
                continue;
            }
            const std::string name
                = '"' + std::string(1, static_cast<char>('a' + number(26))) + std::to_string(m_count++) + '"';
            if (depth > 0 && number(2) == 0)
                result += "Group " + name + " {\n" + statements(depth - 1) + "}\n";
            else if (depth > 0 && number(3) == 0)
                result += "Transform " + name + " {\ntranslation = " + std::to_string(number(9))
                    + " 2 0\nscaleFactor = " + (number(2) == 0 ? "2 2 2" : "1 3 1") + "\n" + statements(depth - 1)
                    + "}\n";
            else
                result += "Mesh " + name + " {}\n";
            m_closed.push_back(name);
        }
        return result;
    }

    /// A random change of a scene that has nodes.
    [[nodiscard]] Change change(NxGroup& scene)
    {
        meridane::NodeSet set = meridane::topmost(someNodes(scene));
        NodeSpot spot = someSpot(scene);
        const auto kind = static_cast<Kind>(number(kindCount));
        MadeEdit edit = made(scene, kind, set, spot);
        return {kind, std::move(set), std::move(spot), std::move(edit)};
    }

    [[nodiscard]] int number(int end) { return static_cast<int>(m_random() % static_cast<unsigned int>(end)); }

private:
    [[nodiscard]] MadeEdit made(NxGroup& scene, Kind kind, const meridane::NodeSet& set, const NodeSpot& spot)
    {
        switch (kind) {
        case Kind::Remove:
            return NodeEdits(scene).remove(set);
        case Kind::Move:
            return NodeEdits(scene).move(set, spot, NodePlaces::Change);
        case Kind::MoveInPlace:
            return NodeEdits(scene).move(set, spot, NodePlaces::Keep);
        case Kind::Up:
            return NodeSteps(scene).up(set);
        case Kind::Down:
            return NodeSteps(scene).down(set);
        case Kind::Out:
            return NodeSteps(scene).out(set, NodePlaces::Change);
        case Kind::In:
            return NodeSteps(scene).in(set, NodePlaces::Change);
        case Kind::Duplicate:
            return NodeEdits(scene).duplicate(set);
        case Kind::Copy:
            return NodeEdits(scene).copy(set, spot);
        case Kind::Group:
            return GroupEdits(scene).group(set, NodePlaces::Change);
        case Kind::GroupInPlace:
            return GroupEdits(scene).group(set, NodePlaces::Keep);
        case Kind::Ungroup:
            return GroupEdits(scene).ungroup(set, NodePlaces::Change);
        case Kind::UngroupInPlace:
            return GroupEdits(scene).ungroup(set, NodePlaces::Keep);
        case Kind::MakeOwn:
            return GroupEdits(scene).makeOwn(set);
        case Kind::Share:
            return NodeEdits::share(set, spot);
        case Kind::Paste:
            break;
        }
        m_closed.clear(); // nodes that the pasted text doesn't have
        const NxRef<NxGroup> pasted = AppScenes::read(("#mrd 1.0\n" + statements(1)).c_str());
        const std::vector<NxRef<NxNode>> nodes(pasted->getChildren().begin(), pasted->getChildren().end());
        pasted->removeAllChildren();
        return NodeEdits::insert(nodes, spot, NodeEdits::Names::Number);
    }

    /// Some rows of random groups; at least one.
    [[nodiscard]] meridane::NodeSet someNodes(NxGroup& scene)
    {
        meridane::NodeSet set;
        std::set<std::vector<int>> known;
        for (int i = 1 + number(3); i > 0 || set.empty(); --i) {
            const NodeSpot spot = someSpot(scene);
            if (spot.group().getNumChildren() == 0 || !known.insert(spot.places).second)
                continue;
            std::set<int> rows;
            for (int j = 1 + number(3); j > 0; --j)
                rows.insert(number(spot.group().getNumChildren()));
            set.push_back({spot.path, spot.places, {rows.begin(), rows.end()}});
        }
        return set;
    }
    [[nodiscard]] NodeSpot someSpot(NxGroup& scene)
    {
        NodeSpot spot{{&scene}, {}, 0};
        while (spot.group().getNumChildren() > 0 && number(3) > 0) {
            const int row = number(spot.group().getNumChildren());
            auto* const group = dynamic_cast<NxGroup*>(spot.group().getChild(row));
            if (group == nullptr)
                break;
            spot.path.push_back(group);
            spot.places.push_back(row);
        }
        spot.index = number(spot.group().getNumChildren() + 1);
        return spot;
    }

    std::mt19937 m_random;
    int m_count = 0;
    std::vector<std::string> m_closed; // the names that can be used again
};
