#include "app/structure/EditCase.h"

#include "orvane/app/structure/GroupEdits.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/NodeSteps.h"

/// What changes of the structure do, each undone and redone.
class TestNodeEdits : public EditCase {
    Q_OBJECT

private:
    NodeEdits edits() { return NodeEdits(scene()); }
    GroupEdits groups() { return GroupEdits(scene()); }
    NodeSteps steps() { return NodeSteps(scene()); }
    static constexpr auto change = NodePlaces::Change;

    std::string selectedNames()
    {
        std::string names;
        for (const auto& member : inTreeOrder(m_selection))
            names += std::string(member.node()->getName().view()) + ' ';
        return names;
    }

private Q_SLOTS:
    void init()
    {
        startSession();
        open("Group \"a\" { Mesh \"x\" {}; Mesh \"y\" {}; Mesh \"z\" {} }\nGroup \"b\" { use \"x\" }\nMesh \"m\" {}\n");
    }
    void cleanup() { endSession(); }

    void removesSeveralNodes()
    {
        check(edits().remove(setOf({"y", "m"})),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"z\" {} } Group \"b\" { use \"x\" }");
        QCOMPARE(m_label, QStringLiteral("Remove 2 nodes"));
    }

    void aRemovedGroupTakesWhatIsBelowAlong()
    {
        check(edits().remove(setOf({"a", "y"})), "Group \"b\" { Mesh \"x\" {} } Mesh \"m\" {}");
        QCOMPARE(m_label, QStringLiteral("Remove a"));
    }

    void theNextNodeIsSelectedAfterARemoval()
    {
        QCOMPARE(apply(edits().remove(setOf({"x"}))), QString());
        QCOMPARE(selectedNames(), std::string("y "));
        QCOMPARE(apply(edits().remove(setOf({"y", "z"}))), QString());
        QCOMPARE(selectedNames(), std::string("a "));
        QCOMPARE(apply(edits().remove(setOf({"m"}))), QString());
        QCOMPARE(selectedNames(), std::string("b "));
    }

