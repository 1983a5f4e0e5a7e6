#include "app/window/RobotWindowCase.h"
#include "import/Fbx.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QAction>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include <cmath>

/// A model that is added to an open scene is selected, and the view shows it. One that is opened comes in metres.
class TestAddedModels : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        // Far from the robot, so that the view has to move.
        m_model = filePath("tile.obj");
        writeFile(m_model, "v 1000 0 0\nv 1002 0 0\nv 1002 2 0\nf 1 2 3\n");
    }
    void cleanup() { endTool(); }

    void isSelectedAndFramed_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("imported") << "import";
        QTest::newRow("dropped on the view") << "drop";
        QTest::newRow("pasted") << "paste";
    }
    void isSelectedAndFramed()
    {
        QFETCH(QString, way);
        QCOMPARE(open(m_robot), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        static_cast<void>(view()->grab());
        const int before = m_window->document().scene()->getNumChildren();
        if (way == QStringLiteral("import"))
            m_window->findChild<FileFlow*>()->import(m_model);
        else if (way == QStringLiteral("drop"))
            drop();
        else
            paste();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->document().scene()->getNumChildren(), before + 1, testPatience);
        NxNode* const added = m_window->document().scene()->getChild(before);
        QCOMPARE(added->getName(), VbString("tile"));
        QTRY_COMPARE(m_session->services().getSelectedNode(), added);
        // The view looks at it from near by.
        const VbVec3d middle(1001, 1, 0);
        QTRY_VERIFY(meridane::length(meridane::subtract(view()->viewpoint().focalPoint(), middle)) < 0.1);
        QVERIFY(view()->viewpoint().focalDistance < 20);
        m_session->services().undo();
        QCOMPARE(m_window->document().scene()->getNumChildren(), before);
    }

    void theUnitAndTheAxesOfAModelAreTheFirstStep()
    {
        const QString file = filePath("plate.fbx");
        writeFile(file, fbx::model({{"plate", {}}}, fbx::space("2", "1", "-1", "0", "1")));
        QCOMPARE(open(file), QString());
        QVERIFY2(m_window->statusBar()->currentMessage().contains(QStringLiteral("1 cm")),
            qPrintable(m_window->statusBar()->currentMessage()));
        const auto* const top = dynamic_cast<NxTransform*>(m_window->document().scene()->getChild(0));
        QVERIFY(top != nullptr);
        const VbVec3f converted = top->scaleFactor.getValue();
        QVERIFY(std::abs(converted[0] - 0.01F) < 1e-6F);
        QVERIFY(!m_window->document().isModified());
        m_session->services().undo();
        QCOMPARE(top->scaleFactor.getValue(), VbVec3f(1, 1, 1));
        QVERIFY(top->rotation.isDefault());
        m_session->services().redo();
        QCOMPARE(top->scaleFactor.getValue(), converted);
        QVERIFY(!top->rotation.isDefault());
    }

    void aFileThatIsNoModelIsRefusedWhenPasted()
    {
        QCOMPARE(open(m_robot), QString());
        m_model = filePath("notes.txt");
        writeFile(m_model, "tile");
        const int before = m_window->document().scene()->getNumChildren();
        paste();
        QCOMPARE(m_window->document().scene()->getNumChildren(), before);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("notes.txt")));
    }

private:
    [[nodiscard]] SceneView* view() const { return m_window->findChild<SceneView*>(); }

    void drop()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(m_model)});
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent dropped(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &dropped);
    }

    // As a file manager puts a file on the clipboard.
    void paste()
    {
        auto* const data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(m_model)});
        data->setText(m_model);
        QGuiApplication::clipboard()->setMimeData(data);
        tree()->setFocus();
        tree()->clearSelection();
        QTest::keyClick(tree(), Qt::Key_V, Qt::ControlModifier);
    }

    QString m_model;
};

QTEST_MAIN(TestAddedModels)
#include "tst_AddedModels.moc"
