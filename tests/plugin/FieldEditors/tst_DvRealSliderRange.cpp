#include "FieldEditors/DvRealSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <QDoubleValidator>

#include <limits>
#include <memory>

namespace {

constexpr int lowestPosition = std::numeric_limits<int>::min();

} // namespace

/// How a real slider keeps to its range, or lets it grow.
class TestDvRealSliderRange : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_owner = std::make_unique<RecordingOwner>();
        makeShown();
    }

    void cleanup()
    {
        m_slider.reset();
        m_owner.reset();
    }

    void rangeHasAHundredSteps_data()
    {
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<bool>("bounded");
        QTest::newRow("bounded") << 0.0 << 1.0 << true;
        QTest::newRow("unbounded") << 0.0 << 10.0 << false;
        QTest::newRow("bounded wide") << -1e6 << 1e6 << true;
        QTest::newRow("unbounded above zero") << 100.0 << 250.0 << false;
        QTest::newRow("unbounded below zero") << -250.0 << -100.0 << false;
    }

    void rangeHasAHundredSteps()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(bool, bounded);
        m_slider->setRange(lower, upper, bounded);
        QCOMPARE(m_slider->lowerBound(), lower);
        QCOMPARE(m_slider->upperBound(), upper);
        QCOMPARE(m_slider->isBounded(), bounded);
        QCOMPARE(m_driver->slider->minimum(), 0);
        QCOMPARE(m_driver->slider->maximum(), 100);
        const auto* validator = qobject_cast<const QDoubleValidator*>(m_driver->line->validator());
        QCOMPARE(validator->bottom(), bounded ? lower : -3.4028234663852886e+38);
        QCOMPARE(validator->top(), bounded ? upper : 3.4028234663852886e+38);
        QCOMPARE(validator->decimals(), 6);
    }

    void equalBoundsPutBothEndsAtTheLowestPosition_data()
    {
        QTest::addColumn<double>("bound");
        QTest::addColumn<bool>("bounded");
        QTest::newRow("bounded") << 5.0 << true;
        QTest::newRow("bounded at zero") << 0.0 << true;
        QTest::newRow("unbounded at the former lower bound") << 0.0 << false;
    }

    void equalBoundsPutBothEndsAtTheLowestPosition()
    {
        QFETCH(double, bound);
        QFETCH(bool, bounded);
        m_slider->setRange(bound, bound, bounded);
        QCOMPARE(m_driver->slider->minimum(), lowestPosition);
        QCOMPARE(m_driver->slider->maximum(), lowestPosition);
        QVERIFY(m_owner->calls.isEmpty());
    }

    void unboundedRangeGrows_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<int>("position");
        QTest::newRow("above") << "25" << 0.0 << 25.0 << 100;
        QTest::newRow("below") << "-30" << -30.0 << 10.0 << 0;
        QTest::newRow("inside") << "2.5" << 0.0 << 10.0 << 25;
        QTest::newRow("in scientific notation") << "1e3" << 0.0 << 1000.0 << 100;
    }

    void unboundedRangeGrows()
    {
        QFETCH(QString, typed);
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(int, position);
        m_slider->setRange(0, 10, false);
        m_driver->typeAndLeave(typed);
        QCOMPARE(m_slider->value(), typed.toDouble());
        QCOMPARE(m_slider->lowerBound(), lower);
        QCOMPARE(m_slider->upperBound(), upper);
        QCOMPARE(m_driver->slider->minimum(), 0);
        QCOMPARE(m_driver->slider->maximum(), 100);
        QCOMPARE(m_driver->slider->value(), position);
        QCOMPARE(m_owner->calls.size(), 1);
    }

    void nextSetRangeForgetsTheGrowth()
    {
        m_slider->setRange(0, 10, false);
        m_slider->setValue(25);
        QCOMPARE(m_slider->upperBound(), 25.0);
        m_slider->setRange(0, 10, false);
        QCOMPARE(m_slider->upperBound(), 10.0);
    }

    void boundedRangeRefusesWhatIsTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("above") << "7.5";
        QTest::newRow("below") << "1";
    }

    void boundedRangeRefusesWhatIsTyped()
    {
        QFETCH(QString, typed);
        m_slider->setRange(2, 6, true);
        m_slider->setValue(3);
        m_driver->typeAndReturn(typed);
        m_driver->slider->setFocus();
        QVERIFY(m_owner->calls.isEmpty());
        QCOMPARE(m_driver->line->text(), typed);
        QCOMPARE(m_slider->value(), 3.0);
        QCOMPARE(m_driver->slider->value(), 25);
    }

    void boundedRangeLimitsWhatGetsThrough()
    {
        m_slider->setRange(0, 1, true);
        m_slider->setValue(2.5);
        QCOMPARE(m_slider->value(), 1.0);
        QCOMPARE(m_driver->slider->value(), 100);
        QCOMPARE(m_slider->editText(), QStringLiteral("2.500000"));
        m_slider->setValue(-2.5);
        QCOMPARE(m_slider->value(), 0.0);
        QCOMPARE(m_driver->slider->value(), 0);
        QCOMPARE(m_slider->upperBound(), 1.0);
        QCOMPARE(m_slider->lowerBound(), 0.0);
    }

    void unboundedSetRangeLeavesTheValidatorAlone()
    {
        m_slider->setRange(0, 1, true);
        m_slider->setRange(0, 10, false);
        const auto* validator = qobject_cast<const QDoubleValidator*>(m_driver->line->validator());
        QCOMPARE(validator->bottom(), 0.0);
        QCOMPARE(validator->top(), 1.0);
        m_driver->typeAndReturn(QStringLiteral("5"));
        QVERIFY(m_owner->calls.isEmpty());
    }

private:
    void makeShown()
    {
        m_slider = std::make_unique<DvRealSlider>(DvSlider::FieldEditor, m_owner.get(), &m_window);
        showIn(m_window, *m_slider);
        m_driver = std::make_unique<SliderDriver>(*m_slider);
    }

    QWidget m_window;
    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<DvRealSlider> m_slider;
    std::unique_ptr<SliderDriver> m_driver;
};

QTEST_MAIN(TestDvRealSliderRange)
#include "tst_DvRealSliderRange.moc"
