#include "FieldEditors/DvRealSlider.h"
#include "plugin/FieldEditors/RecordingOwner.h"
#include "plugin/SliderDriver.h"

#include <QDoubleValidator>

#include <cmath>
#include <limits>
#include <memory>

class TestDvRealSlider : public QObject {
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

    void startsWithZerosAndTheValidatorOfItsType_data()
    {
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<double>("limit");
        QTest::addColumn<int>("decimals");
        QTest::newRow("float") << true << 3.4028234663852886e+38 << 6;
        QTest::newRow("double") << false << 1.7976931348623157e+308 << 15;
    }

    void startsWithZerosAndTheValidatorOfItsType()
    {
        QFETCH(bool, isFloat);
        QFETCH(double, limit);
        QFETCH(int, decimals);
        makeShown(isFloat);
        QCOMPARE(m_slider->value(), 0.0);
        QCOMPARE(m_slider->lowerBound(), 0.0);
        QCOMPARE(m_slider->upperBound(), 0.0);
        QVERIFY(!m_slider->isBounded());
        const auto* validator = qobject_cast<const QDoubleValidator*>(m_driver->line->validator());
        QVERIFY(validator != nullptr);
        QCOMPARE(validator->bottom(), -limit);
        QCOMPARE(validator->top(), limit);
        QCOMPARE(validator->decimals(), decimals);
        QCOMPARE(m_driver->slider->minimum(), 0);
        QCOMPARE(m_driver->slider->maximum(), 99);
    }

    void valueIsHeldAsItsText_data()
    {
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<double>("given");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("held");
        QTest::newRow("float rounds to six decimals") << true << 0.1234567 << "0.123457" << 0.123457;
        QTest::newRow("float of few decimals") << true << 1.5 << "1.500000" << 1.5;
        QTest::newRow("float tiny") << true << 1e-7 << "0.000000" << 0.0;
        QTest::newRow("float negative tiny") << true << -1e-7 << "-0.000000" << -0.0;
        QTest::newRow("float large") << true << 1e10 << "10000000000.000000" << 1e10;
        QTest::newRow("double tenth") << false << 0.1 << "0.1" << 0.1;
        QTest::newRow("double third") << false << 1.0 / 3 << "0.333333333333333" << 0.333333333333333;
        QTest::newRow("double tiny") << false << 1e-7 << "1e-07" << 1e-7;
        QTest::newRow("double large") << false << 1e300 << "1e+300" << 1e300;
    }

    void valueIsHeldAsItsText()
    {
        QFETCH(bool, isFloat);
        QFETCH(double, given);
        QFETCH(QString, text);
        QFETCH(double, held);
        makeShown(isFloat);
        m_slider->setRange(0, 10, false);
        m_driver->type(QStringLiteral("5"));
        m_slider->setValue(given);
        QCOMPARE(m_slider->editText(), text);
        QCOMPARE(m_slider->value(), held);
        QVERIFY(!m_slider->edited());
    }

    void longValueShowsItsBeginning()
    {
        m_slider->setRange(0, 10, false);
        m_slider->setValue(1e20);
        QCOMPARE(m_driver->line->cursorPosition(), 0);
    }

    void setValueTextDoesNothing()
    {
        m_slider->setRange(0, 10, false);
        m_slider->setValue(3);
        m_slider->setValueText(QStringLiteral("7"));
        QCOMPARE(m_slider->value(), 3.0);
        QCOMPARE(m_slider->editText(), QStringLiteral("3.000000"));
    }

    void positionOfAValue_data()
    {
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("position");
        QTest::newRow("lower bound") << 0.0 << 10.0 << 0.0 << 0;
        QTest::newRow("upper bound") << 0.0 << 10.0 << 10.0 << 100;
        QTest::newRow("on a step") << 0.0 << 10.0 << 3.7 << 37;
        QTest::newRow("below half a step") << 0.0 << 10.0 << 3.749 << 37;
        QTest::newRow("above half a step") << 0.0 << 10.0 << 3.751 << 38;
        QTest::newRow("negative range") << -4.0 << -2.0 << -3.0 << 50;
        QTest::newRow("small range") << 0.0 << 0.001 << 0.00025 << 25;
        QTest::newRow("range of all floats") << -3.4028234663852886e+38 << 3.4028234663852886e+38 << 0.0 << 50;
    }

