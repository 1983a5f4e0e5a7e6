#include "FieldEditors/DvIntSlider.h"
#include "plugin/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <QIntValidator>

#include <limits>
#include <memory>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

class tst_DvIntSlider : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void validatorHasTheBoundsOfTheKind_data();
    void validatorHasTheBoundsOfTheKind();
    void firstTextFixesTheRadix_data();
    void firstTextFixesTheRadix();
    void laterTextLosesItsFirstDigitsByTheRadix_data();
    void laterTextLosesItsFirstDigitsByTheRadix();
    void positionIsTheValue_data();
    void positionIsTheValue();
    void rangeStaysWithinTheType_data();
    void rangeStaysWithinTheType();
    void unboundedRangeGrows_data();
    void unboundedRangeGrows();
    void boundedRangeLimits();
    void boundedRangeRefusesWhatIsTyped();
    void unboundedSetRangeLeavesTheValidatorAlone();
    void decimalTextIsHeldBackByTheValidator_data();
    void decimalTextIsHeldBackByTheValidator();
    void digitThatLeadsBelowTheTypeIsRefused();
    void radixTextGoesThrough_data();
    void radixTextGoesThrough();
    void dragWritesTheDigitsOfTheRadix_data();
    void dragWritesTheDigitsOfTheRadix();
    void commandValueHasNoPrefix_data();
    void commandValueHasNoPrefix();

private:
    void makeShown(int kind = 1);

    QWidget m_window;
    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<DvIntSlider> m_slider;
    std::unique_ptr<SliderDriver> m_driver;
};

void tst_DvIntSlider::init()
{
    m_owner = std::make_unique<RecordingOwner>();
    makeShown();
}

void tst_DvIntSlider::cleanup()
{
    m_slider.reset();
    m_owner.reset();
}

void tst_DvIntSlider::makeShown(int kind)
{
    m_slider = std::make_unique<DvIntSlider>(kind, DvSlider::FieldEditor, m_owner.get(), &m_window);
    m_slider->setRange(0, 100, false);
    showIn(m_window, *m_slider);
    m_driver = std::make_unique<SliderDriver>(*m_slider);
}

void tst_DvIntSlider::validatorHasTheBoundsOfTheKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::newRow("32-bit") << 1 << lowest << highest;
    QTest::newRow("16-bit") << 3 << -32768 << 32767;
    QTest::newRow("any other") << 7 << lowest << highest;
}

void tst_DvIntSlider::validatorHasTheBoundsOfTheKind()
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

void tst_DvIntSlider::firstTextFixesTheRadix_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("editText");
    QTest::addColumn<bool>("validated");
    QTest::newRow("decimal") << "42"
                             << "42" << 42 << "42" << true;
    QTest::newRow("zero") << "0"
                          << "0" << 0 << "0" << true;
    QTest::newRow("negative") << "-42"
                              << "-42" << -42 << "-42" << true;
    QTest::newRow("three digits from zero") << "007"
                                            << "007" << 7 << "007" << true;
    QTest::newRow("octal") << "07"
                           << "7" << 7 << "07" << false;
    QTest::newRow("octal digit too large") << "09"
                                           << "9" << 0 << "09" << false;
    QTest::newRow("prefix alone") << "0x"
                                  << "x" << 0 << "0x" << false;
    QTest::newRow("hexadecimal") << "0x1f"
                                 << "1f" << 31 << "0x1f" << false;
    QTest::newRow("no number") << "word"
                               << "word" << 0 << "word" << true;
    QTest::newRow("empty") << ""
                           << "" << 0 << "" << true;
}

void tst_DvIntSlider::firstTextFixesTheRadix()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QFETCH(int, value);
    QFETCH(QString, editText);
    QFETCH(bool, validated);
    m_slider->setValueText(text);
    QCOMPARE(m_driver->line->text(), shown);
    QCOMPARE(m_driver->line->cursorPosition(), 0);
    QCOMPARE(m_slider->value(), value);
    QCOMPARE(m_driver->slider->value(), value);
    QCOMPARE(m_slider->editText(), editText);
    QCOMPARE(m_driver->line->validator() != nullptr, validated);
    QVERIFY(m_owner->calls.isEmpty());
}

void tst_DvIntSlider::laterTextLosesItsFirstDigitsByTheRadix_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("later");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("value");
    QTest::newRow("hexadecimal, two digits") << "0x1f"
                                             << "25"
                                             << "" << 0;
    QTest::newRow("hexadecimal, three digits") << "0x1f"
                                               << "125"
                                               << "5" << 5;
    QTest::newRow("hexadecimal, with prefix") << "0x1f"
                                              << "0x2a"
                                              << "2a" << 42;
    QTest::newRow("hexadecimal, one digit") << "0x1f"
                                            << "7"
                                            << "" << 0;
    QTest::newRow("octal, two digits") << "07"
                                       << "25"
                                       << "5" << 5;
    QTest::newRow("octal, with prefix") << "07"
                                        << "017"
                                        << "17" << 15;
    QTest::newRow("decimal, hexadecimal text") << "7"
                                               << "0x1f"
                                               << "0x1f" << 0;
    QTest::newRow("decimal, octal text") << "7"
                                         << "05"
                                         << "05" << 5;
}

