#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneCameras.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

#include <cmath>
#include <limits>

class TestViewLink : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        m_squares = filePath("two squares.mrd");
        writeFile(m_squares, ViewScenes::squaresText);
        QCOMPARE(open(m_squares), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
    }

    void cleanup()
    {
        qunsetenv("ORVANE_VIEW");
        endTool();
    }

    void standsInTheMiddleOfTheWindow()
    {
        QVERIFY(view()->isVisible());
        QVERIFY(view()->width() > m_window->width() / 3);
        QVERIFY(ViewScenes::count(m_window->grab().toImage(), Qt::red) > 500);
    }

    void selectsInTheTreeWhatIsClicked()
    {
        lookAhead();
        click(clickable(Qt::green));
        QCOMPARE(m_session->services().getSelectedNode(), greenSquare());
        QCOMPARE(tree()->selectedNode(), greenSquare());
        const auto* point = m_window->findChild<QLabel*>(QStringLiteral("pickedPoint"));
        QVERIFY(point->isVisible());
        QVERIFY2(std::abs(point->text().section(u' ', 1).section(u',', 0, 0).toDouble() - 2) < 0.1,
            qPrintable(point->text()));
        click(QPoint(3, 3));
        QCOMPARE(m_session->services().getSelectedNode(), nullptr);
        QVERIFY(!tree()->selected().isValid());
        QVERIFY(!point->isVisible());
    }

    void aClickReachesWhatLiesBehindUntilSomethingChanges_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("selection") << "selection";
        QTest::newRow("scene") << "scene";
    }
    void aClickReachesWhatLiesBehindUntilSomethingChanges()
    {
        QFETCH(const QString, change);
        writeFile(m_squares,
            QByteArray(ViewScenes::squaresText)
                + "Mesh \"behind\" { positions = [1 -1 -2, 3 -1 -2, 3 1 -2, 1 1 -2]; indices = [0, 1, 2, 0, 2, 3] }\n");
        QCOMPARE(open(m_squares), QString());
        lookAhead();
        const QPoint place = clickable(Qt::green);
        const OrvServices& services = m_session->services();
        click(place);
        QCOMPARE(services.getSelectedNode(), greenSquare());
        click(place);
        QCOMPARE(services.getSelectedNode(), m_window->document().scene()->getChild(3));
        click(place); // there is nothing more behind
        QCOMPARE(services.getSelectedNode(), greenSquare());
        if (change == QLatin1String("selection")) {
            QVERIFY(m_window->selectPath(QStringLiteral("/left/redSquare")));
        } else {
            auto* const right = static_cast<NxTransform*>(m_window->document().scene()->getChild(2));
            m_session->services().pushCommand(new SetFieldCommand(&right->translation, "2.01 0 0"));
            AppScenes::runSensors();
            QCoreApplication::processEvents(); // the step ends with the action of the user
        }
        click(place);
        QCOMPARE(services.getSelectedNode(), greenSquare());
        click(place);
        QCOMPARE(services.getSelectedNode(), m_window->document().scene()->getChild(3));
    }

    void selectsWhatWasMovedInTheSceneAMomentAgo()
    {
        lookAhead();
        tree()->model()->fetchMore(tree()->model()->index(2, 0));
        const QPoint place = clickable(Qt::green);
        NxNode* const square = greenSquare();
        NxGroup* const scene = m_window->document().scene();
        const NxRef<NxNode> right(scene->getChild(2));
        const NxRef<NxGroup> outer(new NxGroup);
        QVERIFY(scene->removeChild(2));
        outer->addChild(right.get());
        scene->addChild(outer.get());
        click(place); // before the delay queue has run
        QVERIFY(!NxDelayQueue::getDefault().isEmpty());
        QCOMPARE(m_session->services().getSelectedNode(), square);
        QCOMPARE(tree()->model()->path(tree()->selected()), (std::vector<NxNode*>{outer.get(), right.get(), square}));
    }

    void tellsExactlyWhereSomethingFarAwayIsClicked()
    {
        auto* const right = static_cast<NxTransform*>(m_window->document().scene()->getChild(2));
        right->translation.setValue(VbVec3f(1e7F, -1e7F, 0));
        NxDelayQueue::getDefault().process();
        QVERIFY(m_window->selectPath(QStringLiteral("/right/greenSquare")));
        view()->frameSelection();
        lookAhead();
        click(view()->rect().center());
        const auto* point = m_window->findChild<QLabel*>(QStringLiteral("pickedPoint"));
        QVERIFY(point->isVisible());
        const QString text = point->text();
        QVERIFY2(std::abs(text.section(u' ', 1).section(u',', 0, 0).toDouble() - 1e7) < 0.1, qPrintable(text));
        QVERIFY2(std::abs(text.section(u',', 1, 1).toDouble() + 1e7) < 0.1, qPrintable(text));
        QVERIFY2(!text.section(u' ', 1).section(u',', 0, 1).contains(u'e'), qPrintable(text));
    }

    void outlinesWhatIsSelectedInTheTree()
    {
        const VbColor& outline = view()->style().outlineColor;
        const QColor color = QColor::fromRgbF(outline[0], outline[1], outline[2]);
        QCOMPARE(ViewScenes::count(picture(), color), 0);
        QVERIFY(m_window->selectPath(QStringLiteral("/right/greenSquare")));
        QVERIFY(ViewScenes::count(picture(), color) > 50);
        m_session->services().selectNode(nullptr);
        QCOMPARE(ViewScenes::count(picture(), color), 0);
    }

    void followsUndo()
    {
        lookAhead();
        const QPoint place = clickable(Qt::green);
        QVERIFY(m_window->selectPath(QStringLiteral("/right")));
        QAction* remove = action("node.delete");
        remove->trigger();
        QTRY_COMPARE(ViewScenes::count(shown(), Qt::green), 0);
        m_session->services().undo();
        QTRY_VERIFY(ViewScenes::isLike(shown().pixelColor(place), Qt::green));
    }

    void deletesWhatIsSelectedByItsKey()
    {
        lookAhead();
        const QPoint place = clickable(Qt::green);
        view()->setFocus();
        click(place);
        QTest::keyClick(view(), Qt::Key_Delete);
        QTRY_COMPARE(ViewScenes::count(shown(), Qt::green), 0);
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QTRY_VERIFY(ViewScenes::isLike(shown().pixelColor(place), Qt::green));
    }

    void tellsItsKeys()
    {
        action("help.keys")->trigger();
        auto* dialog = m_window->findChild<QDialog*>(QStringLiteral("keysDialog"));
        const auto* rows = dialog->findChild<QTableView*>()->model();
        constexpr int keysColumn = 2;
        for (const char* keys : {"F", "A", "6", "Arrow keys"})
            QVERIFY2(!rows->match(rows->index(0, keysColumn), Qt::DisplayRole, QLatin1String(keys), 1, Qt::MatchExactly)
                          .isEmpty(),
                keys);
        dialog->reject();
    }

    void keysCountInTheViewOnly()
    {
        tree()->setFocus();
        const NxViewpoint before = view()->viewpoint();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_1);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_A);
        QCOMPARE(view()->viewpoint(), before);
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_5);
        QVERIFY(view()->viewpoint().viewDirection()[1] < -0.999F);
        QTest::keyClick(view(), Qt::Key_1);
        QVERIFY(view()->viewpoint().viewDirection()[2] < -0.999F);
        QVERIFY(m_window->selectPath(QStringLiteral("/right")));
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_F);
        QVERIFY(std::abs(view()->viewpoint().focalPoint()[0] - 2) < 0.01);
        QTest::keyClick(view(), Qt::Key_A);
        static_cast<void>(picture());
        QVERIFY(std::abs(view()->viewpoint().focalPoint()[0]) < 0.01);
    }

    void keepsWhatIsSwitchedOn()
    {
        QVERIFY(action("view.grid")->isChecked());
        QVERIFY(action("view.solid")->isChecked());
        action("view.grid")->trigger();
        action("view.wireframe")->trigger();
        action("view.boundingBoxes")->trigger();
        QVERIFY(!view()->style().grid);
        makeWindow();
        QVERIFY(!action("view.grid")->isChecked());
        QVERIFY(action("view.axes")->isChecked());
        QVERIFY(action("view.wireframe")->isChecked());
        QVERIFY(!view()->style().grid);
        QVERIFY(view()->style().boundingBoxes);
        QCOMPARE(view()->style().surfaces, NxDrawingStyle::WIREFRAME);
        action("view.solid")->trigger();
        QCOMPARE(view()->style().surfaces, NxDrawingStyle::SOLID);
    }

    void changesTheProjection()
    {
        action("view.orthographic")->trigger();
        QCOMPARE(view()->viewpoint().projection, NxViewpoint::ORTHOGRAPHIC);
        action("view.perspective")->trigger();
        QCOMPARE(view()->viewpoint().projection, NxViewpoint::PERSPECTIVE);
    }

    void looksThroughACameraAndFollowsIt()
    {
        lookAhead();
        cameraAction(QStringLiteral("camera"))->trigger();
        QCOMPARE(view()->viewpoint().position, VbVec3d(2, 0, 10));
        auto* camera = dynamic_cast<NxCamera*>(m_window->document().scene()->getChild(0));
        camera->position.setValue(VbVec3f(-2, 0, 6));
        QTRY_COMPARE(view()->viewpoint().position, VbVec3d(-2, 0, 6));
        QVERIFY(ViewScenes::isLike(picture().pixelColor(view()->rect().center()), Qt::red));
        QVERIFY(cameraAction(QStringLiteral("camera"))->isChecked());
        QTest::keyClick(view(), Qt::Key_Minus);
        QVERIFY(cameraAction(QStringLiteral("Free"))->isChecked());
        const NxViewpoint before = view()->viewpoint();
        camera->position.setValue(VbVec3f(9, 9, 9));
        AppScenes::runSensors();
        QCOMPARE(view()->viewpoint(), before);
    }

    void keepsTheViewpointOfEachScene()
    {
        QTest::keyClick(view(), Qt::Key_Left);
        QTest::keyClick(view(), Qt::Key_Plus);
        const NxViewpoint mine = view()->viewpoint();
        const QString other = filePath("other.mrd");
        writeFile(other, ViewScenes::squaresText);
        QCOMPARE(open(other), QString());
        QVERIFY(!(view()->viewpoint() == mine));
        QCOMPARE(open(m_squares), QString());
        QCOMPARE(view()->viewpoint(), mine);
        makeWindow();
        QCOMPARE(open(m_squares), QString());
        QCOMPARE(view()->viewpoint(), mine);
    }

    void keepsViewpointsOfTheLatestScenesOnly()
    {
        AppSettings settings(AppSettings::Mode::None);
        SceneCameras cameras(settings);
        NxViewpoint viewpoint;
        for (int scene = 0; scene < SceneCameras::mostScenes + 5; ++scene) {
            viewpoint.height = static_cast<float>(scene + 1);
            cameras.store(QStringLiteral("/a folder/%1.mrd").arg(scene), viewpoint);
        }
        QVERIFY(!cameras.find(QStringLiteral("/a folder/4.mrd")));
        QCOMPARE(cameras.find(QStringLiteral("/a folder/5.mrd"))->height, 6.F);
        QVERIFY(!cameras.find(QString()));
        viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
        viewpoint.position = VbVec3f(1.F / 3, -1e20F, 1e-20F);
        cameras.store(QStringLiteral("/a folder/5.mrd"), viewpoint);
        QVERIFY(cameras.find(QStringLiteral("/a folder/5.mrd")) == viewpoint);
        QVERIFY(cameras.find(QStringLiteral("/a folder/6.mrd")));
    }

    void passesOverAViewpointThatIsNone()
    {
        AppSettings settings(AppSettings::Mode::None);
        settings.setValue(QStringLiteral("view/cameras"),
            QStringList{QStringLiteral("1 2 three 4 5 6 7 8 9 10 11 /a.mrd"), QStringLiteral("/b.mrd"),
                QStringLiteral("nan nan nan 0 0 0 nan 1 -1 0 inf /c.mrd")});
        const SceneCameras cameras(settings);
        QVERIFY(!cameras.find(QStringLiteral("/a.mrd")));
        QVERIFY(!cameras.find(QStringLiteral("/b.mrd")));
        view()->setViewpoint(*cameras.find(QStringLiteral("/c.mrd")));
        QVERIFY(!picture().isNull());
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_A);
        QVERIFY(ViewScenes::count(picture(), Qt::red) > 500);
    }

    void worksWithoutADrawing()
    {
        qputenv("ORVANE_VIEW", "0");
        makeWindow();
        QCOMPARE(open(m_squares), QString());
        QTRY_VERIFY(m_window->findChild<QLabel*>(QStringLiteral("viewMessage")) != nullptr);
        QVERIFY(m_window->selectPath(QStringLiteral("/right/greenSquare")));
        QCOMPARE(m_session->services().getSelectedNode(), greenSquare());
        cameraAction(QStringLiteral("camera"))->trigger();
        action("view.frameSelection")->trigger();
        QVERIFY(!m_window->grab().isNull());
        QVERIFY(m_window->findChild<MessageBar*>()->texts().isEmpty());
    }

