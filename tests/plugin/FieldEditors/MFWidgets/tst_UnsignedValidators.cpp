#include "FieldEditors/MFWidgets/QUIntValidator.h"
#include "FieldEditors/MFWidgets/QULongValidator.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

class TestUnsignedValidators : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("within"); // of 10 to 20
        QTest::addColumn<int>("anywhere"); // of all of 32 bits
        const auto row = [](const char* text, QValidator::State within, QValidator::State anywhere) {
            QTest::newRow(text) << QString::fromLatin1(text) << static_cast<int>(within) << static_cast<int>(anywhere);
        };
        row("", QValidator::Acceptable, QValidator::Acceptable);
        row("9", QValidator::Intermediate, QValidator::Acceptable);
        row("10", QValidator::Acceptable, QValidator::Acceptable);
        row("20", QValidator::Acceptable, QValidator::Acceptable);
        row("21", QValidator::Intermediate, QValidator::Acceptable);
        row("4294967295", QValidator::Intermediate, QValidator::Acceptable);
        row("4294967296", QValidator::Invalid, QValidator::Invalid); // more than 32 bits
        row("-1", QValidator::Invalid, QValidator::Invalid);
        row("1.5", QValidator::Invalid, QValidator::Invalid);
        row("0x10", QValidator::Invalid, QValidator::Invalid);
        row("ten", QValidator::Invalid, QValidator::Invalid);
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(const int, within);
        QFETCH(const int, anywhere);
        QObject parent;
        int position = 0;
        QCOMPARE(static_cast<int>(QUIntValidator(10, 20, &parent).validate(text, position)), within);
        QCOMPARE(static_cast<int>(QULongValidator(10, 20, &parent).validate(text, position)), within);
        QCOMPARE(static_cast<int>(QUIntValidator(&parent).validate(text, position)), anywhere);
        QCOMPARE(static_cast<int>(QULongValidator(&parent).validate(text, position)), anywhere);
    }

    void rangeCanBeSet()
    {
        QUIntValidator ofInts(nullptr);
        checkRangeOf(ofInts);
        QULongValidator ofLongs(nullptr);
        checkRangeOf(ofLongs);
    }

private:
    template <typename Validator>
    void checkRangeOf(Validator& validator)
    {
        const QSignalSpy changes(&validator, &QValidator::changed);
        validator.setRange(5, 6);
        QString text = QStringLiteral("7");
        int position = 0;
        QCOMPARE(validator.validate(text, position), QValidator::Intermediate);
        QCOMPARE(changes.count(), 1);
        validator.setRange(5, 6);
        QCOMPARE(changes.count(), 1);
        validator.setRange(5, 7);
        QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
        validator.setRange(6, 7);
        QCOMPARE(changes.count(), 3);
    }
};

QTEST_APPLESS_MAIN(TestUnsignedValidators)
#include "tst_UnsignedValidators.moc"
