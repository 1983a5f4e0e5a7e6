#include "app/window/RobotWindowCase.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/TreeMemory.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QAbstractItemModelTester>
#include <QListView>
#include <QScrollBar>

/// What the tree keeps of a file from run to run.
class TestTreeMemory : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneTreePanel& panel() { return *m_window->findChild<SceneTreePanel*>(); }
    [[nodiscard]] QModelIndex index(const char* path)
    {
        return panel().model()->indexOfPath(NxScenePath::find(m_window->document().scene(), path).nodes);
    }
    void restart()
    {
        makeWindow();
        QCOMPARE(open(m_robot), QString());
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        QCOMPARE(open(m_robot), QString());
    }
    void cleanup() { endTool(); }

    void foldingAndSelectionComeBack()
    {
        tree()->collapseAll();
        QVERIFY(!tree()->isExpanded(index("/robot")));
        restart();
        QVERIFY(!tree()->isExpanded(index("/robot")));
        tree()->expandAll();
        panel().selection().selectIndexes({index("/robot/arm"), index("/robot")}, index("/robot"));
        restart();
        QVERIFY(tree()->isExpanded(index("/robot")));
        QCOMPARE(panel().selection().indexes(), (QModelIndexList{index("/robot"), index("/robot/arm")}));
        QCOMPARE(panel().selectedNode(), panel().model()->node(index("/robot")));
        QCOMPARE(m_session->services().getSelectedNode(), panel().selectedNode());
    }

    void theScrollPlaceComesBack()
    {
        QByteArray text("#mrd 1.0\n");
        for (int i = 0; i < 300; ++i)
            text += "Group \"g" + QByteArray::number(i) + "\" {}\n";
        const QString file = filePath("long.mrd");
        writeFile(file, text);
        QCOMPARE(open(file), QString());
        tree()->scrollTo(index("/g200"), QAbstractItemView::PositionAtTop);
        const QModelIndex top = tree()->indexAt(QPoint(0, 0));
        QCOMPARE(top.row(), 200);
        makeWindow();
        QCOMPARE(open(file), QString());
        QTRY_COMPARE(tree()->indexAt(QPoint(0, 0)).row(), 200);
    }

    void aFileThatWasChangedGetsNoWrongRows()
    {
        panel().select(index("/robot/arm"));
        m_window.reset();
        m_session.reset();
        QFile file(m_robot);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray text = file.readAll();
        file.close();
        writeFile(m_robot, text.replace("\"arm\"", "\"leg\""));
        restart();
        QVERIFY(!panel().selected().isValid());
    }

    void theSettingsStayBounded()
    {
        for (qsizetype i = 0; i < TreeMemory::mostFiles + 3; ++i) {
            const QString file = filePath(qPrintable(QStringLiteral("scene%1.mrd").arg(i)));
            writeFile(file, "#mrd 1.0\nGroup \"g\" { Group {} }\n");
            QCOMPARE(open(file), QString());
        }
        const QStringList kept = m_session->settings().value(QStringLiteral("scene/trees")).toStringList();
        QCOMPARE(kept.size(), TreeMemory::mostFiles);
    }

    void favoritesAreOnTopOfTheTree()
    {
        auto* strip = m_window->findChild<QListView*>(QStringLiteral("favoriteStrip"));
        QVERIFY(!strip->isVisible());
        panel().select(index("/robot/arm"));
        QTest::keyClick(m_window.get(), Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(strip->isVisible());
        QCOMPARE(strip->model()->rowCount(), 1);
        QCOMPARE(strip->model()->index(0, 0).data().toString(), QStringLiteral("arm"));
        const QAbstractItemModelTester tester(strip->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        panel().select(index("/robot"));
        QTest::mouseClick(
            strip->viewport(), Qt::LeftButton, Qt::NoModifier, strip->visualRect(strip->model()->index(0, 0)).center());
        QCOMPARE(panel().selected(), index("/robot/arm"));
        restart();
        strip = m_window->findChild<QListView*>(QStringLiteral("favoriteStrip"));
        QTRY_VERIFY(strip->isVisible());
        panel().select(index("/robot"));
        strip->setFocus();
        strip->setCurrentIndex(strip->model()->index(0, 0));
        QTest::keyClick(strip, Qt::Key_Return);
        QCOMPARE(panel().selected(), index("/robot/arm"));
    }
};

QTEST_MAIN(TestTreeMemory)
#include "tst_TreeMemory.moc"
