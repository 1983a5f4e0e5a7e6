#include "app/window/RobotWindowCase.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

/// What the keys and menus do with nodes in the window.
class TestNodeActions : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneTreePanel* panel() { return m_window->findChild<SceneTreePanel*>(); }
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    [[nodiscard]] std::string text() { return NxSceneWriter::toText(m_window->document().scene()); }
    [[nodiscard]] QString said() { return m_window->statusBar()->currentMessage(); }

    static void settle()
    {
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    /// Row by row, as a user does: the tree isn't told of all rows that are unfolded at once.
    void unfoldAll(const QModelIndex& parent)
    {
        for (int row = 0; row < tree()->model()->rowCount(parent); ++row) {
            const QModelIndex index = tree()->model()->index(row, 0, parent);
            tree()->expand(index);
            unfoldAll(index);
        }
    }
    void clickNode(const char* name, Qt::KeyboardModifiers modifiers = {})
    {
        unfoldAll({});
        const QModelIndex found = ItemClicks::find(tree(), QLatin1String(name));
        QVERIFY2(found.isValid(), name);
        ItemClicks::click(tree(), found, modifiers);
        settle();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(tree(), key, modifiers);
        settle();
    }
    [[nodiscard]] QStringList selected()
    {
        QStringList names;
        for (const QModelIndex& index : panel()->selection().indexes())
            names.append(index.data().toString());
        return names;
    }
    void openScene(const char* statements)
    {
        writeFile(m_robot, QByteArray("#mrd 1.0\n") + statements);
        QCOMPARE(open(m_robot), QString());
        settle();
    }
    void pressUndo()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        settle();
    }
    void pressRedo()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        settle();
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        openScene(
            "Group \"robot\" {\n  Group \"arm\" {\n Mesh \"m\" {}\n }\n  Mesh \"hand\" {}\n  Mesh \"foot\" {}\n}\n"
            "PointLight \"sun\" {}\n");
    }
    void cleanup() { endTool(); }

    void severalNodesAreDeletedAsOneStepAndComeBackSelected()
    {
        const std::string before = text();
        clickNode("arm");
        clickNode("foot", Qt::ControlModifier);
        press(Qt::Key_Delete);
        QCOMPARE(services().undoText(), u"Remove 2 nodes"_s);
        QCOMPARE(selected(), QStringList{u"hand"_s});
        pressUndo();
        QCOMPARE(text(), before);
        QCOMPARE(selected(), (QStringList{u"arm"_s, u"foot"_s}));
        // As it was unfolded before.
        QVERIFY(tree()->isExpanded(tree()->model()->index(0, 0, tree()->model()->index(0, 0))));
        pressRedo();
        QCOMPARE(selected(), QStringList{u"hand"_s});
    }

    void nodesMoveByKeysAndStaySelected()
    {
        const std::string before = text();
        clickNode("arm");
        press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(robot()->getChild(1)->getName(), VbString("arm"));
        QCOMPARE(selected(), QStringList{u"arm"_s});
        press(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(m_window->document().scene()->getChild(1)->getName(), VbString("arm"));
        press(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(robot()->getChild(2)->getName(), VbString("arm"));
        press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(said(), u"arm is the last node in its group."_s);
        for (int i = 0; i < 3; ++i)
            pressUndo();
        QCOMPARE(text(), before);
        QCOMPARE(selected(), QStringList{u"arm"_s});
    }

    void groupsAndUngroups()
    {
        const std::string before = text();
        clickNode("hand");
        clickNode("foot", Qt::ShiftModifier);
        press(Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(selected(), QStringList{u"group"_s});
        QCOMPARE(services().undoText(), u"Group 2 nodes"_s);
        press(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(selected(), (QStringList{u"hand"_s, u"foot"_s}));
        QCOMPARE(text(), before);
        press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(selected(), (QStringList{u"hand 2"_s, u"foot 2"_s}));
        for (int i = 0; i < 3; ++i)
            pressUndo();
        QCOMPARE(text(), before);
        QCOMPARE(selected(), (QStringList{u"hand"_s, u"foot"_s}));
    }

    void nodesGoToAnEditorAndBack()
    {
        clickNode("arm");
        press(Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith(u"#mrd 1.0\n"_s) && copied.contains(u"Group \"arm\" {"_s), qPrintable(copied));
        // Someone edits it, without its first line.
        QString edited = copied;
        edited.remove(0, edited.indexOf(u"Group"_s)).replace(u"\"m\""_s, u"\"edited\""_s);
        QGuiApplication::clipboard()->setText(edited);
        clickNode("sun");
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(services().undoText(), u"Paste arm"_s);
        const NxNode* const pasted = m_window->document().scene()->getChild(2);
        QCOMPARE(pasted->getName(), VbString("arm"));
        QCOMPARE(pasted->getChildren().front()->getName(), VbString("edited"));
        QCOMPARE(selected(), QStringList{u"arm"_s});
    }

    void cutNodesArePastedIntoTheSelectedGroup()
    {
        const std::string before = text();
        clickNode("hand");
        clickNode("sun", Qt::ControlModifier);
        press(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(services().undoText(), u"Cut 2 nodes"_s);
        clickNode("arm");
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(robot()->getChild(0)->getChildren().size(), std::size_t(3));
        pressUndo();
        pressUndo();
        QCOMPARE(text(), before);
    }

    void whatWasCopiedIsPastedBesideItself()
    {
        clickNode("arm");
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(robot()->getChild(1)->getName(), VbString("arm 2"));
        clickNode("arm");
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(robot()->getChild(1), robot()->getChild(0));
        // Into itself it can't go.
        clickNode("robot");
        press(Qt::Key_C, Qt::ControlModifier);
        clickNode("arm");
        const std::string before = text();
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(said(), u"robot can't be put into itself or into a node below it."_s);
        QCOMPARE(text(), before);
    }

    void sharedNodesOfAnotherSceneAreCopiesOnly()
    {
        clickNode("arm");
        press(Qt::Key_C, Qt::ControlModifier);
        openScene("Group \"other\" {}\n");
        clickNode("other");
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY2(said().startsWith(u"Only nodes that were copied from this scene"_s), qPrintable(said()));
        press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(robot()->getChild(0)->getName(), VbString("arm"));
    }

    void pathsOfFilesStayRightInAnotherFolder()
    {
        openScene("Texture \"skin\" { filePath = \"images/skin.png\" }\n");
        clickNode("skin");
        press(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QDir(m_folder->path()).mkpath(u"below/deep"_s));
        m_robot = m_folder->filePath(u"below/deep/other.mrd"_s);
        openScene("Group \"other\" {}\n");
        clickNode("other");
        press(Qt::Key_V, Qt::ControlModifier);
        const std::string pasted = text();
        QVERIFY2(pasted.find("\"../../images/skin.png\"") != std::string::npos, pasted.c_str());
    }

    void badTextsChangeNothing_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QString>("said");
        QTest::newRow("half a node") << u"Group \"a\" { Mesh"_s << u"Nothing was pasted. Clipboard:1:17"_s;
        QTest::newRow("words") << u"hello world"_s << u"Nothing was pasted. Clipboard:1:"_s;
        QTest::newRow("later version") << u"#mrd 2.0\nMesh {}\n"_s << u"Nothing was pasted. Clipboard:1:"_s;
        QTest::newRow("blanks") << u"  \n"_s << u"The clipboard holds no nodes and no text."_s;
        QTest::newRow("no nodes") << u"#mrd 1.0\n"_s << u"The clipboard holds no nodes."_s;
        QTest::newRow("elsewhere used") << u"use \"nobody\""_s << u"Nothing was pasted. Clipboard:1:"_s;
    }
    void badTextsChangeNothing()
    {
        QFETCH(const QString, clipboard);
        QFETCH(const QString, said);
        const std::string before = text();
        clickNode("sun");
        QGuiApplication::clipboard()->setText(clipboard);
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(this->said().startsWith(said), qPrintable(this->said()));
        QCOMPARE(text(), before);
        QVERIFY(!services().canUndo());
    }

    void unknownClassesAreKept()
    {
        clickNode("sun");
        QGuiApplication::clipboard()->setText(u"Gadget \"g\" { size = 3 }"_s);
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(text().find("Gadget \"g\" {\n    size = 3") != std::string::npos);
    }

    void aHugeTextIsRefusedWithTheLimit()
    {
        auto* const data = new QMimeData;
        data->setText(QString(70'000'000, u' ') + u'x');
        QGuiApplication::clipboard()->setMimeData(data);
        clickNode("sun");
        press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(said().contains(u"at most"_s), qPrintable(said()));
        QGuiApplication::clipboard()->clear();
    }

    void aLongTextIsReadInSlices()
    {
        QString statements;
        for (int i = 0; i < 3'000; ++i)
            statements += u"Material \"m%1\" { shininess = 0.25 }\n"_s.arg(i);
        QGuiApplication::clipboard()->setText(statements);
        clickNode("robot");
        QTest::keyClick(tree(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(robot()->getNumChildren(), 3'003, testPatience);
        QCOMPARE(services().undoText(), u"Paste 3000 nodes"_s);
        pressUndo();
        QCOMPARE(robot()->getNumChildren(), 3);
    }

    void aNodeIsAddedByItsClass()
    {
        clickNode("arm");
        QTest::keyClick(tree(), Qt::Key_Insert);
        auto* const dialog = m_window->findChild<QDialog*>(u"addNodeDialog"_s);
        QVERIFY(dialog != nullptr);
        auto* const line = dialog->findChild<QLineEdit*>();
        QTest::keyClicks(line, u"perspec"_s);
        const auto* const list = dialog->findChild<QTreeWidget*>();
        QCOMPARE(list->currentItem()->text(0), u"PerspectiveCamera"_s);
        QVERIFY(!list->currentItem()->text(1).isEmpty());
        QVERIFY(!list->currentItem()->icon(0).isNull());
        QTest::keyClick(line, Qt::Key_Return);
        settle();
        QCOMPARE(services().undoText(), u"Add PerspectiveCamera"_s);
        QCOMPARE(robot()->getChild(0)->getChildren().size(), std::size_t(2));
        QCOMPARE(selected(), QStringList{u"PerspectiveCamera"_s});
        QTRY_VERIFY(m_window->findChild<QDialog*>(u"addNodeDialog"_s) == nullptr);
        services().undo();
        settle();
        QCOMPARE(selected(), QStringList{u"arm"_s});
    }

    void theListOfClassesIsSearchedByDescription()
    {
        clickNode("sun");
        QTest::keyClick(tree(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        auto* const dialog = m_window->findChild<QDialog*>(u"addNodeDialog"_s);
        QVERIFY(dialog != nullptr);
        auto* const line = dialog->findChild<QLineEdit*>();
        const auto* const list = dialog->findChild<QTreeWidget*>();
        QTest::keyClicks(line, u"MATRIX transformed"_s);
        QCOMPARE(list->currentItem()->text(0), u"MatrixTransform"_s);
        QTest::keyClicks(line, u"zzz"_s);
        QVERIFY(list->currentItem() == nullptr);
        QTest::keyClick(line, Qt::Key_Return); // which adds nothing
        QTest::keyClick(line, Qt::Key_Escape);
        QTRY_VERIFY(m_window->findChild<QDialog*>(u"addNodeDialog"_s) == nullptr);
        QVERIFY(!services().canUndo());
    }

    void keepPlaceIsRemembered()
    {
        auto* const keep = m_window->findChild<QAction*>(u"node.keepPlace"_s);
        QVERIFY(keep->isChecked());
        keep->trigger();
        makeWindow();
        QVERIFY(!m_window->findChild<QAction*>(u"node.keepPlace"_s)->isChecked());
    }
};

QTEST_MAIN(TestNodeActions)
#include "tst_NodeActions.moc"
