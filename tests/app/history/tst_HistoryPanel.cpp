#include "Patience.h"
#include "app/history/HistoryScene.h"

#include "orvane/app/history/HistoryModel.h"
#include "orvane/app/history/HistoryPanel.h"
#include "orvane/app/history/StepTravel.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/extender/OrvStepList.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// The list of the history: what it shows, and what the user can do with it.
class TestHistoryPanel : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] OrvStepList& steps() { return m_open->services().steps(); }
    [[nodiscard]] HistoryModel* model() { return m_panel->model(); }
    [[nodiscard]] QTableView* view() { return m_panel->view(); }
    [[nodiscard]] QToolButton* putBack() { return m_panel->findChild<QToolButton*>(u"putValueBack"_s); }
    [[nodiscard]] QSlider* slider() { return m_panel->findChild<QSlider*>(u"historySlider"_s); }
    [[nodiscard]] QString label(const char* name)
    {
        return m_panel->findChild<QLabel*>(QString::fromLatin1(name))->text();
    }
    [[nodiscard]] std::int32_t number() { return m_open->hand().sfInt32.getValue(); }

    /// A row without its time.
    [[nodiscard]] QString row(int row)
    {
        QStringList texts;
        for (int column = 0; column < HistoryModel::TimeColumn; ++column)
            texts += model()->index(row, column).data().toString();
        return texts.join(u'|');
    }
    [[nodiscard]] QStringList rows()
    {
        QStringList result;
        for (int i = 0; i < model()->rowCount(); ++i)
            result += row(i);
        return result;
    }

    [[nodiscard]] QPoint middleOf(int row)
    {
        const QModelIndex index = model()->index(row, HistoryModel::StepColumn);
        view()->scrollTo(index);
        return view()->visualRect(index).center();
    }
    void click(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view()->viewport(), button, {}, middleOf(row));
        m_open->finish();
    }
    void filter(const char* text)
    {
        QSignalSpy filtered(model(), &HistoryModel::filtered);
        auto* const line = m_panel->findChild<QLineEdit*>(u"historyFilter"_s);
        line->setFocus();
        line->selectAll();
        if (*text == '\0')
            QTest::keyClick(line, Qt::Key_Backspace);
        else
            QTest::keyClicks(line, QString::fromUtf8(text));
        QTRY_VERIFY(!filtered.isEmpty());
    }

    std::unique_ptr<HistoryScene> m_open;
    std::unique_ptr<StepTravel> m_travel;
    std::unique_ptr<QWidget> m_window;
    HistoryPanel* m_panel = nullptr;
    MessageBar* m_messages = nullptr;

