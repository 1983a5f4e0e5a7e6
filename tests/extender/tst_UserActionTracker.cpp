#include "Patience.h"
#include "extender/Recording.h"
#include "extender/TestCommand.h"

#include "orvane/extender/OrvServices.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// A window whose slider pushes a command at each change of its position, as an editor does.
class Window : public QWidget {
public:
    Window(OrvServices& services, QStringList& calls)
        : m_services(services)
        , m_calls(calls)
    {
        auto* const column = new QVBoxLayout(this);
        for (QWidget* const widget : std::initializer_list<QWidget*>{&slider, &line, &button})
            column->addWidget(widget);
        slider.setRange(0, 1000);
        QObject::connect(&slider, &QSlider::valueChanged, this, [this] { push(); });
    }

    void push() { m_services.pushCommand(new TestCommand(QString::number(++pushed), m_calls)); }

    /// Shows the window and waits for it.
    [[nodiscard]] bool open()
    {
        resize(400, 200);
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this, testPatience);
    }

    /// Where a part of the slider is, in the window. The groove's ends are at 0 and 1.
    [[nodiscard]] QPoint onSlider(double share) const
    {
        const int x = 10 + static_cast<int>(share * (slider.width() - 20));
        return slider.mapTo(this, QPoint(x, slider.height() / 2));
    }

    QSlider slider{Qt::Horizontal};
    QLineEdit line;
    QPushButton button{u"Push"_s};
    int pushed = 0;

private:
    OrvServices& m_services;
    QStringList& m_calls;
};

/// Accepts the touches of a widget.
class TouchFilter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchEnd;
    }
};

} // namespace

class TestUserActionTracker : public QObject {
    Q_OBJECT

    QStringList m_calls;
    std::unique_ptr<OrvServices> m_services;
    std::unique_ptr<Window> m_window;

    [[nodiscard]] QWindow* window() const { return m_window->windowHandle(); }
    [[nodiscard]] int steps() const { return m_services->undoDepth(); }

    /// Drags the slider's handle by real events of the window, in many moves.
    void drag(double from, double to)
    {
        QTest::mousePress(window(), Qt::LeftButton, {}, m_window->onSlider(from));
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(window(), m_window->onSlider(from + (to - from) * i / 10));
    }
    void drop(double at) { QTest::mouseRelease(window(), Qt::LeftButton, {}, m_window->onSlider(at)); }

    static void turnWheel(QWidget& widget)
    {
        QTest::qWait(0);
        const QPointF middle = widget.rect().center();
        QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        event.setTimestamp(++s_wheelTime);
        QCoreApplication::sendEvent(&widget, &event);
    }
    static inline quint64 s_wheelTime = 5000000;

