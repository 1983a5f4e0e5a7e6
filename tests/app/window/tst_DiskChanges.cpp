#include "app/window/RobotWindowCase.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include <cstdio>

// The file of the open scene changes on disk, as the user sees it.
class TestDiskChanges : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup() { endTool(); }

    void reloadTakesTheFileOverAsAStep()
    {
        renameRobot("machine");
        const std::string mine = text();
        writeFile(m_robot, changed);
        click("reloadFromDisk");
        QTRY_COMPARE(text(), textOf(changed));
        QTRY_VERIFY(fileMessages().isEmpty());
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(services().undoText(), QStringLiteral("Reload robot.mrd"));
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("Undo brings your changes back")));

        services().undo();
        QCOMPARE(text(), mine);
        QVERIFY(m_window->isWindowModified());
        services().undo();
        QCOMPARE(text(), textOf(AppScenes::robotText));
        QVERIFY(m_window->isWindowModified());
        services().redo();
        services().redo();
        QCOMPARE(text(), textOf(changed));
        QVERIFY(!m_window->isWindowModified());
    }

    void reloadIsUndoneByItsCommandAsWell()
    {
        qputenv("ORVANE_UNDO", "commands");
        open(m_robot);
        qunsetenv("ORVANE_UNDO");
        const std::string mine = text();
        writeFile(m_robot, changed);
        click("reloadFromDisk");
        QTRY_COMPARE(text(), textOf(changed));
        services().undo();
        QCOMPARE(text(), mine);
        QVERIFY(m_window->isWindowModified());
        services().redo();
        QCOMPARE(text(), textOf(changed));
        QVERIFY(!m_window->isWindowModified());
    }

    void reloadKeepsSelectionUnfoldingAndViewpoint()
    {
        writeFile(m_robot,
            "#mrd 1.0\nGroup \"robot\" {\n  Group \"upper\" { Mesh \"arm\" {} }\n  Mesh \"hand\" {}\n}\n"
            "Group \"lower\" { Mesh \"foot\" {} }\nPointLight \"sun\" {}\n");
        open(m_robot);
        const auto unfold = [this](const char* path) { tree()->expand(index(path)); };
        unfold("/robot");
        unfold("/robot/upper");
        tree()->collapse(index("/lower"));
        clickRow(tree(), index("/robot/upper/arm"));
        services().selectField(node("/robot/upper/arm")->getField("positions"));
        auto* view = m_window->findChild<SceneView*>();
        NxViewpoint viewpoint = view->viewpoint();
        viewpoint.position = VbVec3d(1, 2, 3);
        view->setViewpoint(viewpoint);

        // The group of the selected node is of another class, so it's another node, and others come before it.
        writeFile(m_robot,
            "#mrd 1.0\nMesh \"first\" {}\nGroup \"robot\" {\n  Mesh \"new\" {}\n"
            "  Transform \"upper\" { Material {}; Mesh \"arm\" { positions = [1 2 3] } }\n  Mesh \"hand\" {}\n}\n"
            "Group \"lower\" { Mesh \"foot\" {} }\nPointLight \"sun\" {}\n");
        click("reloadFromDisk");
        QTRY_VERIFY(node("/first") != nullptr);
        QTRY_VERIFY(tree()->isExpanded(index("/robot/upper")));
        QVERIFY(tree()->isExpanded(index("/robot")));
        QVERIFY(!tree()->isExpanded(index("/lower")));
        QTRY_COMPARE(services().getSelectedNode(), node("/robot/upper/arm"));
        QCOMPARE(services().getSelectedField(), node("/robot/upper/arm")->getField("positions"));
        QCOMPARE(tree()->currentIndex(), index("/robot/upper/arm"));
        QVERIFY(samePlace(view->viewpoint(), viewpoint));
    }

    void aSelectedNodeThatIsReplacedIsSelectedByItsPath()
    {
        tree()->expand(index("/robot"));
        clickRow(tree(), index("/robot/hand"));
        writeFile(m_robot, QByteArray(AppScenes::robotText).replace("Mesh \"hand\"", "Material \"hand\""));
        click("reloadFromDisk");
        QTRY_COMPARE(QByteArray(node("/robot/hand")->getClassName()), QByteArray("Material"));
        QTRY_COMPARE(services().getSelectedNode(), node("/robot/hand"));
    }

    void aFileThatCannotBeReadChangesNothing()
    {
        const std::string before = text();
        writeFile(m_robot, QByteArray(changed).left(40));
        click("reloadFromDisk");
        QTRY_COMPARE(fileMessages().size(), 2);
        QVERIFY2(fileMessages().back().contains(QStringLiteral("robot.mrd:3")), qPrintable(fileMessages().back()));
        QCOMPARE(text(), before);
        QVERIFY(!services().canUndo());
        // The rest of the file comes later.
        writeFile(m_robot, changed);
        click("reloadFromDisk");
        QTRY_COMPARE(text(), textOf(changed));
        QTRY_VERIFY(fileMessages().isEmpty());
    }

    void keepMineMakesTheSceneUnsaved()
    {
        const std::string mine = text();
        writeFile(m_robot, changed);
        click("keepMine");
        QTRY_VERIFY(fileMessages().isEmpty());
        QVERIFY(m_window->isWindowModified());
        // The user knows that content, so no question.
        save();
        QTRY_COMPARE(readFile(m_robot), QByteArray::fromStdString(mine));
        QVERIFY(!m_window->isWindowModified());
    }

    void compareShowsTheDifferences()
    {
        writeFile(m_robot, changed);
        click("compareWithDisk");
        const auto dock = [this] { return m_window->findChild<QWidget*>(QStringLiteral("comparisonDock")); };
        QTRY_VERIFY(dock() != nullptr);
        const auto* const rows = dock()->findChild<QAbstractItemView*>();
        QTRY_VERIFY(rows->model()->rowCount() > 0);
        QVERIFY(button("reloadFromDisk") != nullptr); // still there
    }

    void theMessageGoesWhenTheFileIsAsItWas()
    {
        writeFile(m_robot, changed);
        QTRY_VERIFY(button("reloadFromDisk") != nullptr);
        writeFile(m_robot, AppScenes::robotText);
        QTRY_VERIFY(fileMessages().isEmpty());
    }

    void aDeletedFileIsWrittenAgain()
    {
        QVERIFY(QFile::remove(m_robot));
        QTRY_COMPARE(fileMessages().size(), 1);
        QVERIFY2(
            fileMessages().front().contains(QStringLiteral("deleted or moved")), qPrintable(fileMessages().front()));
        QVERIFY(m_window->isWindowModified());
        save();
        QTRY_VERIFY(QFile::exists(m_robot));
        QTRY_VERIFY(fileMessages().isEmpty());
        QVERIFY(!m_window->isWindowModified());
    }

    void aFolderInPlaceOfTheFileLosesNothing()
    {
        QVERIFY(QFile::remove(m_robot));
        QVERIFY(QDir().mkdir(m_robot));
        QTRY_VERIFY(!fileMessages().isEmpty() && fileMessages().front().contains(QStringLiteral("is no file")));
        QVERIFY(m_window->isWindowModified());
        save();
        QTRY_COMPARE(fileMessages().size(), 2); // and why it can't be written
        QVERIFY(m_window->isWindowModified());
        QVERIFY(!text().empty());
        QVERIFY(QDir().rmdir(m_robot));
    }

    void savingOverAChangedFileAsks_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("quits");
        for (const bool quits : {false, true}) {
            for (const char* const answer : {"Save Over It", "Save As…", "Compare", "Cancel"})
                QTest::addRow("%s%s", answer, quits ? ", quit" : "") << QString::fromUtf8(answer) << quits;
        }
    }

    void savingOverAChangedFileAsks()
    {
        QFETCH(const QString, answer);
        QFETCH(const bool, quits);
        renameRobot("machine");
        const QByteArray mine = QByteArray::fromStdString(text());
        writeFile(m_robot, changed); // directly before, so that nobody has seen it yet
        if (quits) {
            QVERIFY(!m_window->close());
            auto* const first = m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion"));
            QTest::mouseClick(first->button(QMessageBox::Save), Qt::LeftButton);
        } else {
            save();
        }
        QTRY_VERIFY(overwriteQuestion() != nullptr);
        QVERIFY(overwriteQuestion()->text().contains(QStringLiteral("\"robot.mrd\" has changed on disk")));
        QCOMPARE(readFile(m_robot), changed);
        const auto buttons = overwriteQuestion()->buttons();
        const auto chosen = std::ranges::find_if(
            buttons, [&answer](const QAbstractButton* each) { return each->text().remove(u'&') == answer; });
        QVERIFY(chosen != buttons.end());
        QTest::mouseClick(*chosen, Qt::LeftButton);
        if (answer == QStringLiteral("Save As…")) {
            QTRY_VERIFY(m_window->findChild<QFileDialog*>() != nullptr);
            auto* const dialog = m_window->findChild<QFileDialog*>();
            QVERIFY(QTest::qWaitForWindowActive(dialog, testPatience));
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(filePath("mine.mrd"));
            const auto* const buttonBox = dialog->findChild<QDialogButtonBox*>();
            QTest::mouseClick(buttonBox->button(QDialogButtonBox::Save), Qt::LeftButton);
            QTRY_COMPARE(readFile(filePath("mine.mrd")), mine);
        }
        const bool saves = answer == QStringLiteral("Save Over It");
        if (saves)
            QTRY_COMPARE(readFile(m_robot), mine);
        else
            QCOMPARE(readFile(m_robot), changed);
        if (answer == QStringLiteral("Compare"))
            QTRY_VERIFY(m_window->findChild<QWidget*>(QStringLiteral("comparisonDock")) != nullptr);
        const bool isSaved = saves || answer == QStringLiteral("Save As…");
        QTRY_COMPARE(m_window->isWindowModified(), !isSaved);
        QTRY_COMPARE(m_window->isVisible(), !(quits && isSaved));
    }

    void reloadByHandSaysWhatIsTheCase()
    {
        reloadByHand();
        QTRY_VERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("same as in robot.mrd")));
        QVERIFY(!services().canUndo());
        const std::string before = text();
        renameRobot("machine");
        reloadByHand();
        QTRY_COMPARE(text(), before);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("Undo brings your changes back")));
        QVERIFY(!m_window->isWindowModified());
        services().undo();
        QVERIFY(text() != before);
        m_window->document().newScene();
        QVERIFY(!m_window->findChild<QAction*>(QStringLiteral("file.reload"))->isEnabled());
    }

    void aReloadWaitsForAnOpenDialog()
    {
        QTest::keyClick(m_window.get(), Qt::Key_O, Qt::ControlModifier);
        QTRY_VERIFY(m_window->findChild<QFileDialog*>() != nullptr);
        SettingsStore::of(m_session->settings()).set(QStringLiteral("files/reloadsByItself"), true);
        writeFile(m_robot, changed);
        const auto& disk = m_window->findChild<FileFlow*>()->disk();
        QTRY_COMPARE(disk.state(), DiskWatch::State::Changed);
        const std::string before = text();
        QCoreApplication::processEvents();
        QCOMPARE(text(), before);
        m_window->findChild<QFileDialog*>()->reject();
        QTRY_COMPARE(text(), textOf(changed));
    }

    void itReloadsByItselfWithoutChangesOfTheUser()
    {
        SettingsStore::of(m_session->settings()).set(QStringLiteral("files/reloadsByItself"), true);
        writeFile(m_robot, changed);
        QTRY_COMPARE(text(), textOf(changed));
        QTRY_VERIFY(fileMessages().isEmpty());
        // With changes it asks, until they are undone.
        renameRobot("machine");
        writeFile(m_robot, AppScenes::robotText);
        QTRY_VERIFY(button("reloadFromDisk") != nullptr);
        QVERIFY(text() != textOf(AppScenes::robotText));
        services().undo();
        QTRY_COMPARE(text(), textOf(AppScenes::robotText));
        QTRY_VERIFY(fileMessages().isEmpty());
    }

    void anEditDuringAReloadByItselfStopsIt()
    {
        SettingsStore::of(m_session->settings()).set(QStringLiteral("files/reloadsByItself"), true);
        std::string mine;
        // The file is read from now on.
        const QObject guard;
        connect(&m_window->findChild<FileFlow*>()->disk(), &DiskWatch::changed, &guard, [this, &mine] {
            if (mine.empty()) {
                renameRobot("machine");
                mine = text();
            }
        });
        writeFile(m_robot, changed);
        QTRY_VERIFY(button("reloadFromDisk") != nullptr);
        QCOMPARE(text(), mine);
        QVERIFY(m_window->isWindowModified());
    }

    void anEditDuringAReloadIsKeptInTheHistory()
    {
        writeFile(m_robot, changed);
        m_window->findChild<FileFlow*>()->reload();
        renameRobot("machine");
        const std::string mine = text();
        QTRY_COMPARE(text(), textOf(changed));
        services().undo();
        QCOMPARE(text(), mine);
    }

