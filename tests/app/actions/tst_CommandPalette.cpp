#include "app/actions/PickerCase.h"

#include "orvane/app/actions/ActionList.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>

/// The command palette in the window, by real keys.
class TestCommandPalette : public PickerCase {
    Q_OBJECT

private:
    void openPalette()
    {
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(popup() != nullptr);
    }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup()
    {
        close();
        endTool();
    }

    void lettersInOrderFindAnActionAndShowItsKey()
    {
        openPalette();
        type("selfr");
        QVERIFY(rowWith("Frame Selection") == nullptr);
        line()->clear();
        type("frsel");
        QCOMPARE(textOf(0), QStringLiteral("Frame Selection"));
        const PickerItem* const item = row(0);
        QCOMPARE(item->keys, QStringLiteral("F"));
        QCOMPARE(item->places.size(), 5);
        QVERIFY(item->detail.startsWith(QStringLiteral("View")));
    }

    void returnRunsTheActionWithTheFocusWhereItWas()
    {
        tree()->setFocus();
        QAction* const grid = action("view.grid");
        const bool before = grid->isChecked();
        openPalette();
        type("groundgrid");
        press(Qt::Key_Return);
        QCOMPARE(popup(), nullptr);
        QCOMPARE(grid->isChecked(), !before);
        QTRY_COMPARE(QApplication::focusWidget(), tree());
    }

    void escapeRunsNothing()
    {
        table()->setFocus();
        const bool before = action("view.grid")->isChecked();
        openPalette();
        type("groundgrid");
        press(Qt::Key_Escape);
        QCOMPARE(popup(), nullptr);
        QCOMPARE(action("view.grid")->isChecked(), before);
        QTRY_COMPARE(QApplication::focusWidget(), table());
    }

    void arrowsChooseAnotherRow()
    {
        openPalette();
        type("look");
        line()->clear();
        type("front");
        QCOMPARE(textOf(0), QStringLiteral("Front"));
        line()->clear();
        const QString second = textOf(1);
        press(Qt::Key_Down);
        QCOMPARE(list()->currentIndex().row(), 1);
        QCOMPARE(list()->currentIndex().data().toString(), second);
        press(Qt::Key_Up);
        QCOMPARE(list()->currentIndex().row(), 0);
    }

    void whatCantBeDoneComesLastWithTheReason()
    {
        openPalette();
        type("undo");
        QVERIFY(rowWith("Undo") != nullptr);
        while (list()->currentIndex().data().toString() != QStringLiteral("Undo"))
            press(Qt::Key_Down);
        const QString reason = rowWith("Undo")->reason;
        QVERIFY(!reason.isEmpty());
        press(Qt::Key_Return);
        QVERIFY(popup() != nullptr); // it does nothing
        QCOMPARE(popup()->findChild<QLabel*>(QStringLiteral("pickerMessage"))->text(), reason);
        line()->clear();
        bool isDisabled = false;
        for (int i = 0; i < rows().rowCount(); ++i) {
            QVERIFY(!isDisabled || !row(i)->reason.isEmpty());
            isDisabled = !row(i)->reason.isEmpty();
        }
    }

    void whatIsUsedMostComesFirstInTheNextRunToo()
    {
        for (int i = 0; i < 2; ++i) {
            openPalette();
            type("axes");
            press(Qt::Key_Return);
            close();
        }
        openPalette();
        QVERIFY2(textOf(0).startsWith(QStringLiteral("Axes")), qPrintable(textOf(0)));
        close();
        makeWindow();
        openPalette();
        QVERIFY2(textOf(0).startsWith(QStringLiteral("Axes")), qPrintable(textOf(0)));
    }

    void itStaysInTheWindow_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("points");
        QTest::newRow("usual") << QSize(1280, 800) << 10;
        QTest::newRow("small") << QSize(500, 300) << 10;
        QTest::newRow("large font") << QSize(900, 600) << 22;
    }
    void itStaysInTheWindow()
    {
        QFETCH(QSize, size);
        QFETCH(int, points);
        QFont font = m_window->font();
        font.setPointSize(points);
        m_window->setFont(font);
        m_window->resize(size);
        openPalette();
        const QRect window(m_window->mapToGlobal(QPoint(0, 0)), m_window->size());
        QVERIFY(window.contains(popup()->geometry()));
        QVERIFY(list()->visualRect(rows().index(0)).height() >= QFontMetrics(list()->font()).height());
    }

    void everyPartHasANameForScreenReaders()
    {
        openPalette();
        for (QWidget* const part :
            {static_cast<QWidget*>(popup()), static_cast<QWidget*>(line()), static_cast<QWidget*>(list())})
            QVERIFY(!part->accessibleName().isEmpty());
        type("front");
        QVERIFY(line()->accessibleDescription().startsWith(QStringLiteral("Front")));
    }

    void theModelIsAProperOne()
    {
        openPalette();
        const QAbstractItemModelTester tester(list()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        type("view");
        line()->clear();
        type("zzzzzzzz");
        QCOMPARE(rows().rowCount(), 0);
        QVERIFY(!popup()->findChild<QLabel*>(QStringLiteral("pickerMessage"))->text().isEmpty());
    }

    void aClickChooses()
    {
        QAction* const axes = action("view.axes");
        const bool before = axes->isChecked();
        openPalette();
        type("axes");
        QTest::mouseClick(
            list()->viewport(), Qt::LeftButton, Qt::NoModifier, list()->visualRect(rows().index(0)).center());
        QCOMPARE(axes->isChecked(), !before);
        QCOMPARE(popup(), nullptr);
    }
};

QTEST_MAIN(TestCommandPalette)
#include "tst_CommandPalette.moc"
