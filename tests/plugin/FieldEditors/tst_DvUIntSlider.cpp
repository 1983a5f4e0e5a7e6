#include "FieldEditors/DvUIntSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <limits>
#include <memory>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

class TestDvUIntSlider : public QObject {
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

    void startsAtZero()
    {
        QCOMPARE(m_slider->value(), 0U);
        QCOMPARE(m_driver->line->validator(), nullptr);
        QCOMPARE(m_driver->slider->minimum(), lowest);
        QCOMPARE(m_driver->slider->maximum(), lowest + 100);
        // Even a text that changes nothing brings the slider to the value.
        m_driver->typeAndLeave(QStringLiteral("word"));
        QCOMPARE(m_driver->slider->value(), lowest);
    }

    void firstTextFixesTheRadix_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<unsigned>("value");
        QTest::addColumn<QString>("editText");
        QTest::newRow("decimal") << "42"
                                 << "42" << 42U << "42";
        QTest::newRow("three digits from zero") << "007"
                                                << "007" << 7U << "007";
        QTest::newRow("octal") << "07"
                               << "7" << 7U << "07";
        QTest::newRow("prefix alone") << "0x"
                                      << "x" << 0U << "0x";
        QTest::newRow("hexadecimal") << "0x1f"
                                     << "1f" << 31U << "0x1f";
        QTest::newRow("largest hexadecimal") << "0xffffffff"
                                             << "ffffffff" << 4294967295U << "0xffffffff";
        QTest::newRow("no number") << "word"
                                   << "word" << 0U << "word";
    }

    void firstTextFixesTheRadix()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(unsigned, value);
        QFETCH(QString, editText);
        m_slider->setValueText(text);
        QCOMPARE(m_driver->line->text(), shown);
        QCOMPARE(m_slider->value(), value);
        QCOMPARE(m_slider->editText(), editText);
        QCOMPARE(m_driver->line->validator(), nullptr);
        QVERIFY(m_owner->calls.isEmpty());
    }

    void laterTextLosesItsFirstDigitsByTheRadix_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("later");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<unsigned>("value");
        QTest::newRow("hexadecimal, two digits keep the value") << "0x1f"
                                                                << "25"
                                                                << "" << 31U;
        QTest::newRow("hexadecimal, three digits") << "0x1f"
                                                   << "125"
                                                   << "5" << 5U;
        QTest::newRow("octal, two digits") << "07"
                                           << "25"
                                           << "5" << 5U;
        QTest::newRow("decimal, hexadecimal text keeps the value") << "7"
                                                                   << "0x1f"
                                                                   << "0x1f" << 7U;
    }

    void laterTextLosesItsFirstDigitsByTheRadix()
    {
        QFETCH(QString, first);
        QFETCH(QString, later);
        QFETCH(QString, shown);
        QFETCH(unsigned, value);
        m_slider->setValueText(first);
        m_slider->setValueText(later);
        QCOMPARE(m_driver->line->text(), shown);
        QCOMPARE(m_slider->value(), value);
    }

    void positionIsTheBiasedValue_data()
    {
        QTest::addColumn<unsigned>("value");
        QTest::addColumn<int>("position");
        QTest::newRow("zero") << 0U << lowest;
        QTest::newRow("one") << 1U << lowest + 1;
        QTest::newRow("largest signed") << 2147483647U << -1;
        QTest::newRow("middle") << 2147483648U << 0;
        QTest::newRow("largest") << 4294967295U << highest;
    }

    void positionIsTheBiasedValue()
    {
        QFETCH(unsigned, value);
        QFETCH(int, position);
        m_slider->setValueText(QString::number(value));
        QCOMPARE(m_slider->value(), value);
        QCOMPARE(m_driver->slider->value(), position);
    }

    void dragReadsTheValueFromThePosition()
    {
        m_slider->setValueText(QStringLiteral("20"));
        m_driver->press();
        m_driver->dragTo(lowest + 31);
        QCOMPARE(m_slider->value(), 31U);
        QCOMPARE(m_driver->line->text(), QStringLiteral("31"));
        m_driver->release();
        m_slider->setRange(0, 4294967295U, false);
        m_slider->setValueText(QStringLiteral("20"));
        m_driver->press();
        m_driver->dragTo(highest);
        QCOMPARE(m_slider->value(), 4294967295U);
    }

    void rangeStaysWithinTheType_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("maximum");
        QTest::newRow("32-bit") << 2 << lowest + 100000;
        QTest::newRow("16-bit") << 4 << lowest + 65535;
        QTest::newRow("any other") << 0 << lowest + 100000;
    }

    void rangeStaysWithinTheType()
    {
        QFETCH(int, kind);
        QFETCH(int, maximum);
        makeShown(kind);
        m_slider->setRange(10, 100000, false);
        QCOMPARE(m_driver->slider->minimum(), lowest + 10);
        QCOMPARE(m_driver->slider->maximum(), maximum);
    }

    void boundedSetRangeLeavesTheSliderAlone()
    {
        m_slider->setRange(10, 20, true);
        QCOMPARE(m_driver->slider->minimum(), lowest);
        QCOMPARE(m_driver->slider->maximum(), lowest + 100);
    }

    void boundedSliderWithoutRangePinsValuesToZero()
    {
        makeShown(2, false);
        m_slider->setRange(10, 20, true);
        for (const char* text : {"15", "5", "25"}) {
            m_slider->setValueText(QString::fromLatin1(text));
            QCOMPARE(m_slider->value(), 0U);
        }
    }

    void boundedSliderLimitsToItsFormerRange()
    {
        m_slider->setRange(10, 200, true);
        m_slider->setValueText(QStringLiteral("150"));
        QCOMPARE(m_slider->value(), 100U); // the range from before
        m_slider->setValueText(QStringLiteral("5"));
        QCOMPARE(m_slider->value(), 10U); // the limit
    }

    void typedText_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<unsigned>("value");
        QTest::addColumn<int>("maximum");
        QTest::newRow("inside the range") << 2 << "5"
                                          << "42" << 42U << lowest + 100;
        QTest::newRow("beyond the range") << 2 << "5"
                                          << "500" << 500U << lowest + 500;
        QTest::newRow("letters keep the value") << 2 << "5"
                                                << "word" << 5U << lowest + 100;
        QTest::newRow("empty keeps the value") << 2 << "5"
                                               << "" << 5U << lowest + 100;
        QTest::newRow("negative keeps the value") << 2 << "5"
                                                  << "-5" << 5U << lowest + 100;
        QTest::newRow("beyond 32 bits keeps the value") << 2 << "5"
                                                        << "4294967296" << 5U << lowest + 100;
        QTest::newRow("beyond 16 bits is limited") << 4 << "5"
                                                   << "70000" << 65535U << lowest + 65535;
        QTest::newRow("beyond 32 bits keeps the value of 16") << 4 << "5"
                                                              << "4294967296" << 5U << lowest + 100;
        QTest::newRow("hexadecimal") << 2 << "0x5"
                                     << "2a" << 42U << lowest + 100;
        QTest::newRow("hexadecimal, no number") << 2 << "0x5"
                                                << "zz" << 5U << lowest + 100;
        QTest::newRow("octal") << 2 << "05"
                               << "17" << 15U << lowest + 100;
        QTest::newRow("octal, no number") << 2 << "05"
                                          << "8" << 5U << lowest + 100;
    }

    void typedText()
    {
        QFETCH(int, kind);
        QFETCH(QString, first);
        QFETCH(QString, typed);
        QFETCH(unsigned, value);
        QFETCH(int, maximum);
        makeShown(kind);
        m_slider->setValueText(first);
        m_driver->typeAndLeave(typed);
        QCOMPARE(m_owner->calls.size(), 1); // also when nothing has changed
        QCOMPARE(m_slider->value(), value);
        QCOMPARE(m_driver->slider->value(), lowest + static_cast<int>(value));
        QCOMPARE(m_driver->slider->maximum(), maximum);
        QCOMPARE(m_driver->line->text(), typed);
    }

    void commandValueIsTheLineWithItsPrefix_data()
    {
        QTest::addColumn<QString>("first");
        QTest::newRow("decimal") << "31";
        QTest::newRow("octal") << "07";
        QTest::newRow("hexadecimal") << "0x1f";
    }

    void commandValueIsTheLineWithItsPrefix()
    {
        QFETCH(QString, first);
        m_slider->setValueText(first);
        m_driver->press();
        QCOMPARE(QByteArray(m_slider->commandValue().toUtf8()), first.toLatin1());
    }

private:
    /// `ranged` gives it the unbounded range 0 to 100.
    void makeShown(int kind = 2, bool ranged = true)
    {
        m_slider = std::make_unique<DvUIntSlider>(kind, DvSlider::FieldEditor, m_owner.get(), &m_window);
        if (ranged)
            m_slider->setRange(0, 100, false);
        showIn(m_window, *m_slider);
        m_driver = std::make_unique<SliderDriver>(*m_slider);
    }

    QWidget m_window;
    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<DvUIntSlider> m_slider;
    std::unique_ptr<SliderDriver> m_driver;
};

QTEST_MAIN(TestDvUIntSlider)
#include "tst_DvUIntSlider.moc"