private:
    const QByteArray changed = "#mrd 1.0\nGroup \"robot\" {\n  Mesh \"arm\" { positions = [1 2 3] }\n  Mesh {}\n}\n"
                               "Group \"sun\" { Mesh \"spot\" {} }\n";

    OrvServices& services() { return m_session->services(); }
    [[nodiscard]] std::string text() { return NxSceneWriter::toText(m_window->document().scene()); }
    static std::string textOf(const QByteArray& file)
    {
        return NxSceneWriter::toText(AppScenes::read(file.constData()).get());
    }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    QModelIndex index(const char* path)
    {
        return m_window->findChild<SceneTreePanel*>()->model()->indexOfPath(
            NxScenePath::find(m_window->document().scene(), path).nodes);
    }
    /// Those about the file; the view has others about meshes without positions.
    QStringList fileMessages() { return messages().filter(QStringLiteral("robot.mrd")); }
    static bool samePlace(const NxViewpoint& left, const NxViewpoint& right)
    {
        return left.position == right.position && left.orientation == right.orientation;
    }

    QPushButton* button(const char* name) { return m_window->findChild<QPushButton*>(QLatin1String(name)); }
    QMessageBox* overwriteQuestion() { return m_window->findChild<QMessageBox*>(QStringLiteral("overwriteQuestion")); }

    /// Waits for a button of the message and clicks it.
    void click(const char* name)
    {
        QTRY_VERIFY(button(name) != nullptr && button(name)->isVisible());
        QTest::mouseClick(button(name), Qt::LeftButton);
    }

    void save() { QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier); }
    void reloadByHand() { QTest::keyClick(m_window.get(), Qt::Key_F5); }
};

QTEST_MAIN(TestDiskChanges)
#include "tst_DiskChanges.moc"
