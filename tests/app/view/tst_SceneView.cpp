#include "app/view/SceneViewCase.h"

#include "meridane/scene/nodes/NxMaterial.h"

#include <QLabel>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace meridane;

/// What the view shows and picks.
class TestSceneView : public SceneViewCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { showSquares(); }
    void cleanup() { endView(); }

    void showsAllOfASceneAtFirst()
    {
        const QImage image = picture();
        QVERIFY(ViewScenes::isLike(image.pixelColor(at(-2, 0)), Qt::red));
        QVERIFY(ViewScenes::isLike(image.pixelColor(at(2, 0)), Qt::green));
        QVERIFY(!ViewScenes::isLike(image.pixelColor(at(0, 0.5F)), Qt::red));
        // As large as it may be.
        QVERIFY(at(-3, 0).x() > 0 && at(-3, 0).x() < 60);
    }

    void picksTheNodeThatIsClicked()
    {
        std::vector<NxNode*> nodes;
        VbVec3d point;
        connect(m_view.get(), &SceneView::picked, this, [&](const NxRayHit& hit) {
            nodes = hit.path;
            point = hit.point;
        });
        const QSignalSpy nothing(m_view.get(), &SceneView::pickedNothing);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, at(2, 0));
        QCOMPARE(nodes, (std::vector<NxNode*>{m_scene->getChild(2), child(2, 1)}));
        QVERIFY(length(subtract(point, VbVec3f(2, 0, 0))) < 0.05);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, at(-2, 0.5F));
        QCOMPARE(nodes, (std::vector<NxNode*>{m_scene->getChild(1), child(1, 1)}));
        QCOMPARE(nothing.size(), 0);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, at(0, 0.5F));
        QCOMPARE(nothing.size(), 1);
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        QCOMPARE(nothing.size(), 2);
    }

    void picksWithAnUnsteadyHandAndNotWithOtherButtons()
    {
        const NxViewpoint before = m_view->viewpoint();
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        QTest::mouseClick(m_view.get(), Qt::MiddleButton, Qt::NoModifier, at(2, 0));
        QCOMPARE(picked.size(), 0);
        drag(Qt::LeftButton, Qt::NoModifier, at(2, 0), at(2, 0) + QPoint(2, 1));
        QCOMPARE(picked.size(), 1);
        QCOMPARE(m_view->viewpoint(), before);
    }

    void outlinesTheSelection()
    {
        const QColor outline = QColor::fromRgbF(
            m_view->style().outlineColor[0], m_view->style().outlineColor[1], m_view->style().outlineColor[2]);
        QCOMPARE(ViewScenes::count(picture(), outline), 0);
        select({m_scene->getChild(2), child(2, 1)});
        const QImage image = picture();
        QVERIFY(ViewScenes::count(image, outline) > 100);
        // Around the square alone, which keeps its own colour.
        QCOMPARE(ViewScenes::count(image.copy(0, 0, 250, 400), outline), 0);
        QVERIFY(ViewScenes::isLike(image.pixelColor(at(2, 0)), Qt::green));
        select({});
        QCOMPARE(ViewScenes::count(picture(), outline), 0);
    }

    void followsEdits()
    {
        auto* material = dynamic_cast<NxMaterial*>(child(2, 0));
        material->emissiveColor.setValue(VbColor(0, 0, 1));
        QTRY_VERIFY(ViewScenes::isLike(shown().pixelColor(at(2, 0)), Qt::blue));
        QVERIFY(ViewScenes::isLike(shown().pixelColor(at(-2, 0)), Qt::red));
        material->emissiveColor.setIgnored(1);
        QTRY_VERIFY(!ViewScenes::isLike(shown().pixelColor(at(2, 0)), Qt::blue));
    }

    void drawsOnePictureForManyChangesAndNoneForNone()
    {
        const int before = m_view->drawing().pictures();
        for (int paint = 0; paint < 5; ++paint)
            m_view->repaint();
        m_view->hide();
        m_view->show();
        QCoreApplication::processEvents();
        m_view->repaint();
        QCOMPARE(m_view->drawing().pictures(), before);
        auto* material = dynamic_cast<NxMaterial*>(child(2, 0));
        for (int step = 0; step < 10; ++step) {
            material->emissiveColor.setValue(VbColor(0, 0, static_cast<float>(step) / 10));
            AppScenes::runSensors();
        }
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        m_view->repaint();
        QCOMPARE(m_view->drawing().pictures(), before + 1);
        m_scene->getChild(0)->setName("renamed");
        AppScenes::runSensors();
        QCoreApplication::processEvents();
        m_view->repaint();
        QCOMPARE(m_view->drawing().pictures(), before + 1);
    }

    void showsTheStyle()
    {
        const QImage solid = picture();
        NxDrawingStyle style = m_view->style();
        style.surfaces = NxDrawingStyle::WIREFRAME;
        m_view->setStyle(style);
        QVERIFY(ViewScenes::count(picture(), Qt::green) < ViewScenes::count(solid, Qt::green) / 4);
    }

    void suitsLightAndDarkColours()
    {
        const QColor light = picture().pixelColor(5, 5);
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(40, 40, 40));
        dark.setColor(QPalette::WindowText, Qt::white);
        m_view->setPalette(dark);
        const QColor after = picture().pixelColor(5, 5);
        QVERIFY(after.lightness() < 90);
        QVERIFY(light.lightness() > 110);
        m_view->setPalette(QPalette());
        QVERIFY(ViewScenes::isLike(picture().pixelColor(5, 5), light));
    }

    void comesBackAfterTheContextIsLost()
    {
        const QImage before = picture();
        m_view->drawing().restart();
        QVERIFY(m_view->drawing().isStarted());
        m_view->update();
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        QTest::keyClick(m_view.get(), Qt::Key_Right);
        const QImage after = picture();
        QVERIFY(ViewScenes::isLike(after.pixelColor(at(2, 0)), Qt::green));
        QVERIFY(std::abs(ViewScenes::count(after, Qt::green) - ViewScenes::count(before, Qt::green)) < 50);
    }

    void showsNothingWithoutAScene()
    {
        m_view->setScene(nullptr, QString());
        QVERIFY(ViewScenes::count(picture(), Qt::green) == 0);
        const NxViewpoint before = m_view->viewpoint();
        const QSignalSpy nothing(m_view.get(), &SceneView::pickedNothing);
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(300, 200), QPoint(100, 100));
        turnWheel(QPoint(300, 200), 120);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 200));
        QCOMPARE(m_view->viewpoint(), before);
        QCOMPARE(nothing.size(), 0);
    }

    void tellsWhyThereIsNoDrawing()
    {
        qputenv("ORVANE_VIEW", "0");
        SceneView view;
        view.resize(300, 200);
        view.setScene(m_scene.get(), QString());
        view.show();
        QTRY_VERIFY(view.findChild<QLabel*>(QStringLiteral("viewMessage")) != nullptr);
        const auto* message = view.findChild<QLabel*>(QStringLiteral("viewMessage"));
        QVERIFY(message->isVisible());
        QVERIFY(message->text().contains(QStringLiteral("ORVANE_VIEW")));
        QVERIFY(!view.drawing().isStarted());
        QTest::keyClick(&view, Qt::Key_Left);
        view.frameSelection();
        view.setSelectedPath({m_scene->getChild(1)});
        static_cast<void>(view.grab());
        QCOMPARE(view.drawing().pictures(), 0);
    }
};

QTEST_MAIN(TestSceneView)
#include "tst_SceneView.moc"
