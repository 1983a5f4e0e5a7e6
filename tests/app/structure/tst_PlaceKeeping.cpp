#include "app/structure/EditCase.h"

#include "orvane/app/structure/GroupEdits.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/NodeSteps.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>
#include <map>
#include <random>

/// Nodes that move to other groups and stay where they are in the world.
class TestPlaceKeeping : public EditCase {
    Q_OBJECT

private:
    NodeEdits edits() { return NodeEdits(scene()); }
    static constexpr auto keep = NodePlaces::Keep;

    using Places = std::map<std::string, meridane::Matrix4d>;

    /// The world transform of every mesh.
    Places places()
    {
        Places result;
        meridane::NodeTraversal nodes(scene());
        while (const NxNode* const node = nodes.nextUse()) {
            if (!node->isOfType(NxMesh::getClassTypeId()))
                continue;
            meridane::Matrix4d world;
            for (const NxNode* const above : nodes.path())
                world = meridane::multiply(meridane::localTransformOf(*above), world);
            result.insert_or_assign(std::string(node->getName().view()), world);
        }
        return result;
    }
    void checkSame(const Places& before)
    {
        const Places after = places();
        QCOMPARE(after.size(), before.size());
        for (const auto& [name, place] : before) {
            for (std::size_t row = 0; row < 4; ++row) {
                for (std::size_t column = 0; column < 4; ++column) {
                    const double difference = std::abs(after.at(name)[row][column] - place[row][column]);
                    QVERIFY2(difference < 1e-3 * (1 + std::abs(place[row][column])), name.c_str());
                }
            }
        }
    }

private Q_SLOTS:
    void init() { startSession(); }
    void cleanup() { endSession(); }

    void aTransformGetsOtherValues()
    {
        open("Transform \"from\" { translation = 1 2 3; Transform \"arm\" { translation = 1 0 0; Mesh \"m\" {} } }\n"
             "Transform \"to\" { translation = 0 0 5 }\n");
        check(edits().move(setOf({"arm"}), endOf("to"), keep),
            "Transform \"from\" { translation = 1 2 3 }"
            "Transform \"to\" { translation = 0 0 5; Transform \"arm\" { translation = 2 2 -2; Mesh \"m\" {} } }");
        QVERIFY(m_note.isEmpty());
    }

    void aMeshGetsATransformAbove()
    {
        open("Transform \"from\" { translation = 1 2 3; Mesh \"m\" {} }\nGroup \"to\" {}\n");
        check(edits().move(setOf({"m"}), endOf("to"), keep),
            "Transform \"from\" { translation = 1 2 3 } Group \"to\" { Transform { translation = 1 2 3; Mesh \"m\" {} "
            "} }");
        QVERIFY(m_note.contains(QStringLiteral("transform was added")));
    }

    void materialsHaveNoPlace()
    {
        open("Transform \"from\" { translation = 1 2 3; Material \"red\" {} }\nGroup \"to\" {}\n");
        check(edits().move(setOf({"red"}), endOf("to"), keep),
            "Transform \"from\" { translation = 1 2 3 } Group \"to\" { Material \"red\" {} }");
    }

    void lightsAndCamerasMoveThemselves()
    {
        open("Transform \"from\" { translation = 0 0 4; rotation = 0 1 0 1.5707964; PointLight \"lamp\" { location = 1 "
             "0 0 }\n"
             "  PerspectiveCamera \"eye\" { position = 0 1 0 } }\nGroup \"to\" {}\n");
        QCOMPARE(apply(edits().move(setOf({"lamp", "eye"}), endOf("to"), keep)), QString());
        const VbVec3f location = static_cast<NxPointLight*>(node("lamp"))->location.getValue();
        QVERIFY(meridane::length(meridane::subtract(location, VbVec3f(0, 0, 3))) < 1e-5);
        const auto* const eye = static_cast<NxPerspectiveCamera*>(node("eye"));
        QVERIFY(meridane::length(meridane::subtract(eye->position.getValue(), VbVec3f(0, 1, 4))) < 1e-5);
        QVERIFY(std::abs(eye->orientation.getValue().getAngle() - 1.5707964F) < 1e-5F);
    }

