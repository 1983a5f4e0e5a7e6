#include "Patience.h"

#include "orvane/app/fields/popups/ColorBar.h"
#include "orvane/app/fields/popups/ColorPopup.h"
#include "orvane/app/fields/popups/ColorSquare.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

using orvane::ColorNumbers;

namespace {

bool isNear(double left, double right, double tolerance = 0.01)
{
    return std::abs(left - right) <= tolerance;
}

} // namespace

// Choosing a colour, with real keys and clicks.
class TestColorPopup : public QObject {
    Q_OBJECT

private:
    void open(bool hasOpacity, const ColorNumbers& color)
    {
        m_popup = new ColorPopup(hasOpacity, m_window.get());
        m_popup->setColor(color);
        m_popup->openAt(QRect(m_window->mapToGlobal(QPoint(10, 10)), QSize(100, 20)));
        QVERIFY(QTest::qWaitForWindowExposed(m_popup));
    }

    template <typename Widget>
    Widget* child(const char* name) const
    {
        return m_popup->findChild<Widget*>(QLatin1String(name));
    }

    NumberLine* line(const char* accessibleName) const
    {
        for (NumberLine* each : m_popup->findChildren<NumberLine*>()) {
            if (each->accessibleName() == QLatin1String(accessibleName))
                return each;
        }
        qFatal("no line %s", accessibleName);
    }