    void copiesComeBehindTheLastAndGetNumbers()
    {
        check(edits().duplicate(setOf({"x", "y"})),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"y\" {}; Mesh \"x 2\" {}; Mesh \"y 2\" {}; Mesh \"z\" {} }"
            "Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QCOMPARE(selectedNames(), std::string("x 2 y 2 "));
        QCOMPARE(apply(edits().duplicate(setOf({"x 2"}))), QString());
        QCOMPARE(selectedNames(), std::string("x 3 "));
    }

    void copiesShareWhatTheirOriginalsShare()
    {
        check(edits().duplicate(setOf({"a", "b"})),
            "Group \"a\" { Mesh \"x\" as \"#1\" {}; Mesh \"y\" {}; Mesh \"z\" {} } Group \"b\" { use \"#1\" }"
            "Group \"a 2\" { Mesh \"x\" as \"#2\" {}; Mesh \"y\" {}; Mesh \"z\" {} } Group \"b 2\" { use \"#2\" }"
            "Mesh \"m\" {}");
    }

    void copiesShareWhatIsBelowASharedGroup()
    {
        open("Group \"g\" { Group \"p\" { Mesh \"m\" {} } } Group \"a\" { use \"p\" }");
        check(edits().duplicate(setOf({"m", "a"})),
            "Group \"g\" { Group \"p\" { Mesh \"m\" {} Mesh \"m 2\" {} } } Group \"a\" { use \"p\" }"
            "Group \"a 2\" { Group \"p\" { use \"m 2\" } }");
    }

    void movesNodesInTheOrderOfTheTree()
    {
        check(edits().move(setOf({"m", "y"}), endOf("b"), change),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"z\" {} } Group \"b\" { use \"x\"; Mesh \"y\" {}; Mesh \"m\" {} }");
        QCOMPARE(m_label, QStringLiteral("Move 2 nodes to b"));
        QCOMPARE(selectedNames(), std::string("y m "));
    }

    void movingWithinAGroupReorders()
    {
        NodeSpot spot = endOf("a");
        spot.index = 1;
        check(edits().move(setOf({"z"}), spot, change),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"z\" {}; Mesh \"y\" {} } Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QCOMPARE(m_label, QStringLiteral("Reorder z"));
    }

    void nothingMovesIntoItself()
    {
        open("Group \"a\" { Group \"b\" { Group \"c\" {} } }\nGroup \"d\" { use \"b\" }");
        const QString refused = QStringLiteral("a can't be put into itself or into a node below it.");
        QCOMPARE(apply(edits().move(setOf({"a"}), endOf("a"), change)), refused);
        QCOMPARE(apply(edits().move(setOf({"a"}), endOf("c"), change)), refused);
        QCOMPARE(apply(edits().share(setOf({"a"}), endOf("c"))), refused);
        // Not by another place of the node below, either.
        QVERIFY(!apply(
            edits().move(setOf({"b"}),
                {{&scene(), static_cast<NxGroup*>(node("d")), static_cast<NxGroup*>(node("b"))}, {1, 0}, 0}, change))
                     .isEmpty());
    }

    void groupsNodesInThePlaceOfTheFirst()
    {
        check(groups().group(setOf({"z", "x"}), change),
            "Group \"a\" { Group \"group\" { Mesh \"x\" {}; Mesh \"z\" {} } Mesh \"y\" {} }"
            "Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QCOMPARE(m_label, QStringLiteral("Group 2 nodes"));
        QCOMPARE(selectedNames(), std::string("group "));
    }

    void nodesOfSeveralGroupsComeIntoTheOneAboveAll()
    {
        check(groups().group(setOf({"y", "m"}), change),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"z\" {} } Group \"b\" { use \"x\" }"
            "Group \"group\" { Mesh \"y\" {}; Mesh \"m\" {} }");
    }

    void ungroupsInPlace()
    {
        check(groups().ungroup(setOf({"a", "b", "m"}), change),
            "Mesh \"x\" {} Mesh \"y\" {} Mesh \"z\" {} use \"x\"\nMesh \"m\" {}");
        QCOMPARE(m_label, QStringLiteral("Ungroup 2 groups"));
        QCOMPARE(apply(groups().ungroup(setOf({"m"}), change)), QStringLiteral("m is no group that can be dissolved."));
    }

    void sharesANodeInAnotherPlace()
    {
        check(edits().share(setOf({"y"}), endOf("b")),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"y\" {}; Mesh \"z\" {} } Group \"b\" { use \"x\"; use \"y\" } Mesh "
            "\"m\" {}");
    }

    void copiesANodeToAnotherPlace()
    {
        check(edits().copy(setOf({"x"}), endOf("b")),
            "Group \"a\" { Mesh \"x\" as \"#1\" {}; Mesh \"y\" {}; Mesh \"z\" {} }"
            "Group \"b\" { use \"#1\"; Mesh \"x 2\" {} } Mesh \"m\" {}");
    }

    void makesANodeAPlacesOwn()
    {
        meridane::NodeSet inB = setOf({"b"});
        inB.front().path.push_back(static_cast<NxGroup*>(node("b")));
        inB.front().places.push_back(1);
        inB.front().rows = {0};
        check(groups().makeOwn(inB),
            "Group \"a\" { Mesh \"x\" {}; Mesh \"y\" {}; Mesh \"z\" {} } Group \"b\" { Mesh \"x\" {} } Mesh \"m\" {}");
        QVERIFY(!apply(groups().makeOwn(setOf({"y"}))).isEmpty());
    }

    void theWayToAnOwnCopyIsCopiedToo()
    {
        open("Group \"a\" { Group \"shared\" { Mesh \"x\" {}; Mesh \"y\" {} } }\nGroup \"b\" { use \"shared\" }\n");
        meridane::NodeSet inB = setOf({"b"});
        inB.front().path.push_back(static_cast<NxGroup*>(node("b")));
        inB.front().path.push_back(static_cast<NxGroup*>(node("shared")));
        inB.front().places = {1, 0};
        inB.front().rows = {0};
        check(groups().makeOwn(inB),
            "Group \"a\" { Group \"shared\" { Mesh \"x\" {}; Mesh \"y\" {} } }"
            "Group \"b\" { Group \"shared\" { Mesh \"x\" {}; use \"y\" } }");
    }

    void keysMoveNodesOneStep()
    {
        check(steps().down(setOf({"x", "y"})),
            "Group \"a\" { Mesh \"z\" {}; Mesh \"x\" {}; Mesh \"y\" {} } Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QCOMPARE(m_label, QStringLiteral("Reorder 2 nodes"));
        QVERIFY(!apply(steps().down(setOf({"y"}))).isEmpty());
        check(steps().up(setOf({"y"})),
            "Group \"a\" { Mesh \"z\" {}; Mesh \"y\" {}; Mesh \"x\" {} } Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QCOMPARE(apply(steps().up(setOf({"z"}))), QStringLiteral("z is the first node in its group."));
        check(steps().out(setOf({"y"}), change),
            "Group \"a\" { Mesh \"z\" {}; Mesh \"x\" {} } Mesh \"y\" {} Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QVERIFY(!apply(steps().out(setOf({"y"}), change)).isEmpty());
        check(steps().in(setOf({"y"}), change),
            "Group \"a\" { Mesh \"z\" {}; Mesh \"x\" {}; Mesh \"y\" {} } Group \"b\" { use \"x\" } Mesh \"m\" {}");
        QVERIFY(!apply(steps().in(setOf({"x"}), change)).isEmpty());
    }
};

QTEST_MAIN(TestNodeEdits)
#include "tst_NodeEdits.moc"