    /// Sends an event of the right arrow key to the slider and delivers everything that it causes.
    void sendKey(QEvent::Type type, int time, bool isRepeated = false)
    {
        QKeyEvent event(type, Qt::Key_Right, Qt::NoModifier, QString(), isRepeated);
        event.setTimestamp(quint64(6000000) + quint64(time));
        QCoreApplication::sendEvent(&m_window->slider, &event);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init()
    {
        m_services = std::make_unique<OrvServices>();
        m_window = std::make_unique<Window>(*m_services, m_calls);
        QVERIFY(m_window->open());
    }
    void cleanup()
    {
        m_window.reset();
        m_services.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void aWholeDragIsOneStep()
    {
        drag(0, 0.8);
        drop(0.8);
        QVERIFY2(m_window->pushed >= 5, "the slider follows the mouse");
        QCOMPARE(steps(), 1);
    }

    void twoDragsAreTwoSteps()
    {
        drag(0, 0.5);
        drop(0.5);
        const int pushed = m_window->pushed;
        drag(0.5, 0.9);
        drop(0.9);
        QVERIFY(m_window->pushed > pushed);
        QCOMPARE(steps(), 2);
    }

    void theReleaseBelongsToTheDrag()
    {
        connect(&m_window->slider, &QSlider::sliderReleased, m_window.get(), &Window::push);
        drag(0, 0.5);
        const int pushed = m_window->pushed;
        drop(0.5);
        QVERIFY(m_window->pushed > pushed);
        QCOMPARE(steps(), 1);
    }

    void whatTheReleasePostsBelongsToTheDrag()
    {
        connect(&m_window->slider, &QSlider::sliderReleased, m_window.get(), &Window::push, Qt::QueuedConnection);
        drag(0, 0.5);
        const int pushed = m_window->pushed;
        drop(0.5);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->pushed, pushed + 1);
        QCOMPARE(steps(), 1);
    }

    void whatFollowsTheReleaseLaterIsAStepOfItsOwn()
    {
        drag(0, 0.5);
        drop(0.5);
        QCoreApplication::processEvents();
        m_window->push();
        m_window->push();
        QCOMPARE(steps(), 3);
    }

    void aKeyInTheMidstOfADragDoesNotSplitIt()
    {
        drag(0, 0.3);
        QTest::keyClick(window(), Qt::Key_Shift);
        QCoreApplication::processEvents();
        for (int i = 4; i <= 8; ++i)
            QTest::mouseMove(window(), m_window->onSlider(0.1 * i));
        drop(0.8);
        QCOMPARE(steps(), 1);
    }

    void aSecondButtonInTheMidstOfADragDoesNotSplitIt()
    {
        m_window->push();
        drag(0, 0.3);
        QTest::mousePress(window(), Qt::RightButton, {}, m_window->onSlider(0.3));
        m_window->push();
        QTest::mouseRelease(window(), Qt::RightButton, {}, m_window->onSlider(0.3));
        QCoreApplication::processEvents();
        m_window->push();
        drop(0.3);
        QCOMPARE(steps(), 2);
    }

    void eventsSentStraightToAWidgetCountToo()
    {
        connect(&m_window->button, &QPushButton::pressed, m_window.get(), &Window::push);
        connect(&m_window->button, &QPushButton::clicked, m_window.get(), &Window::push);
        QTest::mouseClick(&m_window->button, Qt::LeftButton);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 1);
        QTest::mouseClick(&m_window->button, Qt::LeftButton);
        QCOMPARE(m_window->pushed, 4);
        QCOMPARE(steps(), 2);
    }