    void shearNeedsAMatrix()
    {
        open("Transform \"from\" { scaleFactor = 1 3 1; Transform \"arm\" { rotation = 0 0 1 0.5; Mesh \"m\" {} } }\n"
             "Group \"to\" {}\n");
        const Places before = places();
        // The arm itself can't have it, but a transform above it can.
        QCOMPARE(apply(edits().move(setOf({"arm"}), endOf("to"), keep)), QString());
        checkSame(before);
        QVERIFY(text().find("MatrixTransform") == std::string::npos);
        QVERIFY(!m_note.isEmpty());
        // No transform can.
        QCOMPARE(apply(edits().move(setOf({"m"}), endOf(nullptr), keep)), QString());
        checkSame(before);
        QVERIFY(text().find("MatrixTransform") != std::string::npos);
    }

    void aGroupScaledToNothingKeepsNoPlace()
    {
        open("Mesh \"m\" {}\nTransform \"flat\" { scaleFactor = 1 0 1 }\n");
        const std::string before = text();
        QVERIFY(apply(edits().move(setOf({"m"}), endOf("flat"), keep)).contains(QStringLiteral("Keep Place")));
        QCOMPARE(text(), before);
        QCOMPARE(apply(edits().move(setOf({"m"}), endOf("flat"), NodePlaces::Change)), QString());
    }

    void aSharedNodeStaysAsItIsElsewhere()
    {
        open("Transform \"from\" { translation = 1 0 0; Transform \"arm\" { Mesh \"m\" {} } }\nGroup \"b\" { use "
             "\"arm\" }\n"
             "Group \"to\" {}\n");
        check(edits().move(setOf({"arm"}), endOf("to"), keep),
            "Transform \"from\" { translation = 1 0 0 } Group \"b\" { Transform \"arm\" { Mesh \"m\" {} } }"
            "Group \"to\" { Transform { translation = 1 0 0; use \"arm\" } }");
    }

    void farFromTheOriginNothingIsLost()
    {
        open("Transform \"far\" { translation = 1e7 0 0; Transform \"from\" { translation = 0.25 0 0\n"
             "  Transform \"arm\" { translation = 0.125 0 0; Mesh \"m\" {} } } Group \"to\" {} }\n");
        check(edits().move(setOf({"arm"}), endOf("to"), keep),
            "Transform \"far\" { translation = 1e7 0 0; Transform \"from\" { translation = 0.25 0 0 }"
            "  Group \"to\" { Transform \"arm\" { translation = 0.375 0 0; Mesh \"m\" {} } } }");
    }

    void ungroupingATransformKeepsPlaces()
    {
        open("Transform \"t\" { translation = 1 0 0; center = 1 1 1; rotation = 0 0 1 1; scaleFactor = 2 2 2\n"
             "  Mesh \"a\" {}; Transform \"u\" { center = 3 2 1; rotation = 1 0 0 2; Mesh \"b\" {} } }\n");
        const Places before = places();
        QCOMPARE(apply(GroupEdits(scene()).ungroup(setOf({"t"}), keep)), QString());
        checkSame(before);
        QCOMPARE(scene().getNumChildren(), 2);
        QVERIFY(text().find("MatrixTransform") == std::string::npos);
    }

    void randomMovesKeepAllPlaces()
    {
        std::mt19937 random(7);
        const auto number = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
        std::string statements;
        for (int i = 0; i < 8; ++i) {
            const std::string id = std::to_string(i);
            statements += "Transform \"t" + id + "\" { translation = " + std::to_string(number(9)) + " 2 " + id
                + "; rotation = 1 " + id + " 2 " + std::to_string(number(3)) + "; center = 1 0 " + id
                + "; scaleFactor = " + (i % 2 == 0 ? "1 2 1" : "2 2 2") + "\n Mesh \"m" + id + "\" {} }\n";
        }
        open(statements);
        const std::string first = text();
        const Places before = places();
        int steps = 0;
        for (int i = 0; i < 40; ++i) {
            const std::string what = (number(2) == 0 ? "t" : "m") + std::to_string(number(8));
            const std::string where = "t" + std::to_string(number(8));
            if (apply(edits().move(setOf({what.c_str()}), endOf(where.c_str()), keep)).isEmpty())
                ++steps;
            checkSame(before);
        }
        QVERIFY(steps > 10);
        while (m_session->services().canUndo())
            m_session->services().undo();
        QCOMPARE(text(), first);
    }
};

QTEST_MAIN(TestPlaceKeeping)
#include "tst_PlaceKeeping.moc"
