#include "app/structure/EditCase.h"

#include "orvane/app/structure/GroupEdits.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/NodeSteps.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace {

using meridane::NodeRows;
using meridane::NodeSet;
using Nodes = std::vector<NxNode*>;

/// Lists of children, changed in the simplest way: one node after the other.
class Reference {
public:
    explicit Reference(NxGroup& scene) { read(scene); }

    [[nodiscard]] bool isSameAs(NxGroup& scene) const
    {
        Reference now(scene);
        return std::ranges::all_of(now.m_children, [this](const auto& entry) {
            const auto found = m_children.find(entry.first);
            return found != m_children.end() && found->second == entry.second;
        });
    }

    void move(const NodeSet& set, NxNode* target, int index)
    {
        Nodes moved;
        Nodes& to = m_children[target];
        to.insert(to.begin() + index, nullptr); // the place
        for (const auto& member : inTreeOrder(set))
            moved.push_back(member.node());
        remove(set, target, index);
        Nodes& list = m_children[target];
        const auto place = std::ranges::find(list, nullptr);
        list.insert(list.erase(place), moved.begin(), moved.end());
    }
    void remove(const NodeSet& set, const NxNode* shifted = nullptr, int from = 0)
    {
        for (const NodeRows& rows : set) {
            Nodes& list = m_children[&rows.group()];
            for (std::size_t i = rows.rows.size(); i-- > 0;) {
                const int row = rows.rows[i];
                list.erase(list.begin() + row + (&rows.group() == shifted && row >= from ? 1 : 0));
            }
        }
    }
    void shift(const NodeSet& set, int step)
    {
        for (const NodeRows& rows : set) {
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

private:
    void read(NxNode& node)
    {
        const bool isNew = m_children.try_emplace(&node, node.getChildren().begin(), node.getChildren().end()).second;
        for (NxNode* const child : node.getChildren()) {
            if (isNew)
                read(*child);
        }
    }

    std::map<const NxNode*, Nodes> m_children;
};

} // namespace

/// Random changes of the structure against lists that are changed node by node.
class TestRandomEdits : public EditCase {
    Q_OBJECT

private:
    std::mt19937 m_random;

    int number(int end) { return static_cast<int>(m_random() % static_cast<unsigned int>(end)); }

    std::string randomStatements(int depth)
    {
        std::string result;
        for (int i = 1 + number(4); i > 0; --i) {
            const std::string name
                = '"' + std::string(1, static_cast<char>('a' + number(26))) + std::to_string(m_count++) + '"';
            if (number(5) == 0 && !m_closed.empty())
                result += "use " + m_closed[static_cast<std::size_t>(number(static_cast<int>(m_closed.size())))] + "\n";
            else if (depth > 0 && number(2) == 0)
                result += "Group " + name + " {\n" + randomStatements(depth - 1) + "}\n";
            else
                result += "Mesh " + name + " {}\n";
            if (result.find(name) != std::string::npos)
                m_closed.push_back(name);
        }
        return result;
    }

    /// Some rows of random groups.
    NodeSet randomSet()
    {
        NodeSet set;
        std::set<std::vector<int>> known;
        for (int i = 1 + number(3); i > 0; --i) {
            const NodeSpot spot = randomSpot();
            if (spot.group().getNumChildren() == 0 || !known.insert(spot.places).second)
                continue;
            std::set<int> rows;
            for (int j = 1 + number(3); j > 0; --j)
                rows.insert(number(spot.group().getNumChildren()));
            set.push_back({spot.path, spot.places, {rows.begin(), rows.end()}});
        }
        return set;
    }
    NodeSpot randomSpot()
    {
        NodeSpot spot{{&scene()}, {}, 0};
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

    /// Makes a random change, and the same in the reference if that knows it. Returns whether anything was done.
    bool change(Reference& reference, bool& isKnown)
    {
        const NodeSet set = meridane::topmost(randomSet());
        if (set.empty())
            return false;
        const NodeSpot spot = randomSpot();
        const int what = number(9);
        isKnown = what < 4;
        MadeEdit edit = what == 0 ? NodeEdits(scene()).remove(set)
            : what == 1           ? NodeEdits(scene()).move(set, spot, NodePlaces::Change)
            : what == 2           ? NodeSteps(scene()).up(set)
            : what == 3           ? NodeSteps(scene()).down(set)
            : what == 4           ? NodeEdits(scene()).duplicate(set)
            : what == 5           ? GroupEdits(scene()).group(set, NodePlaces::Keep)
            : what == 6           ? GroupEdits(scene()).ungroup(set, NodePlaces::Keep)
            : what == 7           ? GroupEdits(scene()).makeOwn(set)
                                  : NodeEdits::share(set, spot);
        if (!edit)
            return false;
        if (what == 0)
            reference.remove(set);
        else if (what == 1)
            reference.move(set, &spot.group(), spot.index);
        else if (isKnown)
            reference.shift(set, what == 2 ? -1 : 1);
        return apply(std::move(edit)).isEmpty();
    }

    int m_count = 0;
    std::vector<std::string> m_closed;

private Q_SLOTS:
    void cleanup() { endSession(); }

    void changesAreThoseOfTheReferenceAndAreUndoneExactly()
    {
        int done = 0;
        for (unsigned int seed = 0; seed < 60; ++seed) {
            m_random.seed(seed);
            m_count = 0;
            m_closed.clear();
            startSession();
            open(randomStatements(3));
            std::vector<std::string> states{text()};
            for (int i = 0; i < 25 && scene().getNumChildren() > 0; ++i) {
                Reference reference(scene());
                bool isKnown = false;
                const bool isDone = change(reference, isKnown);
                if (isDone && isKnown)
                    QVERIFY2(reference.isSameAs(scene()), qPrintable(m_label + u' ' + QString::number(seed)));
                AppScenes::runSensors();
                if (text() != states.back())
                    states.push_back(text());
                done += isDone ? 1 : 0;
                // What is written can be read, so references and shared nodes are in order.
                QCOMPARE(QString::fromStdString(textOf(text().substr(text().find('\n') + 1))),
                    QString::fromStdString(text()));
            }
            for (std::size_t i = states.size(); i-- > 1;) {
                QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states[i]));
                while (text() == states[i] && m_session->services().canUndo())
                    m_session->services().undo();
            }
            QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states.front()));
            while (m_session->services().canRedo())
                m_session->services().redo();
            QCOMPARE(QString::fromStdString(text()), QString::fromStdString(states.back()));
            endSession();
        }
        QVERIFY(done > 300);
    }
};

QTEST_MAIN(TestRandomEdits)
#include "tst_RandomEdits.moc"