void tst_DvIntSlider::laterTextLosesItsFirstDigitsByTheRadix()
{
    QFETCH(QString, first);
    QFETCH(QString, later);
    QFETCH(QString, shown);
    QFETCH(int, value);
    m_slider->setValueText(first);
    const bool validated = m_driver->line->validator() != nullptr;
    m_slider->setValueText(later);
    QCOMPARE(m_driver->line->text(), shown);
    QCOMPARE(m_slider->value(), value);
    QCOMPARE(m_driver->line->validator() != nullptr, validated);
}

void tst_DvIntSlider::positionIsTheValue_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("lowest") << lowest;
    QTest::newRow("negative") << -5;
    QTest::newRow("zero") << 0;
    QTest::newRow("positive") << 77;
    QTest::newRow("highest") << highest;
}

void tst_DvIntSlider::positionIsTheValue()
{
    QFETCH(int, value);
    m_slider->setValueText(QString::number(value));
    QCOMPARE(m_slider->value(), value);
    QCOMPARE(m_driver->slider->value(), value);
}

void tst_DvIntSlider::rangeStaysWithinTheType_data()
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

void tst_DvIntSlider::rangeStaysWithinTheType()
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

void tst_DvIntSlider::unboundedRangeGrows_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("above") << "500" << 0 << 500;
    QTest::newRow("below") << "-500" << -500 << 100;
    QTest::newRow("inside") << "50" << 0 << 100;
}

void tst_DvIntSlider::unboundedRangeGrows()
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

void tst_DvIntSlider::boundedRangeLimits()
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

void tst_DvIntSlider::boundedRangeRefusesWhatIsTyped()
{
    m_slider->setRange(10, 20, true);
    m_slider->setValueText(QStringLiteral("15"));
    m_driver->typeAndReturn(QStringLiteral("5"));
    QVERIFY(m_owner->calls.isEmpty());
    QCOMPARE(m_driver->line->text(), QStringLiteral("5"));
    QCOMPARE(m_slider->value(), 15);
}

void tst_DvIntSlider::unboundedSetRangeLeavesTheValidatorAlone()
{
    m_slider->setRange(-50, 50, false);
    m_slider->setValueText(QStringLiteral("5"));
    const auto* validator = qobject_cast<const QIntValidator*>(m_driver->line->validator());
    QCOMPARE(validator->bottom(), lowest);
    QCOMPARE(validator->top(), highest);
}

void tst_DvIntSlider::decimalTextIsHeldBackByTheValidator_data()
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

void tst_DvIntSlider::decimalTextIsHeldBackByTheValidator()
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

void tst_DvIntSlider::digitThatLeadsBelowTheTypeIsRefused()
{
    makeShown(3);
    m_slider->setValueText(QStringLiteral("5"));
    m_driver->type(QStringLiteral("-40000"));
    QCOMPARE(m_driver->line->text(), QStringLiteral("-4000"));
}

void tst_DvIntSlider::radixTextGoesThrough_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("maximum");
    QTest::newRow("hexadecimal") << 1 << "0x1f"
                                 << "2a" << 42 << 100;
    QTest::newRow("octal") << 1 << "07"
                           << "17" << 15 << 100;
    QTest::newRow("hexadecimal, no number") << 1 << "0x1f"
                                            << "zz" << 0 << 100;
    QTest::newRow("octal, no number") << 1 << "07"
                                      << "8" << 0 << 100;
    QTest::newRow("hexadecimal, too large for the type") << 1 << "0x1f"
                                                         << "fffffffff" << 0 << 100;
    QTest::newRow("hexadecimal, beyond 16 bits") << 3 << "0x1f"
                                                 << "ffff" << 32767 << 32767;
    QTest::newRow("hexadecimal, beyond the range") << 1 << "0x1f"
                                                   << "fff" << 4095 << 4095;
}

void tst_DvIntSlider::radixTextGoesThrough()
{
    QFETCH(int, kind);
    QFETCH(QString, first);
    QFETCH(QString, typed);
    QFETCH(int, value);
    QFETCH(int, maximum);
    makeShown(kind);
    m_slider->setValueText(first);
    m_driver->typeAndLeave(typed);
    QCOMPARE(m_owner->calls.size(), 1);
    QCOMPARE(m_slider->value(), value);
    QCOMPARE(m_driver->slider->value(), value);
    QCOMPARE(m_driver->slider->maximum(), maximum);
}

void tst_DvIntSlider::dragWritesTheDigitsOfTheRadix_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("shown");
    QTest::newRow("decimal") << "10"
                             << "31";
    QTest::newRow("octal") << "07"
                           << "37";
    QTest::newRow("hexadecimal") << "0x10"
                                 << "1f";
}

void tst_DvIntSlider::dragWritesTheDigitsOfTheRadix()
{
    QFETCH(QString, first);
    QFETCH(QString, shown);
    m_slider->setValueText(first);
    m_driver->press();
    m_driver->dragTo(31);
    m_driver->release();
    QCOMPARE(m_slider->value(), 31);
    QCOMPARE(m_driver->line->text(), shown);
}

void tst_DvIntSlider::commandValueHasNoPrefix_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("decimal") << "31" << QByteArray("31");
    QTest::newRow("octal") << "07" << QByteArray("7");
    QTest::newRow("hexadecimal") << "0x1f" << QByteArray("1f");
}

void tst_DvIntSlider::commandValueHasNoPrefix()
{
    QFETCH(QString, first);
    QFETCH(QByteArray, saved);
    m_slider->setValueText(first);
    m_driver->press();
    QCOMPARE(QByteArray(m_slider->commandValue().toUtf8()), saved);
}

QTEST_MAIN(tst_DvIntSlider)
#include "tst_DvIntSlider.moc"
