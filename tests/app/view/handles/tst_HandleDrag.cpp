#include "orvane/app/view/handles/HandleDrag.h"
#include "orvane/app/view/handles/HandleNumbers.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"

#include <QTest>

#include <cmath>
#include <numbers>
#include <random>

using namespace meridane;

namespace {

using Kind = PlacementChange::Kind;

constexpr double width = 800;
constexpr double height = 600;

/// Handles at a random place with axes that may be skew, seen from a random side.
struct Setup {
    explicit Setup(std::mt19937& random, double away = 0)
    {
        std::uniform_real_distribution<double> around(-1, 1);
        const auto vector = [&] { return VbVec3d(around(random), around(random), around(random)); };
        frame.pivot = add(scaled(vector(), 3), VbVec3d(away, -away, away));
        const Matrix4d turned = turnMatrix(normalized(vector(), VbVec3d(0, 1, 0)), 3 * around(random));
        for (std::size_t i = 0; i < 3; ++i) {
            VbVec3d skew = scaled(vector(), 0.2);
            skew[i] += 1;
            frame.axes[i] = normalized(transformVector(skew, turned), VbVec3d(1, 0, 0));
        }
        viewpoint.position = add(frame.pivot, VbVec3d(0.3, 0.2, 5));
        viewpoint.setProjection(around(random) < 0 ? NxViewpoint::PERSPECTIVE : NxViewpoint::ORTHOGRAPHIC);
        viewpoint.orbit(static_cast<float>(3 * around(random)), static_cast<float>(around(random)));
    }

    [[nodiscard]] PictureProjection projection() const { return {viewpoint, width, height}; }

    HandleFrame frame;
    NxViewpoint viewpoint;
};

PicturePlace moved(const PicturePlace& place, double x, double y)
{
    return {place[0] + x, place[1] + y};
}

double distance(const PicturePlace& left, const PicturePlace& right)
{
    return std::hypot(left[0] - right[0], left[1] - right[1]);
}

} // namespace

