#include "app/AppScenes.h"
#include "app/WindowCase.h"

#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SceneTreeModel.h"
#include "orvane/app/scene/SceneTreePanel.h"

#include "meridane/base/errors/NxError.h"
#include "meridane/scene/fields/NxField.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTreeView>
#include <QUrl>

class TestMainWindow : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        m_robot = filePath("robot.mrd");
        AppScenes::writeFile(m_robot, AppScenes::robotText);
    }

    void cleanup() { endTool(); }

    void hintsAtWhatToDoWhileNothingIsOpen()
    {
        QVERIFY(m_window->findChild<QPushButton*>(QStringLiteral("startOpen"))->isVisible());
        QVERIFY(!table()->isVisible());
        QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("startNew")), Qt::LeftButton);
        QVERIFY(m_window->document().isOpen());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Untitled[*]")));
    }

    void opensAScene()
    {
        open(m_robot);
        QCOMPARE(tree()->model()->rowCount(), 2);
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("robot.mrd[*]")));
        QVERIFY(!m_window->isWindowModified());
    }

    void selectsNodeAndFieldByTheMouse()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(1, 0));
        QCOMPARE(m_session->services().getSelectedNode(), m_window->document().scene()->getChild(1));
        QCOMPARE(m_session->services().getSelectedField(), nullptr);
        QVERIFY(table()->isVisible());
        const QSignalSpy selected(&m_session->services(), &OrvServices::selectedFieldChanged);
        clickRow(table(), table()->model()->index(0, 0));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
        QCOMPARE(selected.size(), 1);
        clickRow(table(), table()->model()->index(0, 2));
        QCOMPARE(selected.size(), 2);
    }

    void choosesNoOtherFieldWhileTheButtonIsHeld()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(1, 0));
        QWidget* viewport = table()->viewport();
        const auto middle = [&](int row) { return table()->visualRect(table()->model()->index(row, 0)).center(); };
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, middle(0));
        QMouseEvent move(QEvent::MouseMove, QPointF(middle(2)), viewport->mapToGlobal(QPointF(middle(2))), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, middle(2));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
    }

    void choosesNothingByTakingTheFocus()
    {
        open(m_robot);
        tree()->setFocus();
        QCOMPARE(m_session->services().getSelectedNode(), nullptr);
        clickRow(tree(), tree()->model()->index(1, 0));
        table()->setFocus();
        QCOMPARE(m_session->services().getSelectedField(), nullptr);
    }

    void selectsByPath()
    {
        open(m_robot);
        QCOMPARE(m_window->selectPath(QStringLiteral("/robot/hand")), QString());
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(1));
        const QString field = QString::fromLatin1(sun()->getFieldName(sun()->getFields().front()).getString());
        QCOMPARE(m_window->selectPath(QStringLiteral("/sun.") + field), QString());
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
        QVERIFY(!m_window->selectPath(QStringLiteral("/moon")).isEmpty());
        QCOMPARE(m_session->services().getSelectedNode(), sun());
    }

    void keepsTheFieldOfTheSameNameSelected()
    {
        open(m_robot);
        m_window->selectPath(QStringLiteral("/robot/arm"));
        NxNode* arm = robot()->getChild(0);
        m_session->services().selectField(arm->getFields().front());
        m_window->selectPath(QStringLiteral("/robot"));
        tree()->setFocus();
        const QModelIndex robotRow = tree()->model()->index(0, 0);
        clickRow(tree(), tree()->model()->index(0, 0, robotRow));
        clickRow(table(), table()->model()->index(0, 0));
        QTest::keyClick(tree(), Qt::Key_Down);
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(1));
        QCOMPARE(m_session->services().getSelectedField(), robot()->getChild(1)->getFields().front());
    }

    void followsASelectionMadeElsewhere()
    {
        open(m_robot);
        m_session->services().selectNode(robot()->getChild(1));
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->currentNode(), robot()->getChild(1));
        m_session->services().selectField(sun()->getFields().back());
        QCOMPARE(m_session->services().getSelectedNode(), sun());
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().back());
        QVERIFY(table()->selectionModel()->isRowSelected(table()->model()->rowCount() - 1));
    }

    void everySlotSeesTheSelectionThatASlotReplaces()
    {
        open(m_robot);
        NxField* const wanted = sun()->getFields().back();
        m_session->services().selectField(robot()->getChild(0)->getFields().front());
        // As a plug-in that follows the node and has a favourite field.
        const QObject plugin;
        connect(&m_session->services(), &OrvServices::selectedNodeChanged, &plugin, [&](const NxFieldContainer* node) {
            if (node == robot())
                m_session->services().selectField(wanted);
        });
        const NxField* announced = nullptr;
        connect(&m_session->services(), &OrvServices::selectedFieldChanged, &plugin,
            [&](const NxField* field) { announced = field; });
        clickRow(tree(), tree()->model()->index(0, 0));
        QCOMPARE(m_session->services().getSelectedField(), wanted);
        QCOMPARE(announced, wanted);
        QCOMPARE(m_session->services().getSelectedNode(), sun());
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->currentNode(), sun());
        QVERIFY(table()->selectionModel()->isRowSelected(table()->model()->rowCount() - 1));
    }

    void renamesByTheKeyboardAndUndoes()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        QTest::keyClick(tree(), Qt::Key_F2);
        auto* line = tree()->viewport()->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        QTest::keyClicks(line, QStringLiteral("machine"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(robot()->getName(), VbString("machine"));
        QVERIFY(m_window->isWindowModified());
        QTRY_COMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("machine"));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(robot()->getName(), VbString("robot"));
        QVERIFY(!m_window->isWindowModified());
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(robot()->getName(), VbString("machine"));
    }

    void deletesANodeAndBringsItBack()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        NxNode* node = robot();
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 1);
        QTRY_COMPARE(tree()->model()->rowCount(), 1);
        QTRY_COMPARE(m_session->services().getSelectedNode(), m_window->document().scene()->getChild(0));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->document().scene()->getChild(0), node);
        QTRY_COMPARE(tree()->model()->rowCount(), 2);
    }

    void savesWithTheKeyboard()
    {
        open(m_robot);
        renameRobot("machine");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(AppScenes::readFile(m_robot).contains("\"machine\""));
        QVERIFY(!m_window->isWindowModified());
    }

    void asksAheadOfLosingChanges_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void asksAheadOfLosingChanges()
    {
        QFETCH(const int, answer);
        QFETCH(const bool, closed);
        QFETCH(const bool, saved);
        open(m_robot);
        renameRobot("machine");
        QVERIFY(!m_window->close());
        auto* question = m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion"));
        QVERIFY(question != nullptr);
        QTest::mouseClick(question->button(static_cast<QMessageBox::StandardButton>(answer)), Qt::LeftButton);
        QTRY_COMPARE(m_window->isHidden(), closed);
        QCOMPARE(AppScenes::readFile(m_robot).contains("\"machine\""), saved);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void keepsTheOpenSceneWhenAFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("broken") << QByteArray("#mrd 1.0\nGroup {\n");
        QTest::newRow("not a scene") << QByteArray("\x7f\x45\x4c\x46");
    }

    void keepsTheOpenSceneWhenAFileIsRefused()
    {
        QFETCH(const QByteArray, content);
        open(m_robot);
        renameRobot("machine");
        m_session->services().setClean();
        const QString other = filePath("other.mrd");
        if (!content.isEmpty())
            AppScenes::writeFile(other, content);
        QVERIFY(open(other).contains(other));
        QVERIFY(messages().join(u'\n').contains(other));
        QCOMPARE(robot()->getName(), VbString("machine"));
        QVERIFY(m_session->services().canUndo());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("robot.mrd")));
        QVERIFY(open(m_robot).isEmpty());
        QVERIFY(!messages().join(u'\n').contains(other));
    }

    void closingTheSceneDropsTheModelBeingAdded_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("close") << QStringLiteral("fileClose");
        QTest::newRow("new") << QStringLiteral("fileNew");
    }

    void closingTheSceneDropsTheModelBeingAdded()
    {
        QFETCH(const QString, action);
        open(m_robot);
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->import(m_robot);
        m_window->findChild<QAction*>(action)->trigger();
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(!m_window->document().isOpen() || m_window->document().scene()->getNumChildren() == 0);
        QVERIFY2(messages().join(u'\n').startsWith(QStringLiteral("Not done: adding robot.mrd.")),
            qPrintable(messages().join(u'\n')));
    }

    void savingDoesNotStopAnOpen()
    {
        open(m_robot);
        renameRobot("machine");
        const QString other = filePath("other.mrd");
        AppScenes::writeFile(other, "#mrd 1.0\nGroup \"other\" {}\n");
        m_session->services().setClean();
        m_window->openFile(other);
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(m_window->document().fileName(), other);
        QVERIFY(AppScenes::readFile(m_robot).contains("\"machine\""));
        QCOMPARE(AppScenes::readFile(other), QByteArray("#mrd 1.0\nGroup \"other\" {}\n"));
    }

    void opensADroppedFile()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(m_robot)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(m_window->document().isOpen());
    }

    void refusesADropThatIsNoFile()
    {
        QMimeData data;
        data.setText(QStringLiteral("text"));
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(!enter.isAccepted());
    }

    void remembersFilesAndPlaceFromRunToRun()
    {
        open(m_robot);
        m_window->resize(901, 577);
        QVERIFY(m_window->close());
        makeWindow();
        QCOMPARE(m_window->size(), QSize(901, 577));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        const QMenu* recent = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
        QCOMPARE(recent->actions().front()->data().toString(), m_robot);
        recent->actions().front()->trigger();
        QTRY_COMPARE(settled.size(), 1);
        QCOMPARE(m_window->document().fileName(), m_robot);
    }

    void reportsABrokenSettingsFileAndLeavesIt()
    {
        m_window.reset();
        m_session.reset();
        const QString settings = filePath("orvane.ini");
        AppScenes::writeFile(settings, "what is this\n");
        makeWindow();
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(settings));
        QVERIFY(m_window->close());
        m_window.reset();
        m_session.reset();
        QCOMPARE(AppScenes::readFile(settings), QByteArray("what is this\n"));
    }

    void showsToolkitErrorsThatNobodyElseHandles()
    {
        NxError::post("something went wrong");
        QVERIFY(messages().isEmpty());
        QTRY_COMPARE(messages(), QStringList(QStringLiteral("something went wrong")));
    }

    void showsAFileThatCannotBeWritten()
    {
        open(m_robot);
        renameRobot("machine");
        const QString fileName = filePath("missing/robot.mrd");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->saveTo(fileName);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(messages().join(u'\n').contains(fileName));
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->document().fileName(), m_robot);
    }

    void staysAsWideAsItWasWhenAMessageHasALongName()
    {
        m_window->resize(800, 600);
        QCoreApplication::processEvents();
        const QSize before = m_window->size();
        QVERIFY(!open(m_folder->filePath(QString(200, u'x') + QStringLiteral(".mrd"))).isEmpty());
        m_window->showError(QString(20000, u'y'));
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), before);
        QVERIFY(m_window->minimumSizeHint().width() <= before.width());
    }

    void blocksInputWhileASceneIsWritten()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->saveTo(filePath("copy.mrd"));
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 2);
        QTRY_COMPARE(settled.size(), 1);
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 1);
    }

private:
    void renameRobot(const char* name)
    {
        Q_EMIT m_window->findChild<SceneTreePanel*>()->model()->renameRequested(robot(), QLatin1String(name));
        AppScenes::runSensors();
    }

    static void clickRow(QAbstractItemView* view, const QModelIndex& index)
    {
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
    }

    QTreeView* tree() { return m_window->findChild<QTreeView*>(QStringLiteral("sceneTree")); }
    FieldTableView* table() { return m_window->findChild<FieldTableView*>(); }
    QStringList messages() { return m_window->findChild<MessageBar*>()->texts(); }
    NxGroup* robot() { return dynamic_cast<NxGroup*>(m_window->document().scene()->getChild(0)); }
    NxNode* sun() { return m_window->document().scene()->getChild(1); }

    QString m_robot;
};

QTEST_MAIN(TestMainWindow)
#include "tst_MainWindow.moc"
