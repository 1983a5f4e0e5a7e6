#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/popups/ColorPopup.h"
#include "orvane/app/fields/popups/ColorSquare.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QStatusTipEvent>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

/// Fields that are written when their edit is done.
class TestDeferredEdits : public CellCase {
    Q_OBJECT

private:
    /// Clicks "Write When Done" in the context menu of a row. Returns whether it was checked before.
    bool toggleInMenu(const char* name)
    {
        click(row(name));
        bool wasChecked = false;
        bool isClicked = false;
        QTimer::singleShot(0, this, [&] {
            auto* const menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            for (QAction* const action : menu->actions()) {
                if (action->text().remove(u'&') != u"Write When Done"_s)
                    continue;
                wasChecked = action->isChecked();
                isClicked = action->isEnabled();
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return;
            }
            menu->close();
        });
        const QPoint at = view()->visualRect(row(name)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view()->viewport()->mapToGlobal(at));
        QApplication::sendEvent(view()->viewport(), &event);
        ManyNodes::finish();
        if (!isClicked)
            QTest::qFail("the menu has no such entry that is enabled", __FILE__, __LINE__);
        return wasChecked;
    }

    void toggleByKey(const char* name)
    {
        click(row(name));
        press(Qt::Key_W, Qt::ControlModifier | Qt::AltModifier);
    }

    void pressName(const char* name)
    {
        view()->scrollTo(row(name));
        m_at = view()->visualRect(row(name)).center();
        QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, m_at);
        ManyNodes::finish();
    }
    void move(int pixels)
    {
        m_at.rx() += pixels;
        QWidget* const viewport = view()->viewport();
        QMouseEvent event(
            QEvent::MouseMove, m_at, viewport->mapToGlobal(QPointF(m_at)), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &event);
        ManyNodes::finish();
    }
    void release()
    {
        QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, m_at);
        ManyNodes::finish();
    }
    static int far() { return QApplication::startDragDistance(); }

    [[nodiscard]] std::string pendingText(const char* name)
    {
        VbString value;
        m_panel->writer().pending(model()->fieldSet(row(name))).first().get(value);
        return std::string(value.view());
    }

    // The window shows what the table says in its status bar.
    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::StatusTip)
            m_status = static_cast<QStatusTipEvent*>(event)->tip();
        return false;
    }

