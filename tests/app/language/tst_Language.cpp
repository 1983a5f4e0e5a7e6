#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/language/Language.h"
#include "orvane/app/settings/SettingList.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

#include <memory>

using orvane::Language;

// The choice of a language, and how texts follow it.
class TestLanguage : public QObject {
    Q_OBJECT

private:
    // A text that Qt itself translates.
    static QString cancelText() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

    static QStringList languages(const char* codes) { return QString::fromLatin1(codes).split(u' '); }

private Q_SLOTS:
    void cleanup() { Language::use(QStringLiteral("en")); }

    void languagesHaveTheirOwnNames()
    {
        const QStringList codes = Language::codes();
        QCOMPARE(codes.value(0), QStringLiteral("en"));
        QVERIFY(codes.contains(QStringLiteral("de")));
        QCOMPARE(Language::name(QStringLiteral("en")), QStringLiteral("English"));
        QCOMPARE(Language::name(QStringLiteral("de")), QStringLiteral("Deutsch"));
    }

    void theSettingOffersAllOfThem()
    {
        const Setting* const setting = orvane::findSetting(u"look/language");
        QVERIFY(setting != nullptr);
        QStringList offered;
        for (const Setting::Choice& choice : setting->choices)
            offered.append(QLatin1String(choice.value));
        QCOMPARE(offered, QStringList(Language::system) + Language::codes());
        QCOMPARE(setting->defaultValue.toString(), QString(Language::system));
    }

    void theChoiceIsResolved_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QString>("code");
        const QString system = Language::system;
        QTest::newRow("German") << "de" << languages("en-US") << "de";
        QTest::newRow("English") << "en" << languages("de-DE") << "en";
        QTest::newRow("system, none") << system << QStringList() << "en";
        QTest::newRow("system, German") << system << languages("de") << "de";
        QTest::newRow("system, Austrian") << system << languages("de-AT en") << "de";
        QTest::newRow("system, Swiss with script") << system << languages("de-Latn-CH") << "de";
        QTest::newRow("system, British first") << system << languages("en-GB de") << "en";
        QTest::newRow("system, first one not there") << system << languages("xx-YY de") << "de";
        QTest::newRow("system, none there") << system << languages("xx yy-ZZ") << "en";
        QTest::newRow("unknown choice") << "tlh" << languages("de") << "en";
        QTest::newRow("empty choice") << "" << languages("de") << "en";
        QTest::newRow("a path") << "../de" << languages("de") << "en";
    }
    void theChoiceIsResolved()
    {
        QFETCH(const QString, choice);
        QFETCH(const QStringList, wanted);
        QFETCH(const QString, code);
        QCOMPARE(Language::resolved(choice, wanted), code);
    }

    void theLocaleCHasNoLanguage()
    {
        const QByteArray all = qgetenv("LC_ALL");
        const auto restore = qScopeGuard([all] {
            qputenv("LC_ALL", all);
            qunsetenv("LANGUAGE");
        });
        qputenv("LANGUAGE", "de:fr");
        qputenv("LC_ALL", "C.UTF-8");
        QCOMPARE(Language::systemLanguages(), QStringList());
        qputenv("LC_ALL", "POSIX");
        QCOMPARE(Language::systemLanguages(), QStringList());
        qputenv("LC_ALL", "en_US.UTF-8");
        QCOMPARE(Language::systemLanguages().value(0).left(2), QStringLiteral("de"));
    }

    void textsFollowAsLongAsTheirOwnerExists()
    {
        const QString english = cancelText();
        auto label = std::make_unique<QLabel>();
        int calls = 0;
        orvane::followLanguage(label.get(), [&calls, shown = label.get()] {
            ++calls;
            shown->setText(cancelText());
        });
        QCOMPARE(calls, 1);
        QCOMPARE(label->text(), english);
        Language::use(QStringLiteral("de"));
        QCOMPARE(Language::current(), QStringLiteral("de"));
        QCOMPARE(calls, 2);
        QCOMPARE(label->text(), QStringLiteral("Abbrechen"));
        Language::use(QStringLiteral("de"));
        QCOMPARE(calls, 2);
        Language::use(QStringLiteral("nothing that is known"));
        QCOMPARE(Language::current(), QStringLiteral("en"));
        QCOMPARE(calls, 3);
        QCOMPARE(label->text(), english);
        label.reset();
        Language::use(QStringLiteral("de"));
        QCOMPARE(calls, 3);
    }

    void buttonsOfQtFollow()
    {
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        buttons.show();
        Language::use(QStringLiteral("de"));
        QTRY_COMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Abbrechen"));
        Language::use(QStringLiteral("en"));
        QTRY_COMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
    }
};

QTEST_MAIN(TestLanguage)

#include "tst_Language.moc"
