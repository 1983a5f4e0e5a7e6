#include "app/window/RobotWindowCase.h"

#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeSelection.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Edits of the structure that nobody should make, but some will: of nodes that something else holds, with what can't
/// be used, and far too much of it. Nothing is lost, and a message says what was wrong.
class TestHostileEdits : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneTreePanel* panel() { return m_window->findChild<SceneTreePanel*>(); }
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    [[nodiscard]] std::string text() { return NxSceneWriter::toText(m_window->document().scene()); }
    [[nodiscard]] QString said() { return m_window->statusBar()->currentMessage(); }
    [[nodiscard]] NxGroup& scene() { return *m_window->document().scene(); }
    [[nodiscard]] QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }

    static void settle()
    {
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QModelIndex indexOf(const char* name)
    {
        tree()->expandAll();
        settle();
        return tree()
            ->model()
            ->match(tree()->model()->index(0, 0), Qt::DisplayRole, QLatin1String(name), 1,
                Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    void clickNode(const char* name)
    {
        const QModelIndex index = indexOf(name);
        QVERIFY2(index.isValid(), name);
        clickRow(tree(), index);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(tree(), key, modifiers);
        settle();
    }
    void pressUndo()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        settle();
    }
    /// Drops data in the middle of the row of a node.
    bool drop(const QMimeData& data, const char* name)
    {
        const QPoint point(
            tree()->visualRect(indexOf(name)).left() + 10, tree()->visualRect(indexOf(name)).center().y());
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(point, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(tree()->viewport(), &enter);
        QDragMoveEvent move(point, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(tree()->viewport(), &move);
        if (!move.isAccepted())
            return false;
        QDropEvent event(point, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(tree()->viewport(), &event);
        settle();
        return event.isAccepted();
    }
    [[nodiscard]] QUrl file(const char* name, const QByteArray& content)
    {
        writeFile(filePath(name), content);
        return QUrl::fromLocalFile(filePath(name));
    }
    /// The line in which the name of the selected node is edited.
    [[nodiscard]] QLineEdit* nameLine()
    {
        QTest::keyClick(tree(), Qt::Key_F2);
        return tree()->viewport()->findChild<QLineEdit*>();
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        writeFile(m_robot,
            "#mrd 1.0\nPerspectiveCamera \"eye\" { position = 2 0 10 }\nGroup \"robot\" {\n  Group \"arm\" {\n Mesh "
            "\"m\" {}\n }\n  Mesh \"hand\" {}\n}\nPointLight \"sun\" {}\n");
        QCOMPARE(open(m_robot), QString());
        settle();
    }
    void cleanup() { endTool(); }

    void aLockedNodeIsDeleted()
    {
        const std::string before = text();
        clickNode("m");
        QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(action("inspector.lock")->isChecked());
        clickNode("arm");
        press(Qt::Key_Delete);
        QVERIFY(text().find("\"arm\"") == std::string::npos);
        // What is locked has gone with it.
        QTRY_VERIFY(!action("inspector.lock")->isChecked());
        pressUndo();
        QCOMPARE(text(), before);
    }

    void anIsolatedNodeIsDeleted()
    {
        const std::string before = text();
        clickNode("hand");
        press(Qt::Key_H, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(panel()->hidden().isolated().size(), std::size_t(1));
        press(Qt::Key_Delete);
        QVERIFY(text().find("\"hand\"") == std::string::npos);
        pressUndo();
        QCOMPARE(text(), before);
        QVERIFY(panel()->hidden().isShown(panel()->model()->path(indexOf("hand"))));
        press(Qt::Key_Delete);
        press(Qt::Key_H, Qt::ShiftModifier);
        QVERIFY(panel()->hidden().isEmpty());
        QVERIFY(panel()->hidden().isShown(panel()->model()->path(indexOf("sun"))));
    }

    void theCameraOfTheViewIsDeleted()
    {
        const std::string before = text();
        auto* const viewMenu = m_window->findChild<QMenu*>(u"viewMenu"_s);
        Q_EMIT viewMenu->aboutToShow();
        const QList<QAction*> cameras = m_window->findChild<QMenu*>(u"cameraMenu"_s)->actions();
        const auto isEye = [](const QAction* camera) { return camera->text() == u"eye"_s; };
        const auto camera = std::find_if(cameras.begin(), cameras.end(), isEye);
        QVERIFY(camera != cameras.end());
        (*camera)->trigger();
        settle();
        clickNode("eye");
        press(Qt::Key_Delete);
        QVERIFY(text().find("\"eye\"") == std::string::npos);
        // The view stays where it is, and can be moved.
        QTest::keyClick(m_window->findChild<QWidget*>(u"sceneView"_s), Qt::Key_Minus);
        settle();
        pressUndo();
        QCOMPARE(text(), before);
    }

    void nothingComesIntoANodeWithoutChildren()
    {
        const std::string before = text();
        clickNode("sun");
        press(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(drop(*QGuiApplication::clipboard()->mimeData(), "hand"));
        // Beside it, but not into it.
        QCOMPARE(static_cast<NxGroup*>(scene().getChild(1))->getNumChildren(), 3);
        pressUndo();
        QCOMPARE(text(), before);
        clickNode("robot");
        press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(said(), u"There is no group directly above robot that could take it."_s);
        clickNode("hand");
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(static_cast<NxGroup*>(scene().getChild(1))->getNumChildren(), 3);
    }

    void aHundredMegabytesOfTextAreRefused()
    {
        const std::string before = text();
        auto* const data = new QMimeData;
        data->setText(QString(100'000'000, u'x'));
        QGuiApplication::clipboard()->setMimeData(data);
        clickNode("sun");
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(said().contains(u"at most"_s), qPrintable(said()));
        QCOMPARE(text(), before);
        QGuiApplication::clipboard()->clear();
    }

    void tenFilesAreDroppedWithSomeThatCantBeTaken()
    {
        const std::string before = text();
        QList<QUrl> urls;
        for (int i = 0; i < 10; ++i) {
            const QByteArray name = "part" + QByteArray::number(i) + ".mrd";
            urls.append(file(name.constData(), i == 4 ? "#mrd 1.0\nGroup {" : "#mrd 1.0\nGroup \"x\" {}\n"));
        }
        QVERIFY(QDir(m_folder->path()).mkpath(u"folder"_s));
        urls.append(QUrl::fromLocalFile(m_folder->filePath(u"folder"_s)));
        urls.append(QUrl(u"https://example.org/model.glb"_s));
        QMimeData data;
        data.setUrls(urls);
        QVERIFY(drop(data, "arm"));
        QVERIFY2(said().contains(u"is an address on the net"_s), qPrintable(said()));
        const NxNode* const arm = static_cast<NxGroup*>(scene().getChild(1))->getChild(0);
        QTRY_COMPARE_WITH_TIMEOUT(arm->getChildren().size(), std::size_t(10), testPatience);
        QCOMPARE(services().undoText(), u"Add 9 files"_s);
        QVERIFY2(messages().join(u' ').contains(u"part4.mrd"_s), qPrintable(messages().join(u' ')));
        settle();
        pressUndo();
        QCOMPARE(text(), before);
    }

    void aNodeIsRenamedToNothingAndToFarTooMuch()
    {
        const std::string before = text();
        clickNode("hand");
        QLineEdit* line = nameLine();
        QVERIFY(line != nullptr);
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY(tree()->viewport()->findChild<QLineEdit*>() == nullptr);
        settle();
        NxNode* const hand = static_cast<NxGroup*>(scene().getChild(1))->getChild(1);
        QVERIFY(hand->getName().isEmpty());
        line = nameLine();
        QVERIFY(line != nullptr);
        QGuiApplication::clipboard()->setText(QString(1'000'000, u'n'));
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(line, Qt::Key_Return);
        settle();
        // As much as the line takes.
        QVERIFY(hand->getName().view().size() >= 1'000);
        QVERIFY(tree()->visualRect(panel()->selected()).height() < 100);
        pressUndo();
        pressUndo();
        QCOMPARE(text(), before);
    }
};

QTEST_MAIN(TestHostileEdits)
#include "tst_HostileEdits.moc"
