#include "app/window/RobotWindowCase.h"

#include <QDockWidget>
#include <QHeaderView>

#include <cstdlib>

/// Widths of columns and of the parts of splitters, by real events, from one run to the next.
class TestKeptColumns : public RobotWindowCase {
    Q_OBJECT

private:
    QHeaderView* treeHeader() { return tree()->header(); }
    /// Drags the border behind a column.
    static void drag(QHeaderView* header, int column, int by)
    {
        const QPoint border(header->sectionViewportPosition(column) + header->sectionSize(column) - 1, 5);
        QWidget* const viewport = header->viewport();
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, border);
        QTest::mouseMove(viewport, border + QPoint(by / 2, 0));
        QTest::mouseMove(viewport, border + QPoint(by, 0));
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, border + QPoint(by, 0));
    }
    /// Drags the border between a dock and the middle of the window.
    void dragBorder(const QPoint& place, int by)
    {
        QTest::mouseMove(m_window.get(), place);
        QTest::mousePress(m_window.get(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseMove(m_window.get(), place + QPoint(by / 2, 0));
        QTest::mouseMove(m_window.get(), place + QPoint(by, 0));
        QCoreApplication::processEvents(); // the border follows by a timer
        QTest::mouseRelease(m_window.get(), Qt::LeftButton, Qt::NoModifier, place + QPoint(by, 0));
        QCoreApplication::processEvents();
    }
    void nextRun()
    {
        makeWindow();
        open(m_robot);
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup() { endTool(); }

    void aColumnOfTheTreeKeepsItsWidth()
    {
        const int before = treeHeader()->sectionSize(0);
        drag(treeHeader(), 0, -40);
        const int width = treeHeader()->sectionSize(0);
        QVERIFY(width < before);
        nextRun();
        QCOMPARE(treeHeader()->sectionSize(0), width);
    }

    /// The borders between the docks of tree and fields and the view.
    void treeAndTableKeepTheirWidths()
    {
        const auto dock = [this](const char* name) { return m_window->findChild<QDockWidget*>(QLatin1String(name)); };
        const int treeBefore = dock("sceneDock")->width();
        const int tableBefore = dock("fieldsDock")->width();
        const QRect middle = m_window->centralWidget()->geometry();
        dragBorder(QPoint((dock("sceneDock")->geometry().right() + middle.left()) / 2, middle.center().y()), 60);
        dragBorder(QPoint((middle.right() + 1 + dock("fieldsDock")->x()) / 2, middle.center().y()), -80);
        const int treeWidth = dock("sceneDock")->width();
        const int tableWidth = dock("fieldsDock")->width();
        QVERIFY2(std::abs(treeWidth - treeBefore - 60) <= 3, qPrintable(QString::number(treeWidth)));
        QVERIFY2(std::abs(tableWidth - tableBefore - 80) <= 3, qPrintable(QString::number(tableWidth)));
        m_window->close();
        nextRun();
        QCOMPARE(dock("sceneDock")->width(), treeWidth);
        QCOMPARE(dock("fieldsDock")->width(), tableWidth);
    }

    void aWidthThatNobodyChangedIsntKept()
    {
        nextRun();
        QVERIFY(!m_session->settings().value(QStringLiteral("layout/sceneTree")).isValid());
    }

    void wrongSettingsChangeNothing()
    {
        const int before = treeHeader()->sectionSize(0);
        m_session->settings().setValue(
            QStringLiteral("layout/sceneTree"), QStringList{QStringLiteral("x"), QStringLiteral("-5")});
        nextRun();
        QCOMPARE(treeHeader()->sectionSize(0), before);
        m_session->settings().setValue(QStringLiteral("layout/sceneTree"), QStringLiteral("7"));
        nextRun();
        QCOMPARE(treeHeader()->sectionSize(0), before);
    }
};

QTEST_MAIN(TestKeptColumns)
#include "tst_KeptColumns.moc"