    void positionOfAValue()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(double, value);
        QFETCH(int, position);
        m_slider->setRange(lower, upper, false);
        m_slider->setValue(value);
        QCOMPARE(m_driver->slider->value(), position);
    }

    void valueOfAPosition_data()
    {
        QTest::addColumn<double>("lower");
        QTest::addColumn<double>("upper");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("text");
        QTest::newRow("first") << 0.0 << 10.0 << 0 << "0.000000";
        QTest::newRow("last") << 0.0 << 10.0 << 100 << "10.000000";
        QTest::newRow("between") << 0.0 << 10.0 << 37 << "3.700000";
        QTest::newRow("negative range") << -4.0 << -2.0 << 25 << "-3.500000";
    }

    void valueOfAPosition()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        QFETCH(int, position);
        QFETCH(QString, text);
        m_slider->setRange(lower, upper, false);
        m_slider->setValue((lower + upper) / 2);
        m_driver->press();
        m_driver->dragTo(position);
        m_driver->release();
        QCOMPARE(m_driver->slider->value(), position);
        QCOMPARE(m_slider->editText(), text);
        QCOMPARE(m_slider->value(), text.toDouble());
    }

    void typedTextIsHeldBackByTheType_data()
    {
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("left");
        QTest::newRow("letters") << true << "abc"
                                 << "";
        QTest::newRow("seventh decimal") << true << "0.1234567"
                                         << "0.123456";
        QTest::newRow("beyond all floats") << true << "1e39"
                                           << "1e39";
        QTest::newRow("beyond all doubles") << false << "1e309"
                                            << "1e309";
        QTest::newRow("unfinished exponent") << false << "1e"
                                             << "1e";
    }

    void typedTextIsHeldBackByTheType()
    {
        QFETCH(bool, isFloat);
        QFETCH(QString, typed);
        QFETCH(QString, left);
        makeShown(isFloat);
        m_slider->setRange(0, 10, false);
        m_slider->setValue(3);
        m_driver->type(typed);
        QCOMPARE(m_driver->line->text(), left);
        if (left.startsWith(QLatin1String("0.")))
            return; // what is left of it is a number
        QTest::keyClick(m_driver->line, Qt::Key_Return);
        QVERIFY(m_owner->calls.isEmpty());
        QCOMPARE(m_driver->line->text(), left);
        QCOMPARE(m_slider->value(), 3.0);
    }

    void decimalCommaReadsAsZero()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        makeShown();
        QLocale::setDefault(QLocale::c());
        m_slider->setRange(0, 10, false);
        m_slider->setValue(3);
        m_driver->typeAndLeave(QStringLiteral("1,5"));
        QCOMPARE(m_owner->calls.size(), 1);
        QCOMPARE(m_slider->value(), 0.0);
        QCOMPARE(m_driver->slider->value(), 0);
    }

    void commandValueHasTheFormatOfItsType_data()
    {
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("float") << true << QByteArray("0.100000");
        QTest::newRow("double") << false << QByteArray("0.1");
    }

    void commandValueHasTheFormatOfItsType()
    {
        QFETCH(bool, isFloat);
        QFETCH(QByteArray, text);
        makeShown(isFloat);
        m_slider->setRange(0, 1, false);
        m_slider->setValue(0.1);
        m_driver->press();
        QCOMPARE(QByteArray(m_slider->commandValue().toUtf8()), text);
    }

    void valuesThatAreNoNumbersDoNoHarm_data()
    {
        QTest::addColumn<double>("given");
        QTest::addColumn<bool>("bounded");
        for (const bool bounded : {false, true}) {
            const char* const range = bounded ? "bounded" : "unbounded";
            QTest::addRow("not a number, %s", range) << std::nan("") << bounded;
            QTest::addRow("infinity, %s", range) << std::numeric_limits<double>::infinity() << bounded;
            QTest::addRow("negative infinity, %s", range) << -std::numeric_limits<double>::infinity() << bounded;
        }
    }

    void valuesThatAreNoNumbersDoNoHarm()
    {
        QFETCH(double, given);
        QFETCH(bool, bounded);
        m_slider->setRange(0, 10, bounded);
        m_slider->setValue(given);
        if (std::isnan(given))
            QVERIFY(std::isnan(m_slider->value()));
        else
            QCOMPARE(m_slider->value(), bounded ? (given > 0 ? 10.0 : 0.0) : given);
        QVERIFY(m_owner->calls.isEmpty());
        // The first range is still measured from a lower bound that may be infinite, the second one no more.
        m_slider->setRange(0, 10, bounded);
        m_slider->setRange(0, 10, bounded);
        m_slider->setValue(5);
        QCOMPARE(m_slider->value(), 5.0);
        QCOMPARE(m_driver->slider->value(), 50);
    }

private:
    /// A shown slider with its driver.
    void makeShown(bool isFloat = true)
    {
        m_slider = std::make_unique<DvRealSlider>(DvSlider::FieldEditor, m_owner.get(), &m_window, isFloat);
        showIn(m_window, *m_slider);
        m_driver = std::make_unique<SliderDriver>(*m_slider);
    }

    QWidget m_window;
    std::unique_ptr<RecordingOwner> m_owner;
    std::unique_ptr<DvRealSlider> m_slider;
    std::unique_ptr<SliderDriver> m_driver;
};

QTEST_MAIN(TestDvRealSlider)
#include "tst_DvRealSlider.moc"
