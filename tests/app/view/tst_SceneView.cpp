#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

using namespace meridane;

Q_DECLARE_METATYPE(VbVec3f)

class TestSceneView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = ViewScenes::squares();
        m_view = std::make_unique<SceneView>();
        m_view->resize(600, 400);
        m_view->setScene(m_scene.get(), QString());
        m_view->show();
        QTRY_VERIFY(m_view->drawing().isStarted());
        m_view->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        m_view->setStyle(ViewScenes::withoutLines(m_view->style()));
        static_cast<void>(picture());
    }

    void cleanup()
    {
        m_view.reset();
        m_scene = NxRef<NxGroup>();
        qunsetenv("ORVANE_VIEW");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void showsAllOfASceneAtFirst()
    {
        const QImage image = picture();
        QVERIFY(ViewScenes::isLike(image.pixelColor(at(-2, 0)), Qt::red));
        QVERIFY(ViewScenes::isLike(image.pixelColor(at(2, 0)), Qt::green));
        QVERIFY(!ViewScenes::isLike(image.pixelColor(at(0, 0.5F)), Qt::red));
        // As large as it may be.
        QVERIFY(at(-3, 0).x() > 0 && at(-3, 0).x() < 60);
    }

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
        QVERIFY(length(subtract(after.getFocalPoint(), before.getFocalPoint())) < 1e-3);
        // The scene goes with the pointer: to the left and up, so the viewer goes to the right and down.
        QVERIFY(after.position[0] > before.position[0]);
        QVERIFY(after.position[1] < before.position[1]);
        QVERIFY(picture() != image);
        QVERIFY(m_view->hasMoved());
    }

    void pansByADrag_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::newRow("middle button") << Qt::MiddleButton << Qt::NoModifier;
        QTest::newRow("Shift and left button") << Qt::LeftButton << Qt::ShiftModifier;
    }
    void pansByADrag()
    {
        QFETCH(const Qt::MouseButton, button);
        QFETCH(const Qt::KeyboardModifier, modifier);
        const VbVec3f direction = m_view->viewpoint().getDirection();
        const QPoint from = at(2, 0);
        const QPoint to = from + QPoint(-80, 50);
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        drag(button, modifier, from, to);
        QCOMPARE(m_view->viewpoint().getDirection(), direction);
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

    void picksTheNodeThatIsClicked()
    {
        std::vector<NxNode*> nodes;
        VbVec3d point;
        connect(m_view.get(), &SceneView::picked, this, [&](const std::vector<NxNode*>& path, const VbVec3d& place) {
            nodes = path;
            point = place;
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

private:
    [[nodiscard]] QImage picture() const { return m_view->grab().toImage(); }
    /// After events, as the user would see it.
    [[nodiscard]] QImage shown() const
    {
        QCoreApplication::processEvents();
        AppScenes::runSensors();
        return picture();
    }
    [[nodiscard]] NxNode* child(int group, int index) const
    {
        return m_scene->getChild(group)->getChildren()[static_cast<std::size_t>(index)];
    }

    /// The pixel of a point in the plane of the squares.
    [[nodiscard]] QPoint at(float x, float y) const
    {
        const float aspect = static_cast<float>(m_view->width()) / static_cast<float>(m_view->height());
        const VbMatrix matrix = multiply(
            m_view->viewpoint().getViewMatrix(), m_view->viewpoint().getProjectionMatrix(aspect, 0.1F, 1000));
        const VbVec3f place = transformPoint(VbVec3f(x, y, 0), matrix);
        return {qRound((place[0] + 1) / 2 * static_cast<float>(m_view->width())),
            qRound((1 - place[1]) / 2 * static_cast<float>(m_view->height()))};
    }

    void select(const std::vector<NxNode*>& nodes)
    {
        m_view->setSelectedPath(nodes);
        AppScenes::runSensors();
    }

    void drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(m_view.get(), button, modifiers, from);
        constexpr int steps = 4;
        for (int step = 1; step <= steps; ++step) {
            const QPointF place = QPointF(from) + QPointF(to - from) * step / steps;
            QMouseEvent move(QEvent::MouseMove, place, m_view->mapToGlobal(place), Qt::NoButton, button, modifiers);
            QApplication::sendEvent(m_view.get(), &move);
        }
        QTest::mouseRelease(m_view.get(), button, modifiers, to);
    }

    void turnWheel(const QPoint& place, int delta)
    {
        QWheelEvent event(place, m_view->mapToGlobal(place), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &event);
    }

    NxRef<NxGroup> m_scene;
    std::unique_ptr<SceneView> m_view;
};

QTEST_MAIN(TestSceneView)
#include "tst_SceneView.moc"