private:
    void lookAhead()
    {
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        view()->setStyle(ViewScenes::withoutLines(view()->style()));
        static_cast<void>(picture());
    }

    /// The middle of what has that colour.
    QPoint clickable(const QColor& color)
    {
        const QImage image = picture();
        QPoint sum;
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (!ViewScenes::isLike(image.pixelColor(x, y), color))
                    continue;
                sum += QPoint(x, y);
                ++found;
            }
        }
        return found > 0 ? sum / found : QPoint(-1, -1);
    }

    void click(const QPoint& place) { QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, place); }
    QImage picture() { return view()->grab().toImage(); }
    QImage shown()
    {
        AppScenes::runSensors();
        return picture();
    }

    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    QAction* cameraAction(const QString& text)
    {
        Q_EMIT m_window->findChild<QMenu*>(QStringLiteral("viewMenu"))->aboutToShow();
        for (QAction* action : m_window->findChild<QMenu*>(QStringLiteral("cameraMenu"))->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }

    SceneView* view() { return m_window->findChild<SceneView*>(); }
    SceneTreePanel* tree() { return m_window->findChild<SceneTreePanel*>(); }
    NxNode* greenSquare() { return m_window->document().scene()->getChild(2)->getChildren()[1]; }

    QString m_squares;
};

QTEST_MAIN(TestViewLink)
#include "tst_ViewLink.moc"
