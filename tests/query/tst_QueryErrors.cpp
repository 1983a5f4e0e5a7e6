#include "meridane/query/Query.h"

#include <QTest>

#include <string>

using meridane::Query;
using meridane::QueryError;

/// Queries that are wrong, and how the message says so.
class TestQueryErrors : public QObject {
    Q_OBJECT

private:
    static std::string errorOf(const std::string& text, Query::Subject subject = Query::Subject::Scene)
    {
        const auto parsed = Query::parse(text, subject);
        const auto* const error = std::get_if<QueryError>(&parsed);
        return error != nullptr ? std::to_string(error->position) + ": " + error->message : std::string();
    }
    static std::string repeated(std::string_view text, int count)
    {
        std::string result;
        for (int i = 0; i < count; ++i)
            result += text;
        return result;
    }

private Q_SLOTS:
    void wrongQueriesHaveMessages_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char* text, const char* message) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(message);
        };
        row("(arm", "0: A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
        row("a (b (c)", "2: A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
        row("arm)", "3: An opening bracket is missing for this closing one. Put brackets to search for in quotes.");
        row("()", "1: A word is missing before \")\". Put it in quotes to search for it.");
        row("not", "3: A word is missing at the end.");
        row("arm or", "6: A word is missing at the end.");
        row("arm and", "7: A word is missing at the end.");
        row("or arm", "0: A word is missing before \"or\". Put it in quotes to search for it.");
        row("arm or and", "7: A word is missing before \"and\". Put it in quotes to search for it.");
        row("\"arm", "0: The closing quote is missing.");
        row("f:", "2: The name of a field is missing after f:.");
        row("f: radius", "2: The name of a field is missing after f:.");
        row("t:", "2: The name of a class is missing after t:, such as t:Mesh.");
        row("~", "1: A text is missing after ~.");
        row("f:radius >", "10: A value is missing after >.");
        row("=", "1: A value is missing after =.");
        row(">abc", "1: \"abc\" isn't known here. There are no variables.");
        row(">\"5\"", "1: Only numbers are greater or less. Texts are compared by = and !=.");
        row(">1,234.5", "1: Signs between thousands can't be read: write 1234.5 for 1,234.5.");
        row("f:radius =1,234.5", "10: Signs between thousands can't be read: write 1234.5 for 1,234.5.");
        row("=1/0", "1: A division by 0 has no result.");
        row("=5x", "2: A multiplication needs its sign: write * before \"x\".");
        row(">nan", "1: Nothing is greater or less than nan. Write =nan to find it.");
        row("f:radius <= nan", "12: Nothing is greater or less than nan. Write =nan to find it.");
        row("/[/", "0: The regular expression has a [ without ].");
        row("arm /(/", "4: The regular expression has a ( without ).");
        row("/)/", "0: The regular expression has a ) without (.");
        row("/*/", "0: The regular expression has \"*\", but nothing before it to repeat.");
        row("/a**/", "0: The regular expression has two repetitions in a row: \"**\".");
        row("/[b-a]/", "0: The regular expression has \"b-a\", which is no range or class of characters.");
        row("/a{1001}/", "0: The regular expression repeats too often or the wrong way round: \"{1001}\".");
        row("/\\q/", "0: The regular expression has \"\\q\", which has no meaning.");
        row("/(?=a)/", "0: The regular expression has \"(?=\", which isn't supported.");
        row("/[[:foo:]]/", "0: The regular expression has \"[:foo:]\", which is no range or class of characters.");
        row("/((a{100}){100}){100}/", "0: The regular expression repeats too often or the wrong way round: \"{100}\".");
        row("f:/[/", "2: The regular expression has a [ without ].");
        row("~/[/", "1: The regular expression has a [ without ].");
    }

    void wrongQueriesHaveMessages()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, message);
        QCOMPARE(QByteArray::fromStdString(errorOf(text.toStdString())), message);
    }

    void queriesHaveLimits()
    {
        QCOMPARE(errorOf(repeated("arm ", 300'000)),
            std::string("4096: The text is longer than 4096 characters, which is the limit of a query."));
        QCOMPARE(errorOf(repeated("(", 64) + "a" + repeated(")", 64)), std::string());
        QCOMPARE(errorOf(repeated("(", 65) + "a" + repeated(")", 65)),
            std::string("64: More than 64 brackets are within each other, which is the limit of a query."));
        QCOMPARE(errorOf(repeated("not ", 1000) + "a"), std::string());
        QCOMPARE(errorOf(repeated("/a/ ", 16)), std::string());
        QCOMPARE(errorOf(repeated("/a/ ", 17)),
            std::string("64: The query has more than 16 regular expressions, which is the limit."));
        QCOMPARE(errorOf(repeated("a or ", 800) + "a"), std::string());
    }

    void rowsHaveFewerRules()
    {
        for (const char* const text : {"=", "~", ">abc", "f:", "t:", "changed", "/robot", "/a/b"})
            QCOMPARE(errorOf(text, Query::Subject::Rows), std::string());
        QVERIFY(errorOf("(a", Query::Subject::Rows).starts_with("0: A closing bracket is missing"));
        QVERIFY(errorOf("/[/", Query::Subject::Rows).starts_with("0: The regular expression"));
    }

    void aRegularExpressionThatIsSlowElsewhereIsFast()
    {
        const auto parsed = Query::parse("/(a*)*b/", Query::Subject::Rows);
        QVERIFY(!std::get<Query>(parsed).matchesText(repeated("a", 100'000)));
    }
};

QTEST_APPLESS_MAIN(TestQueryErrors)
#include "tst_QueryErrors.moc"
