#include "app/window/RobotWindowCase.h"

#include <QHeaderView>

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