private Q_SLOTS:
    void init()
    {
        openGalleries(1);
        m_panel->installEventFilter(this);
        m_status.clear();
    }
    void cleanup() { close(); }

    void aDragIsWrittenWhenTheButtonIsReleased()
    {
        QVERIFY(field("sfFloat").set("0.1"));
        QVERIFY(!toggleInMenu("sfFloat"));
        const int before = steps();
        const std::string scene = m_many->text();
        const QImage still = picture("sfFloat");
        pressName("sfFloat");
        move(far());
        move(30);
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        QCOMPARE(m_many->text(), scene);
        QCOMPARE(steps(), before);
        QVERIFY(picture("sfFloat") != still); // the value to be is shown
        QVERIFY2(m_status.startsWith(u"Not written yet"_s), qPrintable(m_status));
        const std::string shown = pendingText("sfFloat");
        QVERIFY(shown != "0.1");
        // So it is said to those who don't see it.
        QCOMPARE(cell("sfFloat").data().toString().toStdString(), shown);
        QCOMPARE(cell("sfFloat").data(Qt::AccessibleTextRole).toString(),
            QString::fromStdString(shown) + u", not written yet"_s);
        release();
        QVERIFY(!cell("sfFloat").data(Qt::AccessibleTextRole).isValid());
        QCOMPARE(cell("sfFloat").data().toString().toStdString(), shown);
        QCOMPARE(text("sfFloat"), shown);
        QCOMPARE(steps(), before + 1);
        QCOMPARE(m_status, QString());
        undo();
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        QCOMPARE(m_many->text(), scene);
        m_many->services().redo();
        QCOMPARE(text("sfFloat"), shown);
    }

    void escapeDropsADrag()
    {
        QVERIFY(!toggleInMenu("sfFloat"));
        const int before = steps();
        const QImage still = picture("sfFloat");
        pressName("sfFloat");
        move(far());
        move(30);
        QVERIFY(pendingText("sfFloat") != "0");
        QTest::keyClick(view(), Qt::Key_Escape);
        ManyNodes::finish();
        QCOMPARE(pendingText("sfFloat"), std::string("0"));
        release();
        QCOMPARE(text("sfFloat"), std::string("0"));
        QCOMPARE(steps(), before);
        QVERIFY(!m_many->services().canRedo());
        QCOMPARE(picture("sfFloat"), still);
    }

    void otherFieldsStayLive()
    {
        QVERIFY(!toggleInMenu("sfFloat"));
        pressName("sfDouble");
        move(far());
        QVERIFY(text("sfDouble") != "0");
        release();
        QVERIFY(toggleInMenu("sfFloat")); // and it can be taken back
        pressName("sfFloat");
        move(far());
        QVERIFY(text("sfFloat") != "0");
        release();
    }

    void stepsAreWrittenByReturn_data()
    {
        QTest::addColumn<Qt::Key>("last");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Tab") << Qt::Key_Tab;
        QTest::newRow("Escape") << Qt::Key_Escape;
    }
    void stepsAreWrittenByReturn()
    {
        QFETCH(const Qt::Key, last);
        toggleByKey("sfInt32");
        const int before = steps();
        clickPart("sfInt32", 0);
        key(line(), Qt::Key_Up);
        key(line(), Qt::Key_Up);
        QVERIFY(line() != nullptr && line()->hasFocus());
        QWheelEvent wheel(QPointF(5, 5), line()->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(line(), &wheel);
        ManyNodes::finish();
        QCOMPARE(line()->text(), u"3"_s);
        QVERIFY(line()->font().italic());
        QVERIFY(editor()->toolTip().startsWith(u"Not written yet"_s));
        QCOMPARE(text("sfInt32"), std::string("0"));
        key(line(), last);
        const bool isKept = last != Qt::Key_Escape;
        QCOMPARE(text("sfInt32"), std::string(isKept ? "3" : "0"));
        QCOMPARE(steps(), isKept ? before + 1 : before);
        QVERIFY(!m_panel->writer().isLive());
    }

    void aFormulaAfterStepsBeginsAtTheShownNumber()
    {
        toggleByKey("sfInt32");
        const int before = steps();
        clickPart("sfInt32", 0);
        key(line(), Qt::Key_Up);
        key(line(), Qt::Key_Up);
        type(line(), "x*10");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfInt32"), std::string("20"));
        QCOMPARE(steps(), before + 1);
    }

    void stepsThatComeBackLeaveNoStep()
    {
        toggleByKey("sfInt32");
        const int before = steps();
        clickPart("sfInt32", 0);
        key(line(), Qt::Key_Up);
        key(line(), Qt::Key_Down);
        key(line(), Qt::Key_Return);
        QCOMPARE(steps(), before);
    }

    void aColorIsWrittenWhenThePopupCloses_data()
    {
        QTest::addColumn<bool>("isKept");
        QTest::newRow("Return") << true;
        QTest::newRow("Escape") << false;
    }
    void aColorIsWrittenWhenThePopupCloses()
    {
        QFETCH(const bool, isKept);
        QVERIFY(field("sfColor").set("0.1 0.2 0.3"));
        QVERIFY(!toggleInMenu("sfColor"));
        const int before = steps();
        clickPart("sfColor", 0);
        QTRY_VERIFY(popup<ColorPopup>() != nullptr);
        auto* const colors = popup<ColorPopup>();
        auto* const square = colors->findChild<ColorSquare*>();
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(1, 1));
        ManyNodes::finish();
        QCOMPARE(text("sfColor"), std::string("0.1 0.2 0.3"));
        QCOMPARE(steps(), before);
        const std::string shown = pendingText("sfColor");
        QVERIFY(shown != "0.1 0.2 0.3");
        key(square, isKept ? Qt::Key_Return : Qt::Key_Escape);
        QVERIFY(popup<ColorPopup>() == nullptr);
        QCOMPARE(text("sfColor"), isKept ? shown : std::string("0.1 0.2 0.3"));
        QCOMPARE(steps(), isKept ? before + 1 : before);
        if (!isKept)
            return;
        undo();
        QCOMPARE(text("sfColor"), std::string("0.1 0.2 0.3"));
    }

    void severalNodesHaveTheirOwnPendingValues()
    {
        openGalleries(3);
        QVERIFY(field("sfInt32", 1).set("100"));
        QVERIFY(field("sfInt32", 2).set("-7"));
        QVERIFY(!toggleInMenu("sfInt32"));
        const int before = steps();
        pressName("sfInt32");
        move(far());
        move(5);
        QCOMPARE(text("sfInt32", 0), std::string("0"));
        QCOMPARE(text("sfInt32", 1), std::string("100"));
        QCOMPARE(text("sfInt32", 2), std::string("-7"));
        release();
        const int moved = far() + 5;
        QCOMPARE(text("sfInt32", 0), std::to_string(moved));
        QCOMPARE(text("sfInt32", 1), std::to_string(100 + moved));
        QCOMPARE(text("sfInt32", 2), std::to_string(moved - 7));
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfInt32", 0), std::string("0"));
        QCOMPARE(text("sfInt32", 1), std::string("100"));
        QCOMPARE(text("sfInt32", 2), std::string("-7"));
    }

    void moreNodesThanThatStayLive()
    {
        openGalleries(FieldWriter::mostDeferred + 1);
        QVERIFY(!toggleInMenu("sfInt32"));
        pressName("sfInt32");
        move(far());
        QCOMPARE(text("sfInt32", 0), std::to_string(far()));
        release();
        QVERIFY(toggleInMenu("sfInt32")); // it is kept for fewer nodes
    }

    void anotherNodeEndsTheEditAndItsValueIsWritten()
    {
        openGalleries(2);
        m_panel->setNode((*m_many->nodes())[0].get());
        toggleByKey("sfInt32");
        clickPart("sfInt32", 0);
        key(line(), Qt::Key_Up);
        m_panel->setNode((*m_many->nodes())[1].get());
        ManyNodes::finish();
        QCOMPARE(text("sfInt32", 0), std::string("1"));
        QCOMPARE(text("sfInt32", 1), std::string("0"));
        QVERIFY(!m_panel->writer().isLive());
    }

    void theChoiceIsKept()
    {
        QVERIFY(!toggleInMenu("sfFloat"));
        show();
        m_panel->setNode((*m_many->nodes())[0].get());
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        pressName("sfFloat");
        move(far());
        QCOMPARE(text("sfFloat"), std::string("0"));
        release();
        QVERIFY(text("sfFloat") != "0");
        // The key takes it back.
        toggleByKey("sfFloat");
        show();
        m_panel->setNode((*m_many->nodes())[0].get());
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        QVERIFY(!toggleInMenu("sfFloat"));
    }

private:
    QPoint m_at;
    QString m_status;
};

QTEST_MAIN(TestDeferredEdits)
#include "tst_DeferredEdits.moc"
