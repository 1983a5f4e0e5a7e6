#include "app/view/SceneViewCase.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace meridane;

Q_DECLARE_METATYPE(VbVec3f)

/// How the user moves around in the view.
class TestSceneViewMoves : public SceneViewCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { showSquares(); }
    void cleanup() { endView(); }

    void keepsAllInViewWhateverTheSize()
    {
        m_view->resize(300, 500);
        static_cast<void>(picture());
        QVERIFY(at(-3, 0).x() > 0 && at(-3, 0).x() < 30);
        QTest::keyClick(m_view.get(), Qt::Key_Plus);
        const NxViewpoint before = m_view->viewpoint();
        m_view->resize(600, 400);
        static_cast<void>(picture());
        QCOMPARE(m_view->viewpoint(), before);
    }

    void orbitsByALeftDrag()
    {
        const NxViewpoint before = m_view->viewpoint();
        const QImage image = picture();
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(300, 200), QPoint(200, 160));
        const NxViewpoint& after = m_view->viewpoint();
        QVERIFY(length(subtract(after.focalPoint(), before.focalPoint())) < 1e-3);
        // The scene goes with the pointer: to the left and up, so the viewer goes to the right and down.
        QVERIFY(after.position[0] > before.position[0]);
        QVERIFY(after.position[1] < before.position[1]);
        QVERIFY(picture() != image);
        QVERIFY(m_view->hasMoved());
    }

    void orbitsAboutThePickedPoint_data()
    {
        QTest::addColumn<NxViewpoint::Projection>("projection");
        QTest::newRow("perspective") << NxViewpoint::PERSPECTIVE;
        QTest::newRow("orthographic") << NxViewpoint::ORTHOGRAPHIC;
    }
    void orbitsAboutThePickedPoint()
    {
        QFETCH(const NxViewpoint::Projection, projection);
        m_view->setProjection(projection);
        static_cast<void>(picture());
        const QPoint from = at(2.5F, 0.5F);
        const VbVec3f direction = m_view->viewpoint().viewDirection();
        drag(Qt::LeftButton, Qt::NoModifier, from, from + QPoint(-70, 40));
        QVERIFY(length(subtract(m_view->viewpoint().viewDirection(), direction)) > 0.3);
        QVERIFY2((at(2.5F, 0.5F) - from).manhattanLength() <= 1, "the point that was picked stays where it is");
        QVERIFY(ViewScenes::isLike(picture().pixelColor(from), Qt::green));
        // The next one is about what is picked then.
        const QPoint left = at(-1.5F, -0.5F);
        drag(Qt::LeftButton, Qt::NoModifier, left, left + QPoint(30, 30));
        QVERIFY((at(-1.5F, -0.5F) - left).manhattanLength() <= 1);
    }

    void orbitsAboutTheMiddleIfAskedTo()
    {
        m_view->navigation().setOrbitsPicked(false);
        const NxViewpoint before = m_view->viewpoint();
        const QPoint from = at(2.5F, 0.5F);
        drag(Qt::LeftButton, Qt::NoModifier, from, from + QPoint(-70, 40));
        QVERIFY(length(subtract(m_view->viewpoint().focalPoint(), before.focalPoint())) < 1e-3);
        QVERIFY((at(2.5F, 0.5F) - from).manhattanLength() > 20);
    }

    void looksFromTheCornerAsAtFirst()
    {
        m_view->setProjection(NxViewpoint::ORTHOGRAPHIC);
        m_view->lookFromCorner();
        QCOMPARE(m_view->viewpoint().projection, NxViewpoint::PERSPECTIVE);
        const VbVec3f direction = m_view->viewpoint().viewDirection();
        QVERIFY(direction[0] < 0 && direction[1] < 0 && direction[2] < 0);
    }

    void aClickAfterAMovePicksWhatIsInFront()
    {
        const QPoint place = at(2, 0);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, place);
        m_view->navigate(m_view->viewpoint());
        const std::optional<NxRayHit> next = m_view->input().nextHit(place);
        QVERIFY(next && next->path.back() == child(2, 1));
    }

    void pansByADrag_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::newRow("middle button") << Qt::MiddleButton << Qt::NoModifier;
        QTest::newRow("Shift and left button") << Qt::LeftButton << Qt::ShiftModifier;
        QTest::newRow("Ctrl and left button") << Qt::LeftButton << Qt::ControlModifier;
    }

    void pansByADrag()
    {
        QFETCH(const Qt::MouseButton, button);
        QFETCH(const Qt::KeyboardModifier, modifier);
        const VbVec3f direction = m_view->viewpoint().viewDirection();
        const QPoint from = at(2, 0);
        const QPoint to = from + QPoint(-80, 50);
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        drag(button, modifier, from, to);
        QCOMPARE(m_view->viewpoint().viewDirection(), direction);
        QVERIFY((at(2, 0) - to).manhattanLength() <= 2);
        QVERIFY(ViewScenes::isLike(picture().pixelColor(to), Qt::green));
        QCOMPARE(picked.size(), 0);
    }

    void zoomsToThePointer()
    {
        const QPoint place = at(2.5F, 0.5F);
        const int width = at(3, 0).x() - at(1, 0).x();
        for (int notch = 0; notch < 3; ++notch)
            turnWheel(place, 120);
        QVERIFY((at(2.5F, 0.5F) - place).manhattanLength() <= 2);
        QVERIFY(at(3, 0).x() - at(1, 0).x() > width * 3 / 2);
        turnWheel(place, -360);
        QVERIFY((at(2.5F, 0.5F) - place).manhattanLength() <= 2);
        QVERIFY(std::abs(at(3, 0).x() - at(1, 0).x() - width) <= 2);
    }

    void zoomsToThePointerOverNothing()
    {
        m_view->setProjection(NxViewpoint::ORTHOGRAPHIC);
        const QPoint place = at(0, 0.5F);
        turnWheel(place, 240);
        QVERIFY((at(0, 0.5F) - place).manhattanLength() <= 2);
    }

    void movesByKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::addColumn<VbVec3f>("way"); // of the viewer, by its signs
        QTest::newRow("left") << Qt::Key_Left << Qt::NoModifier << VbVec3f(-1, 0, -1);
        QTest::newRow("right") << Qt::Key_Right << Qt::NoModifier << VbVec3f(1, 0, -1);
        QTest::newRow("up") << Qt::Key_Up << Qt::NoModifier << VbVec3f(0, 1, -1);
        QTest::newRow("down") << Qt::Key_Down << Qt::NoModifier << VbVec3f(0, -1, -1);
        QTest::newRow("Shift and left") << Qt::Key_Left << Qt::ShiftModifier << VbVec3f(-1, 0, 0);
        QTest::newRow("Shift and up") << Qt::Key_Up << Qt::ShiftModifier << VbVec3f(0, 1, 0);
        QTest::newRow("plus") << Qt::Key_Plus << Qt::NoModifier << VbVec3f(0, 0, -1);
        QTest::newRow("minus") << Qt::Key_Minus << Qt::NoModifier << VbVec3f(0, 0, 1);
    }

    void movesByKeys()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifier, modifier);
        QFETCH(const VbVec3f, way);
        const VbVec3d before = m_view->viewpoint().position;
        QTest::keyClick(m_view.get(), key, modifier);
        const VbVec3d moved = subtract(m_view->viewpoint().position, before);
        for (std::size_t i = 0; i < 3; ++i) {
            const float sign = std::abs(moved[i]) < 1e-4 ? 0.F : std::copysign(1.F, static_cast<float>(moved[i]));
            QCOMPARE(sign, way[i]);
        }
    }

    void framesTheSelection()
    {
        select({m_scene->getChild(2), child(2, 1)});
        m_view->frameSelection();
        QVERIFY((at(2, 0) - QPoint(300, 200)).manhattanLength() <= 2);
        QVERIFY(at(2, 1).y() > 0 && at(2, 1).y() < 40);
        m_view->frameAll();
        static_cast<void>(picture());
        QVERIFY((at(0, 0) - QPoint(300, 200)).manhattanLength() <= 2);
    }

    void framesWhatStandsAroundAMaterial()
    {
        select({m_scene->getChild(1), child(1, 0)});
        m_view->frameSelection();
        QVERIFY((at(-2, 0) - QPoint(300, 200)).manhattanLength() <= 2);
        select({});
        m_view->frameSelection();
        static_cast<void>(picture());
        QVERIFY((at(0, 0) - QPoint(300, 200)).manhattanLength() <= 2);
    }

    void staysWhereItIsWhenThingsMove()
    {
        const NxViewpoint before = m_view->viewpoint();
        const QPoint place = at(2, 0);
        auto* transform = dynamic_cast<NxTransform*>(m_scene->getChild(2));
        transform->translation.setValue(VbVec3f(2, 8, 0));
        QTRY_VERIFY(!ViewScenes::isLike(shown().pixelColor(place), Qt::green));
        QCOMPARE(m_view->viewpoint(), before);
        m_view->frameAll();
        QTRY_VERIFY(ViewScenes::isLike(shown().pixelColor(at(2, 8)), Qt::green));
    }

    void framesWhatComesIntoAnEmptyScene()
    {
        m_scene = NxRef<NxGroup>(new NxGroup);
        m_view->setScene(m_scene.get(), QString());
        static_cast<void>(picture());
        const NxRef<NxGroup> squares = ViewScenes::squares();
        m_scene->addChild(squares->getChild(1));
        QTRY_VERIFY(ViewScenes::isLike(shown().pixelColor(300, 200), Qt::red));
    }

    void endsADragWhoseReleaseIsLost()
    {
        QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        QMouseEvent move(QEvent::MouseMove, QPointF(200, 100), m_view->mapToGlobal(QPointF(200, 100)), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        const NxViewpoint before = m_view->viewpoint();
        QApplication::sendEvent(m_view.get(), &move);
        QApplication::sendEvent(m_view.get(), &move);
        QCOMPARE(m_view->viewpoint(), before);
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 100));
    }
};

QTEST_MAIN(TestSceneViewMoves)
#include "tst_SceneViewMoves.moc"
