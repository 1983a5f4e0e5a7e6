#include "plugin/FieldEditors/SFWidgets/NumericEditorRun.h"

#include <string>

namespace {

/// An integer field of an application, whose text is octal or hexadecimal.
class RadixField final : public NxSFInt32 {
public:
    RadixField(NxFieldContainer* container, int radix)
        : NxSFInt32(container, "radixField")
        , m_radix(radix)
    {
    }

    bool writeText(std::string& text, std::size_t& /*position*/, std::size_t /*budget*/) const override
    {
        text += m_radix == 16 ? "0x" : "0";
        text += QByteArray::number(getValue(), m_radix).toStdString();
        return false;
    }

private:
    int m_radix;
};

} // namespace

/// What the editors of integers add to what all numeric editors do.
class TestIntegerFieldEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void rangeIsZeroToAHundred_data() { integers(); }

    void rangeIsZeroToAHundred()
    {
        const NumericEditorRun run(type());
        const bool isSigned = !type().startsWith(QLatin1String("SFU"));
        QCOMPARE(run.driver.slider->minimum(), isSigned ? 0 : std::numeric_limits<int>::min());
        QCOMPARE(run.positions(), 100);
    }

    void fieldValueWidensTheRange_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        const int lowest = std::numeric_limits<int>::min();
        const int highest = std::numeric_limits<int>::max();
        QTest::newRow("32-bit above") << "SFInt32"
                                      << "2147483647" << 0 << highest;
        QTest::newRow("32-bit below") << "SFInt32"
                                      << "-2147483648" << lowest << 100;
        QTest::newRow("16-bit above") << "SFShort"
                                      << "32767" << 0 << 32767;
        QTest::newRow("16-bit below") << "SFShort"
                                      << "-32768" << -32768 << 100;
        QTest::newRow("unsigned 32-bit") << "SFUInt32"
                                         << "4294967295" << lowest << highest;
        QTest::newRow("unsigned 16-bit") << "SFUShort"
                                         << "65535" << lowest << lowest + 65535;
    }

    void fieldValueWidensTheRange()
    {
        QFETCH(QString, value);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        const NumericEditorRun run(type(), value);
        QCOMPARE(run.lineText(), value);
        QCOMPARE(run.driver.slider->minimum(), minimum);
        QCOMPARE(run.driver.slider->maximum(), maximum);
        QCOMPARE(run.driver.slider->value(), value.startsWith(QLatin1Char('-')) ? minimum : maximum);
        QCOMPARE(run.fieldText(), value);
        QCOMPARE(run.pushed(), 0);
    }

    void widenedRangeCarriesOverToTheNextField_data() { integers(); }

    void widenedRangeCarriesOverToTheNextField()
    {
        NumericEditorRun run(type(), QStringLiteral("500"));
        NumericEditorRun::Other other(type());
        other.field->set("7");
        run.select(other.field);
        QCOMPARE(run.positions(), 500);
        QCOMPARE(run.position(), 7);
        run.deselect();
    }

    void typedValue_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::addColumn<int>("positions");
        QTest::newRow("32-bit above the range") << "SFInt32"
                                                << "500"
                                                << "500" << 500;
        QTest::newRow("32-bit below the range") << "SFInt32"
                                                << "-500"
                                                << "-500" << 600;
        QTest::newRow("32-bit, largest") << "SFInt32"
                                         << "2147483647"
                                         << "2147483647" << 2147483647;
        QTest::newRow("16-bit above the range") << "SFShort"
                                                << "32767"
                                                << "32767" << 32767;
        QTest::newRow("16-bit below the range") << "SFShort"
                                                << "-32768"
                                                << "-32768" << 32868;
        QTest::newRow("unsigned 32-bit above the range") << "SFUInt32"
                                                         << "500"
                                                         << "500" << 500;
        QTest::newRow("unsigned 16-bit above the range") << "SFUShort"
                                                         << "500"
                                                         << "500" << 500;
        QTest::newRow("unsigned 16-bit above the type") << "SFUShort"
                                                        << "70000"
                                                        << "65535" << 65535;
        QTest::newRow("unsigned with leading zeros") << "SFUInt32"
                                                     << "007"
                                                     << "7" << 100;
    }

    void typedValue()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        QFETCH(int, positions);
        NumericEditorRun run(type(), QStringLiteral("5"));
        run.driver.typeAndLeave(typed);
        QCOMPARE(run.fieldText(), written);
        QCOMPARE(run.positions(), positions);
        QCOMPARE(run.pushed(), 1);
        ToolHarness::pump();
        QCOMPARE(run.lineText(), written);
    }

    void signedEditorRefusesWhatTheTypeHasNot_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("typed");
        QTest::newRow("16-bit above the type") << "SFShort"
                                               << "40000";
        QTest::newRow("minus alone") << "SFInt32"
                                     << "-";
        QTest::newRow("nothing") << "SFInt32"
                                 << "";
    }

    void signedEditorRefusesWhatTheTypeHasNot()
    {
        QFETCH(QString, typed);
        NumericEditorRun run(type(), QStringLiteral("5"));
        run.driver.typeAndReturn(typed);
        run.driver.slider->setFocus();
        QCOMPARE(run.lineText(), typed);
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
        QCOMPARE(run.pushed(), 0);
    }

    void unsignedEditorKeepsTheValueForNoNumber_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("typed");
        for (const char* type : {"SFUInt32", "SFUShort"}) {
            for (const char* typed : {"word", "-5", "", "4294967296", "1.5"})
                QTest::addRow("%s \"%s\"", type, typed) << QString::fromLatin1(type) << QString::fromLatin1(typed);
        }
    }

    void unsignedEditorKeepsTheValueForNoNumber()
    {
        QFETCH(QString, typed);
        NumericEditorRun run(type(), QStringLiteral("5"));
        run.driver.typeAndLeave(typed);
        QCOMPARE(run.fieldText(), QStringLiteral("5"));
        QCOMPARE(run.pushed(), 1); // the old value is written all the same
        ToolHarness::pump();
        QCOMPARE(run.lineText(), QStringLiteral("5"));
    }

    void changeOfFieldWritesNothing_data() { integers(); }

    void changeOfFieldWritesNothing()
    {
        NumericEditorRun run(type(), QStringLiteral("90"));
        NumericEditorRun::Other other(type());
        other.field->set("300");
        run.select(other.field);
        run.select(run.field);
        run.select(other.field);
        run.deselect();
        QCOMPARE(run.fieldText(), QStringLiteral("90"));
        QCOMPARE(ToolHarness::textOf(*other.field), QStringLiteral("300"));
        QCOMPARE(run.pushed(), 0);
    }

    void firstTextMakesTheEditorHexadecimal()
    {
        NumericEditorRun run(QStringLiteral("SFInt32"));
        RadixField field(nullptr, 16);
        field.setValue(31);
        run.select(&field);
        QCOMPARE(run.lineText(), QStringLiteral("1f"));
        QCOMPARE(run.driver.line->validator(), nullptr);
        run.driver.typeAndLeave(QStringLiteral("2a"));
        QCOMPARE(field.getValue(), 42);
        ToolHarness::pump();
        QCOMPARE(run.lineText(), QStringLiteral("2a"));
        run.driver.typeAndLeave(QStringLiteral("zz"));
        QCOMPARE(field.getValue(), 0);
        QCOMPARE(run.pushed(), 2);
        run.deselect();
    }

    void firstTextMakesTheEditorOctal()
    {
        NumericEditorRun run(QStringLiteral("SFInt32"));
        RadixField field(nullptr, 8);
        field.setValue(7);
        run.select(&field);
        QCOMPARE(run.lineText(), QStringLiteral("7"));
        run.driver.typeAndLeave(QStringLiteral("17"));
        QCOMPARE(field.getValue(), 15);
        run.deselect();
    }

    void radixStaysForLaterFields()
    {
        NumericEditorRun run(QStringLiteral("SFInt32"));
        RadixField field(nullptr, 16);
        field.setValue(31);
        run.select(&field);
        run.set(QStringLiteral("25"));
        run.select(run.field);
        // The text has no prefix to lose, so its digits go.
        QCOMPARE(run.lineText(), QString());
        QCOMPARE(run.fieldText(), QStringLiteral("25"));
        QCOMPARE(run.pushed(), 0);
    }

    void undoOfAHexadecimalDragWritesItsDigitsWithoutPrefix()
    {
        NumericEditorRun run(QStringLiteral("SFInt32"));
        RadixField field(nullptr, 16);
        field.setValue(32);
        run.select(&field);
        run.driver.press();
        run.driver.dragTo(50);
        run.driver.release();
        QCOMPARE(field.getValue(), 50);
        run.command(0).undo();
        QCOMPARE(field.getValue(), 20); // 32 is 20 in hexadecimal
        run.deselect();
    }

private:
    static void integers()
    {
        QTest::addColumn<QString>("type");
        for (const char* type : {"SFInt32", "SFShort", "SFUInt32", "SFUShort"})
            QTest::newRow(type) << QString::fromLatin1(type);
    }

    static QString type()
    {
        QFETCH(QString, type);
        return type;
    }
};

QTEST_MAIN(TestIntegerFieldEditors)
#include "tst_IntegerFieldEditors.moc"
