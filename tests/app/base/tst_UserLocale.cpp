#include "orvane/app/base/UserLocale.h"

#include <QDateTime>
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

    void countsAndSizesAreThoseOfTheDesktop()
    {
        const QLocale german(QLocale::German);
        QCOMPARE(orvane::countText(qlonglong{1234567}, german), QStringLiteral("1.234.567"));
        QCOMPARE(orvane::countText(qlonglong{1234567}, QLocale(QLocale::English)), QStringLiteral("1,234,567"));
        QCOMPARE(orvane::sizeText(3'565'158, german), QStringLiteral("3,4 MiB"));
        QCOMPARE(orvane::sizeText(64 << 20, german), QStringLiteral("64 MiB"));
        QCOMPARE(orvane::sizeText(64 << 20, QLocale(QLocale::English)), QStringLiteral("64 MiB"));
    }

    void momentsAreThoseOfTheDesktop_data()
    {
        QTest::addColumn<QLocale>("desktop");
        QTest::addColumn<QString>("today");
        QTest::addColumn<QString>("before");
        QTest::newRow("C") << QLocale::c() << QStringLiteral("21:05:09") << QStringLiteral("2024-03-07 21:05:09");
        QTest::newRow("German") << QLocale(QStringLiteral("de_DE")) << QStringLiteral("21:05:09")
                                << QStringLiteral("07.03.24 21:05:09");
        QTest::newRow("French") << QLocale(QStringLiteral("fr_FR")) << QStringLiteral("21:05:09")
                                << QStringLiteral("07/03/2024 21:05:09");
        QTest::newRow("American") << QLocale(QStringLiteral("en_US")) << QStringLiteral("9:05:09 PM")
                                  << QStringLiteral("3/7/24 9:05:09 PM");
    }
    void momentsAreThoseOfTheDesktop()
    {
        QFETCH(const QLocale, desktop);
        QFETCH(const QString, today);
        QFETCH(const QString, before);
        const QDateTime moment(QDate(2024, 3, 7), QTime(21, 5, 9));
        // Some versions of the data have narrow spaces.
        const auto simple = [](QString text) { return text.replace(QChar(0x202F), u' '); };
        QCOMPARE(simple(orvane::momentText(moment, moment.date(), desktop)), today);
        QCOMPARE(simple(orvane::momentText(moment, moment.date().addDays(1), desktop)), before);
    }
};

QTEST_MAIN(TestUserLocale)
#include "tst_UserLocale.moc"