/// What drags of handles do in the scene, without a window.
class TestHandleDrag : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyPartThatIsShownCanBeTaken()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 100; ++round) {
            const Setup setup(random);
            for (const Kind kind : {Kind::Move, Kind::Turn, Kind::Scale}) {
                const HandleShape shape(kind, setup.frame, setup.projection());
                QVERIFY(shape.isSeen());
                // Whatever is painted last is in front.
                const HandleShape::Piece& front = shape.pieces().back();
                QCOMPARE(
                    shape.partAt(front.isArea ? shape.center() : front.places[front.places.size() / 3]), front.part);
                QCOMPARE(shape.partAt(moved(shape.center(), 300, 300)), HandlePart::None);
            }
        }
    }

    void handlesHaveTheSameSizeAtAnyDistance()
    {
        for (const double away : {1.0, 10.0, 10000.0}) {
            NxViewpoint viewpoint;
            viewpoint.position = VbVec3d(0, 0, away);
            const HandleShape shape(Kind::Move, {}, PictureProjection(viewpoint, width, height));
            bool isFound = false;
            for (const HandleShape::Piece& piece : shape.pieces()) {
                if (piece.part != HandlePart::X)
                    continue;
                isFound = true;
                QVERIFY(std::abs(distance(piece.places.front(), piece.places.back()) - HandleShape::armLength) < 0.1);
            }
            QVERIFY(isFound);
            // The axis that points at the viewer has no arm.
            QVERIFY(std::none_of(shape.pieces().begin(), shape.pieces().end(),
                [](const HandleShape::Piece& piece) { return piece.part == HandlePart::Z; }));
        }
        NxViewpoint behind;
        behind.position = VbVec3d(0, 0, -5);
        QVERIFY(!HandleShape(Kind::Move, {}, PictureProjection(behind, width, height)).isSeen());
    }

    void whatIsTakenStaysUnderThePointer_data()
    {
        QTest::addColumn<double>("away");
        QTest::newRow("at the origin") << 0.0;
        QTest::newRow("far from the origin") << 1e7;
    }
    void whatIsTakenStaysUnderThePointer()
    {
        QFETCH(double, away);
        std::mt19937 random(2);
        std::uniform_real_distribution<double> way(-60, 60);
        for (int round = 0; round < 200; ++round) {
            const Setup setup(random, away);
            const PictureProjection projection = setup.projection();
            const HandleShape shape(Kind::Move, setup.frame, projection);
            for (const HandleShape::Piece& piece : shape.pieces()) {
                const bool isArm = !piece.isArea;
                const PicturePlace from = isArm ? piece.places.back() : piece.places.front();
                PicturePlace to = moved(from, way(random), way(random));
                if (isArm) { // along the arm, where it is seen
                    const double share = way(random) / 100;
                    to = moved(from, (from[0] - shape.center()[0]) * share, (from[1] - shape.center()[1]) * share);
                }
                HandleDrag drag(Kind::Move, piece.part, setup.frame, projection, from);
                const PlacementChange change = drag.changeAt(to, false);
                // Where the taken point is afterwards: on the plane or axis through the pivot.
                const int axis = axisOf(piece.part);
                const SightLine line = projection.lineAt(from);
                VbVec3d taken = add(setup.frame.pivot,
                    scaled(setup.frame.axes[static_cast<std::size_t>(std::max(axis, 0))],
                        projection.unitsPerPoint(setup.frame.pivot) * HandleShape::armLength));
                if (!isArm) {
                    const auto number = static_cast<std::size_t>(std::max(axis, 0));
                    const VbVec3d normal = axis < 0
                        ? projection.ahead()
                        : normalized(
                            cross(setup.frame.axes[(number + 1) % 3], setup.frame.axes[(number + 2) % 3]), VbVec3d());
                    const double along
                        = dot(subtract(setup.frame.pivot, line.origin), normal) / dot(line.direction, normal);
                    taken = add(line.origin, scaled(line.direction, along));
                }
                const auto after = projection.placeOf(add(taken, change.distance));
                QVERIFY(after.has_value());
                QVERIFY2(distance(*after, to) < 1,
                    qPrintable(QStringLiteral("%1, part %2: %3 points off")
                                   .arg(round)
                                   .arg(static_cast<int>(piece.part))
                                   .arg(distance(*after, to))));
            }
        }
    }

    void aTurnFollowsThePointerAroundTheRing()
    {
        std::mt19937 random(3);
        for (int round = 0; round < 200; ++round) {
            const Setup setup(random);
            const PictureProjection projection = setup.projection();
            const HandleShape shape(Kind::Turn, setup.frame, projection);
            for (const HandleShape::Piece& piece : shape.pieces()) {
                const int axis = axisOf(piece.part);
                const VbVec3d about = axis < 0 ? scaled(projection.directionTo(setup.frame.pivot), -1)
                                               : setup.frame.axes[static_cast<std::size_t>(axis)];
                if (std::abs(dot(about, projection.directionTo(setup.frame.pivot))) < 0.2)
                    continue; // seen from its edge
                const std::size_t first = piece.places.size() / 3;
                HandleDrag drag(Kind::Turn, piece.part, setup.frame, projection, piece.places[first]);
                const std::size_t last = first + piece.places.size() / 4;
                const PlacementChange change = drag.changeAt(piece.places[last], false);
                QVERIFY(length(subtract(change.axis, about)) < 1e-9);
                // The turn takes one place of the ring to the other.
                const auto onRing = [&](const PicturePlace& place) {
                    const SightLine line = projection.lineAt(place);
                    const double along
                        = dot(subtract(setup.frame.pivot, line.origin), about) / dot(line.direction, about);
                    return add(line.origin, scaled(line.direction, along));
                };
                const auto after = projection.placeOf(change.applied(onRing(piece.places[first])));
                QVERIFY(distance(*after, piece.places[last]) < 4);
            }
        }
    }

    void aTurnSeenFromItsEdgeFollowsThePointerAlong()
    {
        NxViewpoint viewpoint; // looks along negative z; the ring about y is a line from left to right
        const HandleFrame frame;
        const PictureProjection projection(viewpoint, width, height);
        const PicturePlace center = *projection.placeOf(frame.pivot);
        HandleDrag drag(Kind::Turn, HandlePart::Y, frame, projection, center);
        const PlacementChange change = drag.changeAt(moved(center, HandleShape::armLength, 0), false);
        QVERIFY(std::abs(change.angle - 1) < 1e-6);
        // What is in front of the axis goes to the right, with the pointer.
        QVERIFY(change.applied(VbVec3d(0, 0, 1))[0] > 0.5);
    }

    void aTurnGoesSeveralTimesAround()
    {
        NxViewpoint viewpoint;
        const PictureProjection projection(viewpoint, width, height);
        const PicturePlace center = *projection.placeOf(VbVec3d());
        const auto at = [&](double degrees) {
            const double angle = degrees * std::numbers::pi / 180;
            return moved(center, 80 * std::cos(angle), -80 * std::sin(angle));
        };
        HandleDrag drag(Kind::Turn, HandlePart::Z, {}, projection, at(10));
        PlacementChange change;
        for (int degrees = 10; degrees <= 10 + 760; degrees += 20)
            change = drag.changeAt(at(degrees), false);
        QVERIFY(std::abs(change.angle - 760 * std::numbers::pi / 180) < 1e-3);
        change = drag.changeAt(at(10 + 763), true);
        QVERIFY(std::abs(change.angle - 765 * std::numbers::pi / 180) < 1e-9);
        QVERIFY(std::abs(*drag.numbers()[2] - 765) < 1e-9);
    }

    void scalesByTheDistanceFromThePivot()
    {
        NxViewpoint viewpoint;
        const PictureProjection projection(viewpoint, width, height);
        const PicturePlace center = *projection.placeOf(VbVec3d());
        HandleDrag drag(Kind::Scale, HandlePart::X, {}, projection, moved(center, 80, 0));
        QVERIFY(std::abs(drag.changeAt(moved(center, 120, 0), false).factors[0] - 1.5) < 1e-6);
        QCOMPARE(drag.changeAt(moved(center, 120, 33), false).factors[1], 1.0);
        QVERIFY(std::abs(drag.changeAt(moved(center, 131, 0), true).factors[0] - 1.6) < 1e-9);
        QVERIFY(drag.changeAt(moved(center, -80, 0), false).factors[0] < 0);
        // Never flat.
        QVERIFY(drag.changeAt(center, true).factors[0] != 0);
        HandleDrag all(Kind::Scale, HandlePart::Center, {}, projection, center);
        const VbVec3d factors = all.changeAt(moved(center, 80, 0), false).factors;
        QVERIFY(length(subtract(factors, VbVec3d(2, 2, 2))) < 1e-9);
    }

    void snapsToRoundDistances()
    {
        std::mt19937 random(4);
        for (const double away : {0.01, 1.0, 5.0, 77.0, 12345.0}) {
            NxViewpoint viewpoint;
            viewpoint.position = VbVec3d(0, 0, away);
            const PictureProjection projection(viewpoint, width, height);
            const PicturePlace center = *projection.placeOf(VbVec3d());
            HandleDrag drag(Kind::Move, HandlePart::X, {}, projection, center);
            const double step = drag.snapDistance();
            const double points = step / projection.unitsPerPoint(VbVec3d());
            QVERIFY(points >= 12 && points <= 31);
            const double digit = step / std::pow(10, std::floor(std::log10(step) + 1e-9));
            QVERIFY(std::abs(digit - 1) < 1e-6 || std::abs(digit - 2) < 1e-6 || std::abs(digit - 5) < 1e-6);
            const double moves = drag.changeAt(moved(center, 2.9 * points, 0), true).distance[0];
            QVERIFY(std::abs(moves - 3 * step) < 1e-9 * away + 1e-12);
        }
    }

    void takesNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("axis");
        QTest::addColumn<QString>("numbers"); // of x, y and z, "-" for none; empty if they aren't complete
        QTest::newRow("one number") << "2.5" << 1 << "- 2.5 -";
        QTest::newRow("a letter") << "x 2.5" << 1 << "2.5 - -";
        QTest::newRow("without a blank") << "Z-3" << 0 << "- - -3";
        QTest::newRow("several") << "x 1 z -0,5" << 0 << "1 - -0.5";
        QTest::newRow("all") << ".5" << -1 << "0.5 0.5 0.5";
        QTest::newRow("zeros") << "1e3" << 0 << "1000 - -";
        QTest::newRow("the letter alone") << "x" << 0 << "";
        QTest::newRow("a sign alone") << "-" << 0 << "";
        QTest::newRow("two points") << "1..2" << 0 << "";
        QTest::newRow("two numbers") << "1 2" << 0 << "";
        QTest::newRow("too large") << "1e999" << 0 << "";
    }
    void takesNumbers()
    {
        QFETCH(QString, text);
        QFETCH(int, axis);
        QFETCH(QString, numbers);
        HandleNumbers typed;
        for (const QChar character : text)
            QVERIFY(typed.type(character));
        QVERIFY(!typed.type(QChar(u'q')));
        const auto found = typed.numbers(axis);
        QString shown;
        for (std::size_t i = 0; found && i < 3; ++i)
            shown += (i == 0 ? QString() : QStringLiteral(" "))
                + ((*found)[i] ? QString::number(*(*found)[i]) : QStringLiteral("-"));
        QCOMPARE(shown, numbers);
    }
};

QTEST_APPLESS_MAIN(TestHandleDrag)
#include "tst_HandleDrag.moc"
