#include "scene/TestNodes.h"

#include "meridane/query/Query.h"

#include <QTest>

#include <string>

using meridane::Query;
using meridane::QueryDraft;

/// Queries while they are being typed.
class TestQueryDraft : public QObject {
    Q_OBJECT

private:
    static QByteArray textOf(const std::optional<meridane::QueryError>& error)
    {
        return error ? QByteArray::fromStdString(std::to_string(error->position) + ": " + error->message)
                     : QByteArray();
    }

private Q_SLOTS:
    void halfTypedQueriesMatchWhatIsComplete_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("same"); // the complete query that means the same
        QTest::addColumn<QByteArray>("missing");
        const auto row = [](const char* text, const char* same, const char* missing) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(same) << QByteArray(missing);
        };
        row("arm", "arm", "");
        row("", "", "");
        row("t:", "", "2: The name of a class is missing after t:, such as t:Mesh.");
        row("arm t:", "arm", "6: The name of a class is missing after t:, such as t:Mesh.");
        row("t: arm", "arm", "2: The name of a class is missing after t:, such as t:Mesh.");
        row("arm f:", "arm", "6: The name of a field is missing after f:.");
        row("arm >", "arm", "5: A value is missing after >.");
        row("arm !", "arm", "5: A value is missing after !=.");
        row("arm ~", "arm", "5: A text is missing after ~.");
        row("f:size >1+", "f:size", "10: A number is missing at the end.");
        row("\"left", "\"left\"", "0: The closing quote is missing.");
        row("arm \"left ar", "arm \"left ar\"", "4: The closing quote is missing.");
        row("\"", "", "0: The closing quote is missing.");
        row("~\"my r", "~\"my r\"", "1: The closing quote is missing.");
        row("=\"my r", "=\"my r\"", "1: The closing quote is missing.");
        row("(left", "left",
            "0: A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
        row("arm (left or (leg", "arm (left or leg)",
            "13: A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
        row("arm (", "arm", "5: A word is missing at the end.");
        row("()", "", "1: A word is missing before \")\". Put it in quotes to search for it.");
        row("not", "", "3: A word is missing at the end.");
        row("arm not", "arm", "7: A word is missing at the end.");
        row("arm or", "arm", "6: A word is missing at the end.");
        row("arm and ", "arm", "8: A word is missing at the end.");
        row("or", "", "0: A word is missing before \"or\". Put it in quotes to search for it.");
        row("arm or an", "arm or an", "");
        row("/", "", "0: A regular expression is missing.");
        row("/ar", "/ar/", "0: The closing / of the regular expression is missing.");
        row("/ab[", "", "0: The regular expression has a [ without ].");
        row("left /ab[", "left", "5: The regular expression has a [ without ].");
        row("left /a(b|", "left", "5: The regular expression has a ( without ).");
        row("left /(left|x) ", "left /(left|x) /", "5: The closing / of the regular expression is missing.");
        row("~/^my", "~/^my/", "1: The closing / of the regular expression is missing.");
        row("/left\\", "", "0: The regular expression ends in a backslash. Write \\\\ to find one.");
    }

    void halfTypedQueriesMatchWhatIsComplete()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, same);
        const QueryDraft draft = Query::parseDraft(text.toStdString());
        QCOMPARE(textOf(draft.error), QByteArray());
        QTEST(textOf(draft.missing), "missing");
        const auto whole = Query::parse(same.toStdString());
        const Query& expected = std::get<Query>(whole);
        QCOMPARE(draft.query.isEmpty(), expected.isEmpty());
        QCOMPARE(draft.query.isAboutFields(), expected.isAboutFields());
        for (const char* const name : {"left arm", "leg", "orange", "an arm", "xl", "armleft"}) {
            const NxRef<ProbeNode> node(new ProbeNode);
            node->setName(name);
            node->title.setValue("My Robot");
            QVERIFY2(draft.query.matches(*node) == expected.matches(*node), name);
        }
    }

    void numbersThatAreBeingTypedAreNoErrors_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char* const text :
            {">-", ">(", ">1e", ">1e-", ">2*", ">sq", ">sqrt(", ">max(1;", "<in", "=-", ">0x", ">1*s", ">1.", ">n"})
            QTest::newRow(text) << QByteArray(text);
    }

    void numbersThatAreBeingTypedAreNoErrors()
    {
        QFETCH(QByteArray, text);
        const QueryDraft draft = Query::parseDraft(text.toStdString());
        QCOMPARE(textOf(draft.error), QByteArray());
        const QueryDraft more = Query::parseDraft("arm " + text.toStdString());
        QCOMPARE(textOf(more.error), QByteArray());
        QVERIFY(!more.query.isEmpty());
    }

    void wrongQueriesAreErrors_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("error");
        const auto row
            = [](const char* text, const char* error) { QTest::newRow(text) << QByteArray(text) << QByteArray(error); };
        row("arm)", "3: An opening bracket is missing for this closing one. Put brackets to search for in quotes.");
        row("t: )", "3: An opening bracket is missing for this closing one. Put brackets to search for in quotes.");
        row("or arm", "0: A word is missing before \"or\". Put it in quotes to search for it.");
        row(">xyz", "1: \"xyz\" isn't known here. There are no variables.");
        row("> arm left", "2: \"arm\" isn't known here. There are no variables.");
        row(">\"5\"", "1: Only numbers are greater or less. Texts are compared by = and !=.");
        row(">1,234.5", "1: Signs between thousands can't be read: write 1234.5 for 1,234.5.");
        row("/[/", "0: The regular expression has a [ without ].");
        row("/[/ arm", "0: The regular expression has a [ without ].");
        row(">nan", "1: Nothing is greater or less than nan. Write =nan to find it.");
    }

    void wrongQueriesAreErrors()
    {
        QFETCH(QByteArray, text);
        const QueryDraft draft = Query::parseDraft(text.toStdString());
        QTEST(textOf(draft.error), "error");
        QVERIFY(draft.query.isEmpty());
    }

    void whatIsCompleteMeansTheSameAsElsewhere()
    {
        for (const char* const text : {"arm", "(arm or leg) not t:Light", "f:size >1 <2", "/arm[0-9]+/ \"left\"",
                 "=nan", "~/x/ changed or ignored", "unused missing"}) {
            const QueryDraft draft = Query::parseDraft(text);
            QVERIFY2(!draft.error && !draft.missing, text);
        }
        const QueryDraft rows = Query::parseDraft("/robot/arm", Query::Subject::Rows);
        QVERIFY(!rows.missing && rows.query.matchesText("Set /robot/arm"));
        const QueryDraft open = Query::parseDraft("/robot", Query::Subject::Rows);
        QVERIFY(!open.missing && open.query.matchesText("Set /robot/arm"));
    }
};

QTEST_APPLESS_MAIN(TestQueryDraft)
#include "tst_QueryDraft.moc"
