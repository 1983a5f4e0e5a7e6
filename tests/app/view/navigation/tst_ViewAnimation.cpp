#include "app/view/SceneViewCase.h"

#include "orvane/app/view/navigation/ViewAnimation.h"

#include <QTest>

#include <cmath>
#include <functional>

using namespace meridane;

/// The way of the view to where it jumps. The tests drive the clock.
class TestViewAnimation : public SceneViewCase {
    Q_OBJECT

private:
    void lookFromTheRight() { m_view->lookAlong(VbVec3f(-1, 0, 0), VbVec3f(0, 1, 0)); }
    [[nodiscard]] VbVec3f direction() const { return m_view->viewpoint().viewDirection(); }
    [[nodiscard]] NxViewpoint halfWay()
    {
        const NxViewpoint before = m_view->viewpoint();
        m_now += ViewAnimation::duration / 2;
        [&] { QTRY_VERIFY(!(m_view->viewpoint() == before)); }();
        return m_view->viewpoint();
    }

    std::chrono::steady_clock::time_point m_now;
    ViewAnimation* m_animation = nullptr;

private Q_SLOTS:
    void init()
    {
        showSquares();
        m_animation = new ViewAnimation(m_view.get(), [this] { return m_now; });
        m_animation->setOn(true);
    }
    void cleanup() { endView(); }

    void travelsToAStandardView()
    {
        lookFromTheRight();
        QVERIFY(m_animation->isRunning());
        QVERIFY(length(subtract(direction(), VbVec3f(0, 0, -1))) < 1e-3);
        const NxViewpoint half = halfWay();
        QVERIFY(half.viewDirection()[0] < -0.3F && half.viewDirection()[2] < -0.3F);
        QVERIFY(std::abs(half.upAxis()[1] - 1) < 1e-3F);
        m_now += ViewAnimation::duration;
        QTRY_VERIFY(!m_animation->isRunning());
        QVERIFY(length(subtract(direction(), VbVec3f(-1, 0, 0))) < 1e-5);
    }

    void endsWhereItWouldHaveJumped_data()
    {
        QTest::addColumn<int>("jump");
        QTest::newRow("axis") << 0;
        QTest::newRow("frame selection") << 1;
        QTest::newRow("frame all") << 2;
        QTest::newRow("viewpoint") << 3;
        QTest::newRow("corner") << 4;
    }
    void endsWhereItWouldHaveJumped()
    {
        QFETCH(const int, jump);
        select({m_scene->getChild(2), child(2, 1)});
        NxViewpoint other;
        other.position = VbVec3d(3, 4, 5);
        other.setProjection(NxViewpoint::ORTHOGRAPHIC);
        const std::vector<std::function<void()>> jumps{[this] { lookFromTheRight(); },
            [this] { m_view->frameSelection(); }, [this] { m_view->frameAll(); },
            [this, &other] { m_view->goTo(other); }, [this] { m_view->lookFromCorner(); }};
        NxViewpoint start = m_view->viewpoint();
        start.position = VbVec3d(1, 2, 20);
        m_view->setViewpoint(start);
        m_animation->setOn(false);
        jumps[static_cast<std::size_t>(jump)]();
        QVERIFY(!m_animation->isRunning());
        const NxViewpoint end = m_view->viewpoint();
        m_view->setViewpoint(start);
        m_animation->setOn(true);
        jumps[static_cast<std::size_t>(jump)]();
        QVERIFY(m_animation->isRunning());
        QVERIFY(!(m_view->viewpoint() == end));
        const NxViewpoint half = halfWay();
        QVERIFY(!(half == end));
        m_now += ViewAnimation::duration;
        QTRY_COMPARE(m_view->viewpoint(), end);
        QVERIFY(!m_animation->isRunning());
    }

    void inputEndsItAtOnce_data()
    {
        QTest::addColumn<int>("input");
        QTest::newRow("key") << 0;
        QTest::newRow("press") << 1;
        QTest::newRow("wheel") << 2;
    }
    void inputEndsItAtOnce()
    {
        QFETCH(const int, input);
        lookFromTheRight();
        static_cast<void>(halfWay());
        const QPoint corner(5, 5); // where nothing is
        if (input == 0)
            QTest::keyClick(m_view.get(), Qt::Key_J); // which means nothing
        else if (input == 1)
            QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, corner);
        else
            turnWheel(corner, 120);
        QVERIFY(!m_animation->isRunning());
        QVERIFY(length(subtract(direction(), VbVec3f(-1, 0, 0))) < 1e-5);
    }

    void aPointerThatPassesByDoesNot()
    {
        lookFromTheRight();
        QTest::mouseMove(m_view.get(), QPoint(50, 50));
        QVERIFY(m_animation->isRunning());
    }

    void theNextJumpIsFromWhereItIs()
    {
        lookFromTheRight();
        const NxViewpoint half = halfWay();
        m_view->lookAlong(VbVec3f(0, 0, 1), VbVec3f(0, 1, 0));
        QVERIFY(m_animation->isRunning());
        QVERIFY(length(subtract(direction(), half.viewDirection())) < 1e-3);
        m_now += ViewAnimation::duration;
        QTRY_VERIFY(!m_animation->isRunning());
        QVERIFY(length(subtract(direction(), VbVec3f(0, 0, 1))) < 1e-5);
    }

    void anotherSceneEndsIt()
    {
        lookFromTheRight();
        static_cast<void>(halfWay());
        const NxRef<NxGroup> other = ViewScenes::squares();
        m_view->setScene(other.get(), QString());
        QVERIFY(!m_animation->isRunning());
        const NxViewpoint viewpoint = m_view->viewpoint();
        m_now += ViewAnimation::duration;
        QCoreApplication::processEvents();
        static_cast<void>(picture());
        QVERIFY(direction() == viewpoint.viewDirection());
        m_scene = other;
    }

    void whatElseMovesTheViewEndsIt()
    {
        lookFromTheRight();
        static_cast<void>(halfWay());
        NxViewpoint camera;
        camera.position = VbVec3d(7, 7, 7);
        m_view->setViewpoint(camera);
        m_now += ViewAnimation::duration / 4;
        QTRY_VERIFY(!m_animation->isRunning());
        QCOMPARE(m_view->viewpoint(), camera);
    }

    void isNotWantedWhereNobodyLooks() { QVERIFY(!ViewAnimation::isWanted()); }

    void aPathIsEvenAndEndsExactly()
    {
        NxViewpoint from;
        NxViewpoint to;
        to.orbit(3, 0.5F);
        to.focalDistance = 500;
        to.position = VbVec3d(1e6, 3, 4);
        const ViewpointPath path(from, to);
        QCOMPARE(path.at(1), to);
        QVERIFY(length(subtract(path.at(0).position, from.position)) < 1e-3);
        QVERIFY(std::abs(path.at(0.5).focalDistance - 50) < 1e-2F);
        QVERIFY(length(path.at(0.25).viewDirection()) > 0.999);
        to = from;
        to.orientation = from.orientation;
        to.height = 8;
        QVERIFY(path.at(0.3).projection == from.projection);
    }
};

QTEST_MAIN(TestViewAnimation)
#include "tst_ViewAnimation.moc"
