#include "plugin/FieldEditors/IntSliderFixture.h"

#include <memory>

/// How a signed slider finds its radix and keeps to it.
class TestDvIntSliderRadix : public QObject, private IntSliderFixture {
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { finish(); }

    void firstTextFixesTheRadix_data()
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

    void firstTextFixesTheRadix()
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

    void laterTextLosesItsFirstDigitsByTheRadix_data()
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

    void laterTextLosesItsFirstDigitsByTheRadix()
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

    void radixTextGoesThrough_data()
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

    void radixTextGoesThrough()
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

    void dragWritesTheDigitsOfTheRadix_data()
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

    void dragWritesTheDigitsOfTheRadix()
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

    void commandValueHasNoPrefix_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QByteArray>("saved");
        QTest::newRow("decimal") << "31" << QByteArray("31");
        QTest::newRow("octal") << "07" << QByteArray("7");
        QTest::newRow("hexadecimal") << "0x1f" << QByteArray("1f");
    }

    void commandValueHasNoPrefix()
    {
        QFETCH(QString, first);
        QFETCH(QByteArray, saved);
        m_slider->setValueText(first);
        m_driver->press();
        QCOMPARE(QByteArray(m_slider->commandValue().toUtf8()), saved);
    }
};

QTEST_MAIN(TestDvIntSliderRadix)
#include "tst_DvIntSliderRadix.moc"
