#pragma once

#include "Patience.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

/// Shows a slider frame in a window that has no layout, wide enough for a mouse to reach each of a hundred positions.
inline void showIn(QWidget& window, QWidget& frame)
{
    frame.resize(600, 40);
    frame.show();
    window.resize(600, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, testPatience));
}

/// Moves the controls of a slider frame as a user does, by mouse, wheel and keys.
class SliderDriver {
public:
    explicit SliderDriver(const QWidget& frame)
        : slider(frame.findChild<QSlider*>())
        , line(frame.findChild<QLineEdit*>())
        , box(frame.findChild<QCheckBox*>())
    {
    }

    void press() { mouse(QEvent::MouseButtonPress, handleAt(slider->value()), Qt::LeftButton, Qt::LeftButton); }

    /// Needs a handle travel of more pixels than the range has positions, or one of the two ends.
    void dragTo(int position) { mouse(QEvent::MouseMove, handleAt(position), Qt::NoButton, Qt::LeftButton); }

    void release() { mouse(QEvent::MouseButtonRelease, handleAt(slider->value()), Qt::LeftButton, Qt::NoButton); }

    void turnWheelUp()
    {
        const QPointF at = slider->rect().center();
        QWheelEvent event(
            at, slider->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &event);
    }

    /// Replaces the text of the line key by key; what its validator holds back doesn't come through.
    void type(const QString& text)
    {
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }

    void typeAndReturn(const QString& text)
    {
        type(text);
        QTest::keyClick(line, Qt::Key_Return);
    }

    void typeAndLeave(const QString& text)
    {
        type(text);
        slider->setFocus();
    }

    void toggleBox() { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2)); }

    QSlider* slider;
    QLineEdit* line;
    QCheckBox* box;

private:
    QPointF handleAt(int position) const
    {
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = Qt::Horizontal;
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = position;
        option.sliderValue = position;
        option.subControls = QStyle::SC_All;
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
    }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, slider->mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(slider, &event);
    }
};
