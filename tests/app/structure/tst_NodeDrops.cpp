#include "app/window/RobotWindowCase.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QClipboard>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

using namespace Qt::StringLiterals;

/// Nodes that are dragged in the tree, and files that are dropped on it and on the view.
class TestNodeDrops : public RobotWindowCase {
    Q_OBJECT

private:
    enum class Part { Above, Middle, Below };

    [[nodiscard]] SceneTreePanel* panel() { return m_window->findChild<SceneTreePanel*>(); }
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    [[nodiscard]] std::string text() { return NxSceneWriter::toText(m_window->document().scene()); }
    [[nodiscard]] QString said() { return m_window->statusBar()->currentMessage(); }
    [[nodiscard]] NxGroup& scene() { return *m_window->document().scene(); }

    static void settle()
    {
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QModelIndex indexOf(const char* name)
    {
        tree()->expandAll();
        settle();
        return ItemClicks::find(tree(), QLatin1String(name));
    }
    [[nodiscard]] QPoint pointOf(const char* name, Part part)
    {
        const QRect row = tree()->visualRect(indexOf(name));
        const int y = part == Part::Above ? row.top() + 1 : part == Part::Below ? row.bottom() - 1 : row.center().y();
        return {row.left() + 10, y};
    }
    void openScene(const char* statements)
    {
        writeFile(m_robot, QByteArray("#mrd 1.0\n") + statements);
        QCOMPARE(open(m_robot), QString());
        settle();
    }
    /// Drags what is selected, which the platform of the tests can't do, by the events that a drag sends.
    void drag(const QPoint& to, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(tree(), Qt::Key_C, Qt::ControlModifier);
        drop(tree()->viewport(), *QGuiApplication::clipboard()->mimeData(), to, modifiers);
    }

    /// Whether data that is dragged to a widget could be dropped there.
    bool enter(QWidget* widget, const QMimeData& data, const QPoint& point, Qt::KeyboardModifiers modifiers = {})
    {
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(point, actions, &data, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(widget, &enter);
        // Else it would go to the window.
        if (!enter.isAccepted())
            qFatal("not held");
        QDragMoveEvent move(point, actions, &data, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(widget, &move);
        return move.isAccepted();
    }
    /// Drops data on a widget. Returns whether it was taken.
    bool drop(QWidget* widget, const QMimeData& data, const QPoint& point, Qt::KeyboardModifiers modifiers = {})
    {
        if (!enter(widget, data, point, modifiers))
            return false;
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDropEvent event(point, actions, &data, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(widget, &event);
        settle();
        return event.isAccepted();
    }
    [[nodiscard]] QUrl file(const char* name, const QByteArray& content)
    {
        writeFile(filePath(name), content);
        return QUrl::fromLocalFile(filePath(name));
    }
    [[nodiscard]] QUrl model(const char* name) { return file(name, "o part\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"); }
    static void setUrls(QMimeData& data, const QList<QUrl>& urls) { data.setUrls(urls); }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        openScene("Group \"robot\" {\n  Group \"arm\" {\n    Mesh \"m\" {}\n  }\n  Material \"red\" {}\n  Mesh "
                  "\"hand\" {}\n}\n"
                  "Group \"box\" {}\n");
    }
    void cleanup() { endTool(); }

    void nodesAreDraggedToAnotherGroup()
    {
        const std::string before = text();
        clickRow(tree(), indexOf("hand"));
        drag(pointOf("box", Part::Middle));
        QTRY_COMPARE(services().undoText(), u"Move hand to box"_s);
        QCOMPARE(scene().getChild(1)->getChildren().front()->getName(), VbString("hand"));
        services().undo();
        QCOMPARE(text(), before);
    }

    void aPressAndAMoveStartADrag()
    {
        clickRow(tree(), indexOf("hand"));
        const QSignalSpy started(static_cast<SceneTreeView*>(tree()), &SceneTreeView::dragStarted);
        const QPoint from = pointOf("hand", Part::Middle);
        QTest::mousePress(tree()->viewport(), Qt::LeftButton, {}, from);
        for (int i = 0; i < 2; ++i) {
            const QPoint away = from + QPoint(2 * QApplication::startDragDistance(), 0);
            QMouseEvent move(QEvent::MouseMove, away, tree()->viewport()->mapToGlobal(away), Qt::NoButton,
                Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(tree()->viewport(), &move);
        }
        QCOMPARE(started.size(), 1);
        QTest::mouseRelease(tree()->viewport(), Qt::LeftButton, {}, from);
    }

    void nodesAreDraggedBetweenRows()
    {
        clickRow(tree(), indexOf("hand"));
        drag(pointOf("arm", Part::Above));
        QCOMPARE(services().undoText(), u"Reorder hand"_s);
        QCOMPARE(robot()->getChild(0)->getName(), VbString("hand"));
    }

    void controlCopiesAndShiftAsWellShares()
    {
        clickRow(tree(), indexOf("hand"));
        drag(pointOf("box", Part::Middle), Qt::ControlModifier);
        QCOMPARE(services().undoText(), u"Copy hand to box"_s);
        QCOMPARE(robot()->getNumChildren(), 3);
        QVERIFY(scene().getChild(1)->getChildren().front() != robot()->getChild(2));
        services().undo();
        settle();
        drag(pointOf("box", Part::Middle), Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(services().undoText(), u"Use hand in box"_s);
        QCOMPARE(scene().getChild(1)->getChildren().front(), robot()->getChild(2));
    }

    void nothingIsDraggedIntoItself()
    {
        const std::string before = text();
        clickRow(tree(), indexOf("robot"));
        drag(pointOf("arm", Part::Middle));
        QCOMPARE(text(), before);
        QCOMPARE(said(), u"robot can't be put into itself or into a node below it."_s);
    }

    void aTextOfNodesIsDroppedBetweenRows()
    {
        QMimeData data;
        data.setText(u"Mesh \"new\" {}"_s);
        QVERIFY(drop(tree()->viewport(), data, pointOf("hand", Part::Above)));
        QCOMPARE(robot()->getChild(2)->getName(), VbString("new"));
        QCOMPARE(services().undoText(), u"Paste new"_s);
    }

    void filesAreAddedWhereTheyAreDroppedAsOneStep()
    {
        const std::string before = text();
        QMimeData data;
        setUrls(data,
            {file("a.mrd", "#mrd 1.0\nGroup \"x\" {}\n"), file("broken.mrd", "#mrd 1.0\nMesh {"),
                file("b.mrd", "#mrd 1.0\nGroup \"y\" {}\n")});
        QVERIFY(drop(tree()->viewport(), data, pointOf("box", Part::Middle)));
        const auto* const box = static_cast<NxGroup*>(scene().getChild(1));
        QTRY_COMPARE_WITH_TIMEOUT(box->getNumChildren(), 2, testPatience);
        QCOMPARE(box->getChild(0)->getName(), VbString("a"));
        QCOMPARE(box->getChild(1)->getName(), VbString("b"));
        QCOMPARE(services().undoText(), u"Add 2 files"_s);
        QCOMPARE(panel()->selection().indexes().size(), 2);
        QVERIFY2(messages().join(u' ').contains(u"broken.mrd"_s), qPrintable(messages().join(u' ')));
        settle();
        services().undo();
        QCOMPARE(text(), before);
    }

    void anImageBecomesTheTextureOfAMesh()
    {
        QMimeData data;
        setUrls(data, {file("skin.png", "no image, which nobody reads here")});
        QVERIFY(drop(tree()->viewport(), data, pointOf("hand", Part::Middle)));
        const auto* const texture = dynamic_cast<NxTexture*>(robot()->getChild(2));
        QVERIFY(texture != nullptr);
        QCOMPARE(texture->filePath.getValue(), VbString("skin.png"));
        QCOMPARE(robot()->getChild(3)->getName(), VbString("hand"));
        QCOMPARE(services().undoText(), u"Add texture to hand"_s);
        services().undo();
        // Behind a material, which applies to what follows.
        QVERIFY(drop(tree()->viewport(), data, pointOf("red", Part::Middle)));
        QVERIFY(dynamic_cast<NxTexture*>(robot()->getChild(2)) != nullptr);
    }

    void whatCantBeTakenSaysWhy_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("reason");
        QTest::newRow("address") << u"https://example.org/model.glb"_s << u"is an address on the net"_s;
        QTest::newRow("folder") << u"folder"_s << u"is a folder"_s;
        QTest::newRow("missing") << u"missing.glb"_s << u"doesn't exist"_s;
        QTest::newRow("document") << u"notes.odt"_s << u"is no file that can be added"_s;
        QTest::newRow("image") << u"skin.png"_s << u"onto a mesh or a material"_s;
    }
    void whatCantBeTakenSaysWhy()
    {
        QFETCH(const QString, url);
        QFETCH(const QString, reason);
        QVERIFY(QDir(m_folder->path()).mkpath(u"folder"_s));
        writeFile(filePath("notes.odt"), "text");
        writeFile(filePath("skin.png"), "image");
        QMimeData data;
        setUrls(data, {url.contains(u':') ? QUrl(url) : QUrl::fromLocalFile(m_folder->filePath(url))});
        const std::string before = text();
        QVERIFY(!enter(tree()->viewport(), data, pointOf("box", Part::Middle)));
        QVERIFY2(said().contains(reason), qPrintable(said()));
        auto* const view = m_window->findChild<SceneView*>();
        m_window->statusBar()->clearMessage();
        QVERIFY(!enter(view, data, view->rect().center()));
        QVERIFY2(said().contains(reason), qPrintable(said()));
        QCOMPARE(text(), before);
    }

    void aSceneOnFreeGroundIsOpened()
    {
        QMimeData data;
        setUrls(data, {file("other.mrd", "#mrd 1.0\nGroup \"other\" {}\n")});
        auto* const view = m_window->findChild<SceneView*>();
        QVERIFY(enter(view, data, view->rect().center()));
        QVERIFY2(said().startsWith(u"Opens other.mrd"_s), qPrintable(said()));
        QVERIFY(drop(view, data, view->rect().center()));
        QTRY_COMPARE_WITH_TIMEOUT(m_window->document().fileName(), filePath("other.mrd"), testPatience);
    }

    void hoveringShowsWhereItComes()
    {
        QMimeData data;
        data.setText(u"Mesh {}"_s);
        auto* const mark = tree()->viewport()->findChild<QWidget*>(u"dropMark"_s);
        QVERIFY(enter(tree()->viewport(), data, pointOf("box", Part::Middle)));
        QVERIFY(mark->isVisible());
        QCOMPARE(mark->height(), tree()->visualRect(indexOf("box")).height());
        QVERIFY(enter(tree()->viewport(), data, pointOf("box", Part::Above)));
        QCOMPARE(mark->height(), 2);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(tree()->viewport(), &leave);
        QVERIFY(!mark->isVisible());
    }
};

QTEST_MAIN(TestNodeDrops)
#include "tst_NodeDrops.moc"
