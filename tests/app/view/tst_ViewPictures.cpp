#include "app/view/SceneViewCase.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace {

constexpr int steps = 120; // squares along a side of the hilly plane
constexpr std::uint64_t few = 1'000;

/// Hills, with two triangles a square.
NxRef<NxMesh> hills()
{
    std::vector<VbVec3f> positions;
    std::vector<int> indices;
    for (int row = 0; row <= steps; ++row) {
        for (int column = 0; column <= steps; ++column) {
            const float x = static_cast<float>(column) / steps * 6 - 3;
            const float y = static_cast<float>(row) / steps * 4 - 2;
            positions.emplace_back(x, y, 0.3F * std::sin(2 * x) * std::cos(3 * y));
            if (row == steps || column == steps)
                continue;
            const int first = row * (steps + 1) + column;
            const int above = first + steps + 1;
            indices.insert(indices.end(), {first, first + 1, above, first + 1, above + 1, above});
        }
    }
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues(std::move(positions));
    mesh->indices.setValues(std::move(indices));
    return mesh;
}

} // namespace

/// How much detail the view's pictures have.
class TestViewPictures : public SceneViewCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        showSquares();
        m_scene->removeAllChildren();
        m_scene->addChild(hills().get());
        m_view->setScene(m_scene.get(), QString());
        static_cast<void>(shown());
    }
    void cleanup() { endView(); }

    void aSmallSceneAlwaysHasFullDetail()
    {
        QSignalSpy refined(&m_view->pictures(), &ViewPictures::refined);
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(300, 200), QPoint(250, 180));
        static_cast<void>(picture());
        QVERIFY(m_view->pictures().isFull());
        QCOMPARE(m_view->drawing().counts().drawnTriangles, std::uint64_t{2 * steps * steps});
        QCOMPARE(refined.size(), 0);
    }

    void aLargeSceneHasLessDetailUntilTheViewRests()
    {
        m_view->pictures().setManyTriangles(few);
        QSignalSpy refined(&m_view->pictures(), &ViewPictures::refined);
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(300, 200), QPoint(250, 180));
        const QImage moving = picture();
        QVERIFY(!m_view->pictures().isFull());
        QTRY_VERIFY(m_view->pictures().isFull());
        QCOMPARE(refined.size(), 1);
        const QImage resting = picture();
        QVERIFY(resting != moving);
        QVERIFY(m_view->pictures().isFull());
        m_view->pictures().setAlwaysFull(true);
        m_view->setStyle(m_view->style());
        m_view->setViewpoint(m_view->viewpoint());
        QCOMPARE(picture(), resting);
    }

    void reducedMeshesAreDrawnWhenTheyAreReady()
    {
        m_view->pictures().setManyTriangles(few);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        static_cast<void>(picture());
        QTRY_VERIFY(!m_view->drawing().isReducing());
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        static_cast<void>(picture());
        QVERIFY(!m_view->pictures().isFull());
        QVERIFY(m_view->drawing().counts().drawnTriangles < std::uint64_t{steps * steps});
        QTRY_VERIFY(m_view->pictures().isFull());
        QCOMPARE(m_view->drawing().counts().drawnTriangles, std::uint64_t{2 * steps * steps});
    }

    void aMoveDropsThePictureThatIsBeingRefined()
    {
        m_view->pictures().setManyTriangles(few);
        QSignalSpy refined(&m_view->pictures(), &ViewPictures::refined);
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(m_view.get(), Qt::Key_Left);
            static_cast<void>(picture());
            QVERIFY(!m_view->pictures().isFull());
        }
        const NxViewpoint last = m_view->viewpoint();
        QTRY_VERIFY(m_view->pictures().isFull());
        QCOMPARE(refined.size(), 1);
        QCOMPARE(m_view->viewpoint(), last);
    }

    void aSceneThatChangesMeanwhileIsShownAsItIs()
    {
        m_view->pictures().setManyTriangles(few);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        static_cast<void>(picture());
        m_scene->removeAllChildren();
        m_scene->addChild(ViewScenes::squares().get());
        static_cast<void>(shown());
        QTRY_VERIFY(m_view->pictures().isFull());
        QCOMPARE(m_view->drawing().counts().drawnTriangles, std::uint64_t{4});
    }

    void aPictureThatIsSavedHasFullDetail()
    {
        m_view->pictures().setManyTriangles(few);
        m_view->pictures().setAlwaysFull(true);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        static_cast<void>(picture());
        QVERIFY(m_view->pictures().isFull());
        QCOMPARE(m_view->drawing().counts().drawnTriangles, std::uint64_t{2 * steps * steps});
    }

    void itSurvivesALostContext()
    {
        m_view->pictures().setManyTriangles(few);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        static_cast<void>(picture());
        m_view->drawing().restart();
        QTRY_VERIFY(m_view->pictures().isFull());
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        QVERIFY(!picture().isNull());
        QTRY_VERIFY(m_view->pictures().isFull());
    }
};

QTEST_MAIN(TestViewPictures)
#include "tst_ViewPictures.moc"