    static void type(QLineEdit* edit, const char* text)
    {
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromUtf8(text));
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(200, 200);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void aClickInTheSquareChooses()
    {
        open(false, {1, 0, 0, 1});
        const QSignalSpy changed(m_popup, &ColorPopup::colorChanged);
        auto* const square = child<ColorSquare>("colorSquare");
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(0, 1)); // white
        QVERIFY(!changed.isEmpty());
        QVERIFY(isNear(m_popup->color()[1], 1) && isNear(m_popup->color()[2], 1));
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(square->width() - 1, square->height() - 1));
        QVERIFY(isNear(m_popup->color()[0], 0));
    }

    void aDragIsAnnouncedAllTheTime()
    {
        open(false, {0, 0, 1, 1});
        const QSignalSpy changed(m_popup, &ColorPopup::colorChanged);
        auto* const square = child<ColorSquare>("colorSquare");
        QTest::mousePress(square, Qt::LeftButton, {}, QPoint(5, 5));
        for (int i = 10; i < 60; i += 10) {
            QMouseEvent move(QEvent::MouseMove, QPointF(i, i), square->mapToGlobal(QPointF(i, i)), Qt::NoButton,
                Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(square, &move);
        }
        QTest::mouseRelease(square, Qt::LeftButton, {}, QPoint(50, 50));
        QVERIFY(changed.size() >= 5);
    }

    void theHueOfAGreyIsKept()
    {
        open(false, {0.5, 0.5, 0.5, 1});
        auto* const bar = child<ColorBar>("hueBar");
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 3, 3)); // green
        auto* const square = child<ColorSquare>("colorSquare");
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(square->width() - 1, 0));
        QVERIFY(isNear(m_popup->color()[1], 1));
        QVERIFY(isNear(m_popup->color()[0], 0, 0.05) && isNear(m_popup->color()[2], 0, 0.05));
    }

    void arrowsStep()
    {
        open(false, {1, 0, 0, 1});
        auto* const square = child<ColorSquare>("colorSquare");
        square->setFocus();
        QTest::keyClick(square, Qt::Key_Left);
        QVERIFY(isNear(square->color().saturation, 0.99, 1e-6));
        QTest::keyClick(square, Qt::Key_Left, Qt::ShiftModifier);
        QVERIFY(isNear(square->color().saturation, 0.89, 1e-6));
        QTest::keyClick(square, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY(isNear(square->color().saturation, 0.891, 1e-6));
    }

    void numbersAreTyped()
    {
        open(true, {0.1, 0.2, 0.3, 1});
        QCOMPARE(line("Red")->text(), QStringLiteral("0.1"));
        type(line("Green"), "x*2,5");
        QTest::keyClick(line("Green"), Qt::Key_Tab);
        QVERIFY(isNear(m_popup->color()[1], 0.5, 1e-9));
        QCOMPARE(m_popup->color()[0], 0.1);
        type(line("Opacity"), "50%");
        QTest::keyClick(line("Opacity"), Qt::Key_Tab);
        QCOMPARE(m_popup->color()[3], 0.5);
        type(line("Hue in degrees"), "120");
        QTest::keyClick(line("Hue in degrees"), Qt::Key_Tab);
        QVERIFY(m_popup->color()[1] > m_popup->color()[0]);
    }

    void colorsBeyondTheScreenAreKept()
    {
        open(false, {4, -0.5, 0.25, 1});
        const QSignalSpy changed(m_popup, &ColorPopup::colorChanged);
        QCOMPARE(line("Red")->text(), QStringLiteral("4"));
        QCOMPARE(line("Green")->text(), QStringLiteral("-0.5"));
        type(line("Blue"), "1");
        QTest::keyClick(line("Blue"), Qt::Key_Tab);
        QCOMPARE(m_popup->color(), (ColorNumbers{4, -0.5, 1, 1}));
        QCOMPARE(changed.size(), 1);
    }

    void hexIsTyped()
    {
        open(true, {0, 0, 0, 1});
        auto* const hex = child<QLineEdit>("hexLine");
        QCOMPARE(hex->text(), QStringLiteral("#000000ff"));
        type(hex, "#f80");
        QTest::keyClick(hex, Qt::Key_Tab);
        QCOMPARE(m_popup->color(), (ColorNumbers{1, 136 / 255.0, 0, 1}));
        type(hex, "12345");
        QTest::keyClick(hex, Qt::Key_Tab);
        QVERIFY(InputMessage::shownIn(hex) != nullptr);
        QVERIFY(InputMessage::shownIn(hex)->text().contains(QStringLiteral("12345")));
        QCOMPARE(m_popup->color(), (ColorNumbers{1, 136 / 255.0, 0, 1}));
    }

    void anUnchangedHexChangesNothing()
    {
        const ColorNumbers fine{0.12345, 0.5, 0.6789, 0.25};
        QCOMPARE(*orvane::fromHex(orvane::toHex(fine, true), fine), fine);
        QVERIFY(!orvane::fromHex(QStringLiteral("#12g456"), fine));
        QVERIFY(!orvane::fromHex(QString(), fine));
    }

    void huesAndBack()
    {
        for (const ColorNumbers& color : {ColorNumbers{1, 0, 0, 1}, ColorNumbers{0.2, 0.9, 0.4, 0.5},
                 ColorNumbers{0, 0, 0, 1}, ColorNumbers{0.3, 0.1, 3, 1}, ColorNumbers{1, 1, 0, 0}}) {
            const ColorNumbers back = orvane::fromHue(orvane::toHue(color), color[3]);
            for (std::size_t i = 0; i < 4; ++i)
                QVERIFY(isNear(back[i], color[i], 1e-12));
        }
        QCOMPARE(orvane::toHue({0, 1, 0, 1}).hue, 120.0);
    }

    void theEyedropperTakesAPixelOfTheScreen()
    {
        QPalette green;
        green.setColor(QPalette::Window, QColor(10, 200, 30));
        m_window->setPalette(green);
        m_window->repaint();
        open(false, {1, 0, 0, 1});
        QTest::mouseClick(child<QToolButton>("eyedropper"), Qt::LeftButton);
        // Between the corner of the window and the popup.
        const QPoint place = m_window->mapToGlobal(QPoint(3, 3));
        QTest::mouseClick(m_popup, Qt::LeftButton, {}, m_popup->mapFromGlobal(place));
        QVERIFY(isNear(m_popup->color()[0], 10 / 255.0, 1e-4));
        QVERIFY(isNear(m_popup->color()[1], 200 / 255.0, 1e-4));
        QVERIFY(m_popup->isVisible());
    }

    void escapeEndsTheEyedropperOnly()
    {
        open(false, {1, 0, 0, 1});
        const QSignalSpy changed(m_popup, &ColorPopup::colorChanged);
        QTest::mouseClick(child<QToolButton>("eyedropper"), Qt::LeftButton);
        QTest::keyClick(m_popup, Qt::Key_Escape);
        QVERIFY(m_popup->isVisible());
        QVERIFY(changed.isEmpty());
        QVERIFY(QApplication::overrideCursor() == nullptr);
        const QSignalSpy rejected(m_popup, &PopupFrame::rejected);
        QTest::keyClick(m_popup, Qt::Key_Escape);
        QCOMPARE(rejected.size(), 1);
        QVERIFY(!m_popup->isVisible());
    }

    void returnAccepts()
    {
        open(false, {1, 0, 0, 1});
        const QSignalSpy accepted(m_popup, &PopupFrame::accepted);
        type(line("Red"), "0.5");
        QTest::keyClick(line("Red"), Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(m_popup->color()[0], 0.5);
    }

    void aClickOutsideTakesWhatIsTyped()
    {
        open(false, {1, 0, 0, 1});
        const QSignalSpy accepted(m_popup, &PopupFrame::accepted);
        type(line("Red"), "0.25");
        QTest::mouseClick(m_popup, Qt::LeftButton, {}, QPoint(-20, -20));
        QCOMPARE(m_popup->color()[0], 0.25);
        QCOMPARE(accepted.size(), 1);
        QVERIFY(!m_popup->isVisible());
    }

    void whatCanNotBeTakenKeepsItOpen()
    {
        open(false, {1, 0, 0, 1});
        type(line("Red"), "1/0");
        QTest::keyClick(line("Red"), Qt::Key_Return);
        QVERIFY(m_popup->isVisible());
        QVERIFY(InputMessage::shownIn(line("Red")) != nullptr);
        QCOMPARE(m_popup->color()[0], 1.0);
        QCOMPARE(line("Red")->text(), QStringLiteral("1/0"));
    }

    void staysOnTheScreen()
    {
        m_popup = new ColorPopup(true, m_window.get());
        const QRect room = m_window->screen()->availableGeometry();
        m_popup->openAt(QRect(room.bottomRight() - QPoint(30, 20), QSize(30, 20)));
        QVERIFY(room.contains(m_popup->geometry()));
        QVERIFY(m_popup->geometry().bottom() <= room.bottom() - 20);
    }

private:
    std::unique_ptr<QWidget> m_window;
    ColorPopup* m_popup = nullptr;
};

QTEST_MAIN(TestColorPopup)
#include "tst_ColorPopup.moc"
