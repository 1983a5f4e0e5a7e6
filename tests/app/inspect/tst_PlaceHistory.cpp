#include "app/AppScenes.h"

#include "orvane/app/inspect/PlaceHistory.h"

#include <QTest>

#include <algorithm>
#include <random>

using Direction = PlaceHistory::Direction;

namespace {

constexpr std::size_t all = 1000;

/// A scene of groups in a row, and a history of visits to them.
class Visits {
public:
    explicit Visits(int count)
        : m_scene(new NxGroup)
    {
        for (int i = 0; i < count; ++i) {
            m_nodes.emplace_back(new NxGroup);
            m_scene->addChild(m_nodes.back().get());
        }
    }

    void visit(int index)
    {
        NxNode* const node = m_nodes[static_cast<std::size_t>(index)].get();
        m_history.visit(std::span(&node, 1));
    }
    /// Goes to the nearest place; -1 if there is none.
    int go(Direction direction)
    {
        const auto places = m_history.places(direction, *m_scene, 1);
        return places.empty() ? -1 : indexOf(m_history.goTo(places.front(), *m_scene).path.back());
    }
    [[nodiscard]] QList<int> listed(Direction direction, std::size_t most = all) const
    {
        QList<int> result;
        for (const std::size_t place : m_history.places(direction, *m_scene, most))
            result.append(indexOf(m_history.node(place)));
        return result;
    }
    [[nodiscard]] int indexOf(const NxNode* node) const
    {
        const auto place = std::find_if(
            m_nodes.begin(), m_nodes.end(), [node](const NxRef<NxGroup>& other) { return other.get() == node; });
        return static_cast<int>(place - m_nodes.begin());
    }
    void remove(int index) { m_scene->removeChild(m_scene->findChild(node(index))); }
    void putBack(int index) { m_scene->addChild(node(index)); }
    void destroy(int index)
    {
        remove(index);
        m_nodes[static_cast<std::size_t>(index)] = NxRef<NxGroup>();
    }
    [[nodiscard]] bool isThere(int index) const { return m_scene->findChild(node(index)) >= 0; }
    [[nodiscard]] NxGroup* node(int index) const { return m_nodes[static_cast<std::size_t>(index)].get(); }
    [[nodiscard]] NxGroup& scene() const { return *m_scene; }
    [[nodiscard]] PlaceHistory& history() { return m_history; }

private:
    NxRef<NxGroup> m_scene;
    std::vector<NxRef<NxGroup>> m_nodes;
    PlaceHistory m_history;
};

} // namespace