    void theTwoClicksOfADoubleClickAreTwoSteps()
    {
        connect(&m_window->button, &QPushButton::clicked, m_window.get(), &Window::push);
        const QPoint middle = m_window->button.geometry().center();
        QTest::mouseClick(window(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(window(), Qt::LeftButton, {}, middle);
        QVERIFY(m_window->pushed >= 2);
        QCOMPARE(steps(), m_window->pushed);
    }

    void aKeyIsOneStepFromPressToRelease()
    {
        m_window->slider.setFocus();
        QTest::keyClick(window(), Qt::Key_Right);
        QTest::keyClick(window(), Qt::Key_Right);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
    }

    void aKeyHeldDownIsOneStep()
    {
        m_window->slider.setFocus();
        for (int i = 0; i < 5; ++i) {
            // A window system may repeat the release too.
            if (i > 0)
                sendKey(QEvent::KeyRelease, i, true);
            sendKey(QEvent::KeyPress, i, i > 0);
        }
        sendKey(QEvent::KeyRelease, 5);
        QCOMPARE(m_window->pushed, 5);
        QCOMPARE(steps(), 1);
        m_window->push();
        QCOMPARE(steps(), 2);
    }

    void aKeyIsKnownByItsScanCode()
    {
        // The release of a letter comes without the modifier key that was held at its press.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::ShiftModifier, 38, 0, 0);
        press.setTimestamp(7000000);
        QCoreApplication::sendEvent(&m_window->slider, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, 38, 0, 0);
        QCoreApplication::sendEvent(&m_window->slider, &release);
        QCoreApplication::processEvents();
        m_window->push();
        QCOMPARE(steps(), m_window->pushed);
    }

    void aKeyWhoseReleaseWasLostBeginsANewStep()
    {
        sendKey(QEvent::KeyPress, 0);
        sendKey(QEvent::KeyPress, 1);
        sendKey(QEvent::KeyRelease, 2);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
    }

    void aKeyHeldWhileTheApplicationChangesEndsItsStep()
    {
        sendKey(QEvent::KeyPress, 0);
        QEvent change(QEvent::ApplicationStateChange);
        QCoreApplication::sendEvent(m_window.get(), &change);
        QCoreApplication::processEvents();
        m_window->push();
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
    }

    void aTurnOfTheWheelWithAKeyHeldIsAStepOfItsOwn()
    {
        sendKey(QEvent::KeyPress, 0);
        turnWheel(m_window->slider);
        sendKey(QEvent::KeyRelease, 1);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
    }

    void overlappingKeysOfAFastWriterAreStepsOfTheirOwn()
    {
        connect(&m_window->line, &QLineEdit::textEdited, m_window.get(), &Window::push);
        m_window->line.setFocus();
        QTest::keyPress(window(), Qt::Key_A);
        QTest::keyPress(window(), Qt::Key_B);
        QTest::keyRelease(window(), Qt::Key_A);
        QTest::keyRelease(window(), Qt::Key_B);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
    }

    void theReleaseOfAnotherKeyDoesNotEndTheAction()
    {
        m_window->slider.setFocus();
        QTest::keyPress(window(), Qt::Key_Control);
        QTest::keyPress(window(), Qt::Key_Right);
        QTest::keyRelease(window(), Qt::Key_Control);
        QCoreApplication::processEvents();
        m_window->push();
        QTest::keyRelease(window(), Qt::Key_Right);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 1);
    }

    void aShortcutIsOneStep()
    {
        QAction action;
        action.setShortcut(Qt::CTRL | Qt::Key_D);
        connect(&action, &QAction::triggered, m_window.get(), [this] {
            m_window->push();
            m_window->push();
        });
        m_window->addAction(&action);
        QTest::keyClick(window(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 1);
        QTest::keyClick(window(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(steps(), 2);
    }

    void aTurnOfTheWheelIsOneStep()
    {
        connect(&m_window->slider, &QSlider::valueChanged, m_window.get(), &Window::push);
        turnWheel(m_window->slider);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 1);
        turnWheel(m_window->slider);
        QCOMPARE(m_window->pushed, 4);
        QCOMPARE(steps(), 2);
        QCoreApplication::processEvents();
        m_window->push();
        QCOMPARE(steps(), 3);
    }

    void theWheelInTheMidstOfADragDoesNotSplitIt()
    {
        drag(0, 0.3);
        turnWheel(m_window->slider);
        QCoreApplication::processEvents();
        m_window->push();
        drop(0.3);
        QCOMPARE(steps(), 1);
    }

    void aTouchIsOneStepWithTheMouseEventsMadeFromIt()
    {
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
        QTest::touchEvent(window(), device.get()).press(0, m_window->onSlider(0));
        for (int i = 1; i <= 5; ++i)
            QTest::touchEvent(window(), device.get()).move(0, m_window->onSlider(0.1 * i));
        QTest::touchEvent(window(), device.get()).release(0, m_window->onSlider(0.5));
        QVERIFY2(m_window->pushed >= 2, "the slider follows the finger");
        QCOMPARE(steps(), 1);
        QCoreApplication::processEvents();
        m_window->push();
        QCOMPARE(steps(), 2);
    }

    void aTouchInTheMidstOfADragDoesNotSplitIt()
    {
        const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
        drag(0, 0.3);
        TouchFilter filter; // so that no mouse events are made from the touch
        m_window->button.installEventFilter(&filter);
        m_window->button.setAttribute(Qt::WA_AcceptTouchEvents);
        QTest::touchEvent(&m_window->button, device.get()).press(0, QPoint(2, 2));
        QTest::touchEvent(&m_window->button, device.get()).release(0, QPoint(2, 2));
        QCoreApplication::processEvents();
        m_window->push();
        drop(0.3);
        QCOMPARE(steps(), 1);
    }

    void aLostReleaseEndsWithTheNextPress()
    {
        connect(&m_window->button, &QPushButton::pressed, m_window.get(), &Window::push);
        QTest::mousePress(&m_window->button, Qt::LeftButton);
        QCoreApplication::processEvents();
        m_window->button.setDown(false);
        QTest::mousePress(&m_window->button, Qt::LeftButton);
        QCOMPARE(m_window->pushed, 2);
        QCOMPARE(steps(), 2);
        QTest::mouseRelease(&m_window->button, Qt::LeftButton);
    }

    void commandsOutsideOfAnyActionAreStepsOfTheirOwn()
    {
        m_window->push();
        m_window->push();
        QCOMPARE(steps(), 2);
    }
};

QTEST_MAIN(TestUserActionTracker)
#include "tst_UserActionTracker.moc"
