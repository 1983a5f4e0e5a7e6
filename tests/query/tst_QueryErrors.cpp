#include "query/WrongTexts.h"

#include "meridane/query/Query.h"

#include <QTest>

#include <string>

using meridane::Query;
using meridane::QueryError;
using wrong_text::repeated;

/// Queries that are wrong, and how the message says so.
class TestQueryErrors : public QObject {
    Q_OBJECT

private:
    static std::string errorOf(const std::string& text, Query::Subject subject = Query::Subject::Scene)
    {
        const auto parsed = Query::parse(text, subject);
        const auto* const error = std::get_if<QueryError>(&parsed);
        return error != nullptr ? wrong_text::messageOf(*error) : std::string();
    }

private Q_SLOTS:
    void wrongQueriesHaveMessages_data()
    {
        wrong_text::addRows({
            {"(arm", "0: A closing bracket is missing for this opening one. Put brackets to search for in quotes."},
            {"a (b (c)", "2: A closing bracket is missing for this opening one. Put brackets to search for in quotes."},
            {"arm)", "3: An opening bracket is missing for this closing one. Put brackets to search for in quotes."},
            {"()", "1: A word is missing before \")\". Put it in quotes to search for it."},
            {"not", "3: A word is missing at the end."},
            {"arm or", "6: A word is missing at the end."},
            {"arm and", "7: A word is missing at the end."},
            {"or arm", "0: A word is missing before \"or\". Put it in quotes to search for it."},
            {"arm or and", "7: A word is missing before \"and\". Put it in quotes to search for it."},
            {"\"arm", "0: The closing quote is missing."},
            {"f:", "2: The name of a field is missing after f:."},
            {"f: radius", "2: The name of a field is missing after f:."},
            {"t:", "2: The name of a class is missing after t:, such as t:Mesh."},
            {"~", "1: A text is missing after ~."},
            {"f:radius >", "10: A value is missing after >."},
            {"=", "1: A value is missing after =."},
            {">abc", "1: \"abc\" isn't known here. There are no variables."},
            {">\"5\"", "1: Only numbers are greater or less. Texts are compared by = and !=."},
            {">1,234.5", "1: Signs between thousands can't be read: write 1234.5 for 1,234.5."},
            {"f:radius =1,234.5", "10: Signs between thousands can't be read: write 1234.5 for 1,234.5."},
            {"=1/0", "1: A division by 0 has no result."},
            {"=5x", "2: A multiplication needs its sign: write * before \"x\"."},
            {">nan", "1: Nothing is greater or less than nan. Write =nan to find it."},
            {"f:radius <= nan", "12: Nothing is greater or less than nan. Write =nan to find it."},
            {"/[/", "0: The regular expression has a [ without ]."},
            {"arm /(/", "4: The regular expression has a ( without )."},
            {"/)/", "0: The regular expression has a ) without (."},
            {"/*/", "0: The regular expression has \"*\", but nothing before it to repeat."},
            {"/a**/", "0: The regular expression has two repetitions in a row: \"**\"."},
            {"/[b-a]/", "0: The regular expression has \"b-a\", which is no range or class of characters."},
            {"/a{1001}/", "0: The regular expression repeats too often or the wrong way round: \"{1001}\"."},
            {"/\\q/", "0: The regular expression has \"\\q\", which has no meaning."},
            {"/(?=a)/", "0: The regular expression has \"(?=\", which isn't supported."},
            {"/[[:foo:]]/", "0: The regular expression has \"[:foo:]\", which is no range or class of characters."},
            {"/((a{100}){100}){100}/",
                "0: The regular expression repeats too often or the wrong way round: \"{100}\"."},
            {"f:/[/", "2: The regular expression has a [ without ]."},
            {"~/[/", "1: The regular expression has a [ without ]."},
        });
    }

    void wrongQueriesHaveMessages()
    {
        wrong_text::checkRow([](const std::string& text) { return errorOf(text); });
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
