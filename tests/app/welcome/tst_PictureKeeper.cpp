#include "app/window/RobotWindowCase.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/welcome/PictureKeeper.h"
#include "orvane/app/welcome/Thumbnails.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Pictures of scenes that are kept while they are seen.
class TestPictureKeeper : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] Thumbnails thumbnails() const { return Thumbnails(filePath("thumbnails")); }
    [[nodiscard]] bool hasPicture() const { return !thumbnails().read(m_robot).isNull(); }
    SceneView* view() { return m_window->findChild<SceneView*>(); }
    void openRobot()
    {
        m_keeper = new PictureKeeper(m_window->document(), view(), thumbnails(), m_window.get());
        QCOMPARE(open(m_robot), QString());
        QTRY_VERIFY(!view()->picture().isNull());
    }

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void aSceneThatIsLeftHasItsPicture()
    {
        openRobot();
        QVERIFY(!hasPicture());
        const QSize seen = view()->picture().size();
        QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(hasPicture());
        const QSize kept = thumbnails().read(m_robot).size();
        QCOMPARE(std::max(kept.width(), kept.height()), Thumbnails::side);
        QVERIFY(std::max(seen.width(), seen.height()) > Thumbnails::side);
        QVERIFY(view()->picture().isNull());
    }

    void aSceneThatIsSavedHasItsPicture()
    {
        openRobot();
        renameRobot("other");
        QVERIFY(m_window->document().isModified());
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(hasPicture());
    }

    /// What isn't in the file isn't on its picture.
    void changesThatAreGivenUpAreNotSeen()
    {
        openRobot();
        renameRobot("other");
        m_window->document().close();
        delete m_keeper; // which waits for what it has begun
        QVERIFY(!hasPicture());
    }

    void aWindowThatClosesHasKeptIt()
    {
        openRobot();
        QVERIFY(m_window->close());
        m_window.reset();
        QVERIFY(hasPicture());
    }

private:
    PictureKeeper* m_keeper = nullptr;
};

QTEST_MAIN(TestPictureKeeper)

#include "tst_PictureKeeper.moc"
