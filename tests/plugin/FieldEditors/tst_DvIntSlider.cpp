#include "plugin/FieldEditors/IntSliderFixture.h"

#include <QIntValidator>

#include <limits>
#include <memory>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

class TestDvIntSlider : public QObject, private IntSliderFixture {
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { finish(); }

    void validatorHasTheBoundsOfTheKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("bottom");
        QTest::addColumn<int>("top");
        QTest::newRow("32-bit") << 1 << lowest << highest;
        QTest::newRow("16-bit") << 3 << -32768 << 32767;
        QTest::newRow("any other") << 7 << lowest << highest;
    }

    void validatorHasTheBoundsOfTheKind()
    {
        QFETCH(int, kind);
        QFETCH(int, bottom);
        QFETCH(int, top);
        makeShown(kind);
        QCOMPARE(m_slider->value(), 0);
        QCOMPARE(m_driver->line->validator(), nullptr);
        m_slider->setValueText(QStringLiteral("12"));
        const auto* validator = qobject_cast<const QIntValidator*>(m_driver->line->validator());
        QVERIFY(validator != nullptr);
        QCOMPARE(validator->bottom(), bottom);
        QCOMPARE(validator->top(), top);
    }

    void positionIsTheValue_data()
    {
        QTest::addColumn<int>("value");
        QTest::newRow("lowest") << lowest;
        QTest::newRow("negative") << -5;
        QTest::newRow("zero") << 0;
        QTest::newRow("positive") << 77;
        QTest::newRow("highest") << highest;
    }

    void positionIsTheValue()
    {
        QFETCH(int, value);
        m_slider->setValueText(QString::number(value));
        QCOMPARE(m_slider->value(), value);
        QCOMPARE(m_driver->slider->value(), value);
    }

    void rangeStaysWithinTheType_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("bounded");
        QTest::addColumn<int>("lower");
        QTest::addColumn<int>("upper");
        QTest::newRow("16-bit unbounded") << 3 << false << -32768 << 32767;
        QTest::newRow("16-bit bounded") << 3 << true << -32768 << 32767;
        QTest::newRow("32-bit unbounded") << 1 << false << -100000 << 100000;
        QTest::newRow("32-bit bounded") << 1 << true << -100000 << 100000;
    }

    void rangeStaysWithinTheType()
    {
        QFETCH(int, kind);
        QFETCH(bool, bounded);
        QFETCH(int, lower);
        QFETCH(int, upper);
        makeShown(kind);
        m_slider->setRange(-100000, 100000, bounded);
        QCOMPARE(m_driver->slider->minimum(), lower);
        QCOMPARE(m_driver->slider->maximum(), upper);
    }

    void unboundedRangeGrows_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("above") << "500" << 0 << 500;
        QTest::newRow("below") << "-500" << -500 << 100;
        QTest::newRow("inside") << "50" << 0 << 100;
    }

    void unboundedRangeGrows()
    {
        QFETCH(QString, typed);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        m_slider->setValueText(QStringLiteral("5"));
        m_driver->typeAndLeave(typed);
        QCOMPARE(m_slider->value(), typed.toInt());
        QCOMPARE(m_driver->slider->value(), typed.toInt());
        QCOMPARE(m_driver->slider->minimum(), minimum);
        QCOMPARE(m_driver->slider->maximum(), maximum);
        QCOMPARE(m_owner->calls.size(), 1);
    }

    void boundedRangeLimits()
    {
        m_slider->setRange(10, 20, true);
        QCOMPARE(m_driver->slider->minimum(), 10);
        QCOMPARE(m_driver->slider->maximum(), 20);
        m_slider->setValueText(QStringLiteral("500"));
        QCOMPARE(m_slider->value(), 20);
        m_slider->setValueText(QStringLiteral("-500"));
        QCOMPARE(m_slider->value(), 10);
        QCOMPARE(m_driver->slider->minimum(), 10);
        // A narrower validator narrows the next range too.
        m_slider->setRange(0, 100, false);
        QCOMPARE(m_driver->slider->minimum(), 10);
        QCOMPARE(m_driver->slider->maximum(), 20);
    }

    void boundedRangeRefusesWhatIsTyped()
    {
        m_slider->setRange(10, 20, true);
        m_slider->setValueText(QStringLiteral("15"));
        m_driver->typeAndReturn(QStringLiteral("5"));
        QVERIFY(m_owner->calls.isEmpty());
        QCOMPARE(m_driver->line->text(), QStringLiteral("5"));
        QCOMPARE(m_slider->value(), 15);
    }

    void unboundedSetRangeLeavesTheValidatorAlone()
    {
        m_slider->setRange(-50, 50, false);
        m_slider->setValueText(QStringLiteral("5"));
        const auto* validator = qobject_cast<const QIntValidator*>(m_driver->line->validator());
        QCOMPARE(validator->bottom(), lowest);
        QCOMPARE(validator->top(), highest);
    }

    void decimalTextIsHeldBackByTheValidator_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("left");
        QTest::newRow("letters") << 1 << "abc"
                                 << "";
        QTest::newRow("fraction") << 1 << "."
                                  << "";
        QTest::newRow("minus alone") << 1 << "-"
                                     << "-";
        QTest::newRow("beyond 16 bits") << 3 << "40000"
                                        << "40000";
    }

    void decimalTextIsHeldBackByTheValidator()
    {
        QFETCH(int, kind);
        QFETCH(QString, typed);
        QFETCH(QString, left);
        makeShown(kind);
        m_slider->setValueText(QStringLiteral("5"));
        m_driver->typeAndReturn(typed);
        QCOMPARE(m_driver->line->text(), left);
        QVERIFY(m_owner->calls.isEmpty());
        QCOMPARE(m_slider->value(), 5);
    }

    void digitThatLeadsBelowTheTypeIsRefused()
    {
        makeShown(3);
        m_slider->setValueText(QStringLiteral("5"));
        m_driver->type(QStringLiteral("-40000"));
        QCOMPARE(m_driver->line->text(), QStringLiteral("-4000"));
    }
};

QTEST_MAIN(TestDvIntSlider)
#include "tst_DvIntSlider.moc"
