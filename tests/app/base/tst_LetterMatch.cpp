#include "orvane/app/base/LetterMatch.h"

#include <QTest>

#include <random>
#include <string>

using namespace Qt::StringLiterals;

namespace {

QString u(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestLetterMatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void matchesLettersInOrder_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("matches");
        QTest::newRow("whole") << u("arm") << u("arm") << true;
        QTest::newRow("gaps") << u("fsl") << u("Frame Selection") << true;
        QTest::newRow("case") << u("ARM") << u("leftArm") << true;
        QTest::newRow("blanks don't count") << u("frame sel") << u("FrameSelection") << true;
        QTest::newRow("wrong order") << u("mra") << u("arm") << false;
        QTest::newRow("too many") << u("armm") << u("arm") << false;
        QTest::newRow("accent in the name") << u("ecran") << u("Écran") << true;
        QTest::newRow("accent in the letters") << u("é") << u("left e") << true;
        QTest::newRow("Cyrillic") << u("дом") << u("Мой Дом") << true;
        QTest::newRow("none") << QString() << u("arm") << true;
        QTest::newRow("empty name") << u("a") << QString() << false;
        QTest::newRow("too many letters") << QString(65, u'a') << QString(100, u'a') << false;
    }
    void matchesLettersInOrder()
    {
        QFETCH(QString, letters);
        QFETCH(QString, name);
        QFETCH(bool, matches);
        const orvane::LetterMatch match(letters);
        QCOMPARE(match.score(name).has_value(), matches);
        if (matches)
            QVERIFY(match.mayMatch(name.toStdString()));
        QCOMPARE(match.places(name).isEmpty(), !matches || letters.isEmpty());
    }

    void randomNamesOfAnyLengthAreExcludedByTheirLetters()
    {
        std::mt19937 random(11);
        const std::string alphabet = "aAbBz9 ";
        const auto text = [&](std::size_t length) {
            std::string made;
            for (std::size_t i = 0; i < length; ++i)
                made += alphabet[random() % alphabet.size()];
            return made;
        };
        int matches = 0;
        for (int round = 0; round < 20000; ++round) {
            const std::string name = text(random() % 40);
            const std::string letters = text(random() % 8);
            const orvane::LetterMatch match(QString::fromStdString(letters));
            const bool isMatch = match.score(QString::fromStdString(name)).has_value();
            QCOMPARE(match.mayMatch(name), isMatch);
            QVERIFY(match.mayMatch(name + "\u00C9")); // which has to be looked at more closely
            matches += isMatch ? 1 : 0;
        }
        QVERIFY(matches > 1000 && matches < 19000);
    }

    void theBetterNameHasTheHigherScore_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<QString>("better");
        QTest::addColumn<QString>("worse");
        QTest::newRow("beginning") << u("arm") << u("armature") << u("swarm");
        QTest::newRow("whole name") << u("arm") << u("arm") << u("armature");
        QTest::newRow("words") << u("fs") << u("Frame Selection") << u("offset");
        QTest::newRow("capitals") << u("la") << u("theLeftArm") << u("blank");
        QTest::newRow("next to each other") << u("ght") << u("xlight") << u("xgahat");
    }
    void theBetterNameHasTheHigherScore()
    {
        QFETCH(QString, letters);
        QFETCH(QString, better);
        QFETCH(QString, worse);
        const orvane::LetterMatch match(letters);
        QVERIFY(match.score(worse).has_value());
        QVERIFY(*match.score(better) > *match.score(worse));
    }

    void saysWhereTheLettersAre()
    {
        QCOMPARE(orvane::LetterMatch(u("fs")).places(u("offset Frame Selection")), (QList<int>{7, 13}));
        QCOMPARE(orvane::LetterMatch(u("sel")).places(u("use Selection")), (QList<int>{4, 5, 6}));
        QCOMPARE(orvane::LetterMatch(u("x")).places(u("arm")), QList<int>());
    }

    void longNamesAreSearchedAtTheirBeginning()
    {
        const QString name = QString(orvane::LetterMatch::mostCharacters, u'a') + u'b';
        QVERIFY(!orvane::LetterMatch(u("b")).score(name));
        QVERIFY(orvane::LetterMatch(u("a")).score(name));
    }
};

QTEST_APPLESS_MAIN(TestLetterMatch)
#include "tst_LetterMatch.moc"