private Q_SLOTS:
    void init()
    {
        m_open = std::make_unique<HistoryScene>();
        m_travel = std::make_unique<StepTravel>(m_open->services());
        m_window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(m_window.get());
        m_messages = new MessageBar(m_window.get());
        m_panel = new HistoryPanel(m_open->services(), *m_travel, *m_messages, m_window.get());
        m_panel->model()->setOrigin(u"New scene"_s);
        layout->addWidget(m_messages);
        layout->addWidget(m_panel);
        m_window->resize(1000, 420);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
    }
    void cleanup()
    {
        m_window.reset();
        m_travel.reset();
        m_open.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void statesAreShownWithTheirStepAndValues()
    {
        const QAbstractItemModelTester tester(model());
        QCOMPARE(rows(), QStringList({u"Now, saved|New scene||"_s}));
        QCOMPARE(label("historyPlace"), u"Each edit of the scene is listed here"_s);
        m_open->setNumbers(2);
        m_open->hand().setName("fist");
        m_open->finish();
        m_open->services().setClean();
        m_open->goTo(2);
        QCOMPARE(rows(),
            QStringList({u"|New scene||"_s, u"|Set hand.sfInt32|0|1"_s, u"Now|Set hand.sfInt32|1|2"_s,
                u"Saved|Rename fist|hand|fist"_s}));
        const auto look = [this](int row, int role) { return model()->index(row, 1).data(role); };
        QVERIFY(look(2, Qt::FontRole).value<QFont>().bold());
        QVERIFY(!look(1, Qt::FontRole).value<QFont>().bold());
        QVERIFY(look(3, Qt::ForegroundRole).isValid() && !look(2, Qt::ForegroundRole).isValid());
        QVERIFY(!look(1, Qt::DecorationRole).value<QIcon>().isNull());
        QVERIFY(look(0, Qt::DecorationRole).isNull());
        QVERIFY(!model()->index(1, HistoryModel::TimeColumn).data().toString().isEmpty());
        QTRY_COMPARE(label("historyPlace"), u"Step 2 of 3"_s);
        QVERIFY2(
            QRegularExpression(u"^3 steps, [0-9.]+ (bytes|KiB) of 256 MiB$"_s).match(label("historyMemory")).hasMatch(),
            qPrintable(label("historyMemory")));
    }

    void aClickGoesToAState()
    {
        m_open->setNumbers(5);
        click(2);
        QTRY_COMPARE(number(), 2);
        click(0);
        QTRY_COMPARE(number(), 0);
        QVERIFY(m_open->services().isClean());
        click(5);
        QTRY_COMPARE(number(), 5);
        QCOMPARE(steps().count(), 5);
    }

    void theRightButtonOnlySelects()
    {
        m_open->setNumbers(3);
        click(1, Qt::RightButton);
        QCOMPARE(number(), 3);
        QCOMPARE(view()->currentIndex().row(), 1);
        QVERIFY(view()->actions().front()->isEnabled());
        view()->actions().front()->trigger();
        QTRY_COMPARE(number(), 1);
    }

    void returnGoesToTheStateThatTheArrowsChoose()
    {
        m_open->setNumbers(3);
        click(3);
        QTest::keyClick(view(), Qt::Key_Up);
        QTest::keyClick(view(), Qt::Key_Up);
        m_open->finish();
        QCOMPARE(number(), 3);
        QTest::keyClick(view(), Qt::Key_Return);
        QTRY_COMPARE(number(), 1);
        QTest::keyClick(view(), Qt::Key_Down);
        QTest::keyClick(view(), Qt::Key_Enter);
        QTRY_COMPARE(number(), 2);
    }

    void theSliderGoesThroughTime()
    {
        m_open->setNumbers(50);
        QTRY_COMPARE(slider()->maximum(), 50);
        QCOMPARE(slider()->value(), 50);
        slider()->setFocus();
        QTest::keyClick(slider(), Qt::Key_Left);
        QTRY_COMPARE(number(), 49);
        QTest::keyClick(slider(), Qt::Key_Home);
        QTRY_COMPARE(number(), 0);
        QTest::keyClick(slider(), Qt::Key_PageUp);
        QTRY_COMPARE(number(), 5);
        QTRY_COMPARE(label("historyPlace"), u"Step 5 of 50"_s);
        m_open->goTo(30);
        QTRY_COMPARE(slider()->value(), 30);
    }

    void theSliderFollowsThePointer()
    {
        m_open->setNumbers(50);
        QTRY_COMPARE(slider()->maximum(), 50);
        const int middle = slider()->height() / 2;
        const QPoint handle(slider()->width() - 8, middle);
        QTest::mousePress(slider(), Qt::LeftButton, {}, handle);
        QTest::mouseMove(slider(), QPoint(slider()->width() / 2, middle));
        QTRY_VERIFY(number() > 15 && number() < 35);
        QTest::mouseMove(slider(), QPoint(0, middle));
        QTRY_COMPARE(number(), 0);
        QTest::mouseMove(slider(), QPoint(slider()->width() / 4, middle));
        QTRY_VERIFY(number() > 5 && number() < 20);
        QTest::mouseRelease(slider(), Qt::LeftButton, {}, QPoint(slider()->width() / 4, middle));
        m_open->finish();
        QCOMPARE(steps().count(), 50);
        QCOMPARE(slider()->value(), number());
    }

    void rowsAreFilteredByNameAndValue()
    {
        const QAbstractItemModelTester tester(model());
        m_open->setNumbers(12);
        m_open->set(m_open->hand().sfString, "\"moon\"");
        m_open->arm().setName("leg");
        m_open->finish();
        filter("HAND string");
        QCOMPARE(model()->rowCount(), 1);
        QCOMPARE(model()->positionOf(0), 13);
        filter("moon");
        QCOMPARE(model()->rowCount(), 1);
        filter("moon or leg");
        QCOMPARE(model()->rowCount(), 2);
        filter("hand not \"12\" not moon /sfint\\d+/");
        QCOMPARE(model()->rowCount(), 11);
        filter("rename leg");
        QCOMPARE(model()->positionOf(0), 14);
        QCOMPARE(model()->rowOf(14), 0);
        QCOMPARE(model()->rowOf(3), -1);
        filter("hand 11"); // from 10 to 11, and from 11 to 12
        QCOMPARE(model()->rowCount(), 2);
        click(0);
        QTRY_COMPARE(number(), 11);
        filter("");
        QCOMPARE(model()->rowCount(), 15);
    }

    void aFilteredListFollowsTheHistory()
    {
        const QAbstractItemModelTester tester(model());
        m_open->setNumbers(4);
        m_open->set(m_open->hand().sfFloat, "9");
        filter("sfint32");
        QCOMPARE(model()->rowCount(), 4);
        m_open->setNumbers(6);
        QTRY_COMPARE(model()->rowCount(), 10);
        m_open->goTo(2);
        m_open->set(m_open->hand().sfFloat, "1");
        QTRY_COMPARE(model()->rowCount(), 2);
        m_open->services().setHistoryLimit(1);
        QTRY_COMPARE(model()->rowCount(), 0);
        filter("");
        QCOMPARE(rows(), QStringList({u"|The oldest state that is kept||"_s, u"Now|Set hand.sfFloat|0|1"_s}));
    }

    void theListFollowsItsScene()
    {
        const QAbstractItemModelTester tester(model());
        m_open->setNumbers(3);
        m_open->services().document().close();
        m_open->services().clearHistory();
        QCOMPARE(model()->rowCount(), 1);
        QTRY_VERIFY(!slider()->isEnabled());
        QVERIFY(!putBack()->isEnabled());
    }

    void anOlderValueIsPutBackAlone()
    {
        m_open->setNumbers(3);
        m_open->set(m_open->hand().sfFloat, "8");
        click(4);
        QVERIFY(putBack()->isEnabled());
        // The arrows choose a step without going there.
        QTest::keyClick(view(), Qt::Key_Up);
        QTest::keyClick(view(), Qt::Key_Up);
        QTest::mouseClick(putBack(), Qt::LeftButton);
        m_open->finish();
        QCOMPARE(number(), 1);
        QCOMPARE(m_open->hand().sfFloat.getValue(), 8.0F);
        QCOMPARE(row(5), u"Now|Set hand.sfInt32|3|1"_s);
        m_open->services().undo();
        QCOMPARE(number(), 3);
        m_open->services().redo();
        QCOMPARE(number(), 1);
        QVERIFY(m_messages->texts().isEmpty());
        QTest::mouseClick(putBack(), Qt::LeftButton);
        m_open->finish();
        QCOMPARE(m_messages->texts(), QStringList({u"The field has this value already."_s}));
        QCOMPARE(steps().count(), 5);
    }

    void theRowsOfAListArePutBackAsAWhole()
    {
        NxMFInt32& list = m_open->hand().mfInt32;
        m_open->set(list, "[1, 2, 3]");
        list.deleteValues(0, 1);
        m_open->finish();
        list.set1Value(0, 9);
        m_open->finish();
        click(2, Qt::RightButton);
        QTest::mouseClick(putBack(), Qt::LeftButton);
        m_open->finish();
        QCOMPARE(std::vector(list.getValues().begin(), list.getValues().end()), std::vector({1, 2, 3}));
        QCOMPARE(steps().count(), 4);
        m_open->goTo(3);
        QCOMPARE(std::vector(list.getValues().begin(), list.getValues().end()), std::vector({9, 3}));
    }

    void aNameIsPutBack()
    {
        m_open->hand().setName("fist");
        m_open->finish();
        m_open->hand().setName("palm");
        m_open->finish();
        click(1, Qt::RightButton);
        QTest::mouseClick(putBack(), Qt::LeftButton);
        m_open->finish();
        QCOMPARE(m_open->hand().getName(), VbString("hand"));
        QCOMPARE(steps().label(2), u"Rename hand"_s);
    }

    void aValueOfARemovedNodeIsRefused()
    {
        m_open->setNumbers(2);
        m_open->scene().removeChild(0); // the group that holds it
        m_open->finish();
        click(2, Qt::RightButton);
        QTest::mouseClick(putBack(), Qt::LeftButton);
        m_open->finish();
        QCOMPARE(m_messages->texts().size(), 1);
        QVERIFY(m_messages->texts().front().contains(u"\"hand\", isn't in the scene any more"_s));
        QCOMPARE(number(), 2);
        QCOMPARE(steps().count(), 3);
    }

    void whatHasNoValueSaysWhy_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("reason");
        QTest::newRow("the beginning") << 0 << u"Choose a step that changed the value of a field."_s;
        QTest::newRow("children") << 1 << u"This step changed which nodes are in the scene, not one value."_s;
        QTest::newRow("a flag") << 2 << u"This step changed whether a field is ignored, not its value."_s;
        QTest::newRow("several") << 3 << u"This step changed several values."_s;
    }
    void whatHasNoValueSaysWhy()
    {
        QFETCH(int, row);
        QFETCH(QString, reason);
        m_open->scene().addChild(new NxGroup);
        m_open->finish();
        m_open->hand().sfInt32.setIgnored(1);
        m_open->finish();
        m_open->hand().sfInt32.setValue(1);
        m_open->hand().sfFloat.setValue(1);
        m_open->finish();
        click(row, Qt::RightButton);
        QVERIFY(!putBack()->isEnabled());
        QCOMPARE(putBack()->toolTip(), reason);
    }

    void theColumnsHaveTheWidthOfThePanel()
    {
        const auto fits = [this] { return view()->horizontalScrollBar()->maximum() == 0; };
        QTRY_VERIFY(fits());
        for (const int width : {700, 640, 1200, 660}) {
            m_window->resize(width, 400);
            QTRY_COMPARE(m_window->width(), width);
            QTRY_VERIFY(fits());
        }
        m_open->setNumbers(40); // which need a scroll bar
        QTRY_VERIFY(view()->verticalScrollBar()->isVisible());
        QTRY_VERIFY(fits());
        // The user's own widths stay.
        view()->horizontalHeader()->resizeSection(HistoryModel::StepColumn, 77);
        m_window->resize(900, 400);
        QTRY_COMPARE(m_window->width(), 900);
        QCOMPARE(view()->columnWidth(HistoryModel::StepColumn), 77);
    }

    void manyStepsAreListedAtOnce()
    {
        m_open->setNumbers(800);
        QTRY_COMPARE(label("historyPlace"), u"Step 800 of 800"_s);
        QVERIFY(view()->visualRect(model()->index(800, 0)).isValid());
        click(0);
        QTRY_COMPARE(number(), 0);
        QTRY_COMPARE(label("historyPlace"), u"Step 0 of 800"_s);
        QVERIFY(m_open->services().isClean());
    }
};

QTEST_MAIN(TestHistoryPanel)
#include "tst_HistoryPanel.moc"