class TestPlaceHistory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesBackAndForward()
    {
        Visits visits(3);
        for (int i = 0; i < 3; ++i)
            visits.visit(i);
        QCOMPARE(visits.go(Direction::Forward), -1);
        QCOMPARE(visits.go(Direction::Back), 1);
        QCOMPARE(visits.go(Direction::Back), 0);
        QCOMPARE(visits.go(Direction::Back), -1);
        QCOMPARE(visits.go(Direction::Forward), 1);
        QCOMPARE(visits.listed(Direction::Forward), QList<int>({2}));
    }

    void anotherVisitForgetsWhatIsAhead()
    {
        Visits visits(4);
        for (int i = 0; i < 3; ++i)
            visits.visit(i);
        visits.go(Direction::Back);
        visits.visit(3);
        QCOMPARE(visits.listed(Direction::Forward), QList<int>());
        QCOMPARE(visits.listed(Direction::Back), QList<int>({1, 0}));
    }

    void theSameNodeAgainIsNoOtherPlace()
    {
        Visits visits(2);
        visits.visit(0);
        visits.visit(1);
        visits.go(Direction::Back);
        visits.visit(0);
        QCOMPARE(visits.listed(Direction::Forward), QList<int>({1}));
    }

    void theFirstPlaceBehindNothingIsThePresentOne()
    {
        Visits visits(2);
        QCOMPARE(visits.go(Direction::Back), -1);
        visits.visit(0);
        visits.visit(1);
        visits.history().leave();
        QCOMPARE(visits.go(Direction::Back), 1);
        QCOMPARE(visits.go(Direction::Back), 0);
    }

    void nodesThatAreGoneArePassedOver()
    {
        Visits visits(4);
        for (int i = 0; i < 4; ++i)
            visits.visit(i);
        visits.remove(2);
        QCOMPARE(visits.go(Direction::Back), 1);
        visits.putBack(2);
        QCOMPARE(visits.go(Direction::Forward), 2);
        visits.destroy(1);
        QCOMPARE(visits.go(Direction::Back), 0);
    }

    void aGroupThatIsGoneTakesWhatIsInIt()
    {
        Visits visits(2);
        const NxRef<NxGroup> inner(new NxGroup);
        visits.node(0)->addChild(inner.get());
        const std::vector<NxNode*> path{visits.node(0), inner.get()};
        visits.history().visit(path);
        visits.visit(1);
        QCOMPARE(visits.history().places(Direction::Back, visits.scene(), 1).size(), 1U);
        visits.remove(0);
        QVERIFY(visits.history().places(Direction::Back, visits.scene(), 1).empty());
    }

    void goingToTheSameNodeTwiceIsOneStep()
    {
        Visits visits(2);
        visits.visit(0);
        visits.visit(1);
        visits.visit(0);
        visits.remove(1);
        QCOMPARE(visits.listed(Direction::Back), QList<int>()); // the other place is that of the same node
    }

    void aPlaceHasTheFieldThatWasSelected()
    {
        Visits visits(2);
        visits.visit(0);
        visits.history().noteField(*visits.node(0), VbName("children"));
        visits.history().noteField(*visits.node(1), VbName("other")); // not the present place
        visits.visit(1);
        const auto places = visits.history().places(Direction::Back, visits.scene(), 1);
        QVERIFY(visits.history().goTo(places.front(), visits.scene()).field == VbName("children"));
    }

    void theOldestPlacesAreForgotten()
    {
        constexpr int more = static_cast<int>(PlaceHistory::mostPlaces) + 50;
        Visits visits(more);
        for (int i = 0; i < more; ++i)
            visits.visit(i);
        const QList<int> behind = visits.listed(Direction::Back);
        QCOMPARE(behind.size(), static_cast<qsizetype>(PlaceHistory::mostPlaces) - 1);
        QCOMPARE(behind.first(), more - 2);
        QCOMPARE(visits.listed(Direction::Back, 3), QList<int>({more - 2, more - 3, more - 4}));
    }

    void aPlaceIsKnownByItsNode()
    {
        Visits visits(2);
        visits.visit(0);
        visits.visit(1);
        QVERIFY(visits.history().isPlaceOf(0, visits.node(0), visits.scene()));
        QVERIFY(!visits.history().isPlaceOf(0, visits.node(1), visits.scene()));
        QVERIFY(!visits.history().isPlaceOf(7, visits.node(1), visits.scene()));
        visits.remove(0);
        QVERIFY(!visits.history().isPlaceOf(0, visits.node(0), visits.scene()));
    }

    void randomVisitsAreThoseOfAList()
    {
        for (unsigned seed = 0; seed < 20; ++seed) {
            std::mt19937 random(seed);
            const auto below
                = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
            Visits visits(6);
            std::vector<int> expected; // as a browser's list, without those that are gone
            std::size_t present = 0;
            for (int step = 0; step < 300; ++step) {
                const int what = below(10);
                const int index = below(6);
                if (what < 5 && visits.isThere(index)) {
                    visits.visit(index);
                    if (expected.empty() || expected[present] != index) {
                        if (!expected.empty())
                            expected.resize(present + 1);
                        expected.push_back(index);
                        if (expected.size() > PlaceHistory::mostPlaces)
                            expected.erase(expected.begin());
                        present = expected.size() - 1;
                    }
                } else if (what == 5 && visits.isThere(index)) {
                    visits.remove(index);
                } else if (what == 6 && !visits.isThere(index)) {
                    visits.putBack(index);
                } else if (what > 6 && !expected.empty()) {
                    const bool back = what < 9;
                    std::size_t place = present;
                    std::optional<std::size_t> found;
                    while (!found && (back ? place > 0 : place + 1 < expected.size())) {
                        place = back ? place - 1 : place + 1;
                        if (expected[place] != expected[present] && visits.isThere(expected[place]))
                            found = place;
                    }
                    QCOMPARE(visits.go(back ? Direction::Back : Direction::Forward), found ? expected[*found] : -1);
                    present = found.value_or(present);
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestPlaceHistory)
#include "tst_PlaceHistory.moc"
