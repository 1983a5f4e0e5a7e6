#include "orvane/app/base/UserLocale.h"

#include <QDoubleValidator>
#include <QTest>

// Numbers are those of the C locale on every desktop; everything else is the user's.
class TestUserLocale : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersHaveAPoint_data()
    {
        QTest::addColumn<QLocale>("desktop");
        for (const char* const name : {"C", "de_DE", "fr_FR", "ar_EG"})
            QTest::newRow(name) << QLocale(QLatin1String(name));
    }
    void numbersHaveAPoint()
    {
        QFETCH(const QLocale, desktop);
        QLocale::setDefault(desktop);
        const QLocale user = orvane::userLocale();
        orvane::useProgramLocale();
        const QDoubleValidator validator(nullptr);
        QString text = QStringLiteral("2.5");
        int position = 0;
        QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
        QCOMPARE(QLocale().toString(1234.5), QStringLiteral("1234.5"));
        QCOMPARE(orvane::userLocale(), user);
        QCOMPARE(orvane::userLocale(), QLocale::system());
    }
};

QTEST_MAIN(TestUserLocale)
#include "tst_UserLocale.moc"
