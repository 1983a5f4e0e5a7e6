#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/VbText.h"
#include "orvane/extender/detail/ProfileReader.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestProfileReader : public QObject {
    Q_OBJECT

    static OrvProfile::ReadResult read(const QByteArray& json) { return OrvProfile::fromJson(json, u"my.json"_s); }

private Q_SLOTS:
    // Work that grows with the square of the number of names takes longer than this program may run.
    void twoHundredThousandNamesAreReadAndResolved()
    {
        constexpr int count = 200000;
        QByteArray controlled;
        QByteArray entries;
        for (int i = 0; i < count; ++i) {
            controlled += (i == 0 ? "\"" : ", \"") + QByteArray::number(i) + '"';
            entries += ", \"e" + QByteArray::number(i) + "\": false";
        }
        OrvProfile::ReadResult result
            = read("{\"name\": \"P\", \"extensions\": {\"a\": [" + controlled + "]" + entries + "}}");
        QCOMPARE(result.error, QString());
        const QStringList missing = result.profile->resolve({});
        QCOMPARE(missing.size(), count + 1);
        QCOMPARE(missing.first(), u"a"_s);
        QCOMPARE(missing.last(), QString::number(count - 1));
        // One that comes twice is still found.
        result = read("{\"name\": \"P\", \"extensions\": {\"a\": [" + controlled + ", \"7\"]}}");
        QVERIFY2(result.error.endsWith(u"\"7\" is in the list twice"_s), qPrintable(result.error));
    }

    void aBadProfileIsRefusedWithItsPlace_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("message");

        const auto row = [](const char* name, const QByteArray& json, const char* message) {
            QTest::newRow(name) << json << QString::fromUtf8(message);
        };
        // Syntax.
        row("empty", "", "1:1: expected an object, the profile, and found the end of the file");
        row("blank", " \n\t ", "2:3: expected an object, the profile, and found the end of the file");
        row("a list", "[]", "1:1: expected an object, the profile, and found a list");
        row("a word", "profile", "1:1: unexpected \"profile\"");
        row("a comment", "// hello\n{}", "1:1: unexpected \"/\"");
        row("no closing brace", R"({"name": "P", "extensions": {})",
            "1:31: expected \",\" or \"}\", and found the end of the file");
        row("cut off in a text", "{\n  \"name", "2:3: the text that begins here has no closing quotation mark");
        row("cut off behind a backslash", "{\"na\\", "1:5: there is no such escape sequence");
        row("no colon", R"({"name" "P"})", "1:9: expected \":\", and found the text \"P\"");
        row("no comma", R"({"name": "P" "extensions": {}})",
            "1:14: expected \",\" or \"}\", and found the text \"extensions\"");
        row("comma too many", R"({"name": "P", })", "1:15: expected a key, and found \"}\"");
        row("comma too many in a list", R"({"extensions": {"a": ["b", ]}})",
            "1:28: expected the name of an extension, and found \"]\"");
        row("no comma in a list", R"({"extensions": {"a": ["b" "c"]}})",
            "1:27: expected \",\" or \"]\", and found the text \"c\"");
        row("key without quotation marks", R"({name: "P"})", "1:2: unexpected \"name\"");
        row("something behind it", R"({"name": "P", "extensions": {}} {})",
            "1:33: expected nothing behind the profile, and found an object");
        row("bad escape", R"({"name": "a\q"})", "1:12: there is no such escape sequence");
        row("bad code", R"({"name": "a\u12x4"})", "1:12: there is no such escape sequence");
        row("code cut off", "{\"name\": \"a\\u12", "1:12: there is no such escape sequence");
        row("signed code", R"({"name": "a\u+123"})", "1:12: there is no such escape sequence");
        row("line break in a text", "{\"name\": \"a\nb\"}", "1:12: a control character in a text must be escaped");
        row("bad number", R"({"name": 01})", "1:10: unexpected \"01\"");
        row("word of letters and marks", R"({"name": -a_b.c+1})", "1:10: unexpected \"-a_b.c+1\"");
        row("NUL", QByteArray("{\0}", 3), "1:2: unexpected \"\uFFFD\"");
        // Encoding; the column counts characters.
        row("invalid UTF-8", "{\n \"name\": \"\xC3\xA9\xFF\"}", "2:12: it isn't valid UTF-8");
        row("UTF-16", QByteArray("\xFF\xFE{\0", 4), "1:1: it isn't valid UTF-8");
        row("place behind wide characters", "{\"name\": \"\xF0\x9F\x98\x80\" 1}",
            "1:14: expected \",\" or \"}\", and found a number");
        // Keys.
        row("no name", R"({"extensions": {}})", "1:1: the profile has no \"name\"");
        row("no extensions", "\n {\"name\": \"P\"}", "2:2: the profile has no \"extensions\"");
        row("nothing at all", "{}", "1:1: the profile has no \"name\"");
        row("unknown key", R"({"name": "P", "Extensions": {}})",
            "1:15: a profile has a \"name\" and \"extensions\", but no \"Extensions\"");
        row("unknown key that would break the line", R"({"a\nb\u2028": 1})",
            "1:2: a profile has a \"name\" and \"extensions\", but no \"a\uFFFDb\uFFFD\"");
        row("unknown key with the other line separator", R"({"a\u2029": 1})",
            "1:2: a profile has a \"name\" and \"extensions\", but no \"a\uFFFD\"");
        row("unknown key of a rare character", R"({"\ud83d\ude00": 1})",
            "1:2: a profile has a \"name\" and \"extensions\", but no \"\U0001F600\"");
        row("unknown key of great length", "{\"" + QByteArray(5000, 'k') + "\": 1}",
            "1:2: a profile has a \"name\" and \"extensions\", but no "
            "\"kkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkk\u2026\"");
        row("name twice", R"({"name": "P", "name": "Q"})", "1:15: \"name\" occurs here for the second time");
        row("extension twice", R"({"extensions": {"a": true, "a": true}})",
            "1:28: \"a\" occurs here for the second time");
        row("extension twice by escape", R"({"extensions": {"a": true, "\u0061": true}})",
            "1:28: \"a\" occurs here for the second time");
        row("star twice", R"({"extensions": {"*": true, "*": []}})", "1:28: \"*\" occurs here for the second time");
        // Values.
        row("empty name", R"({"name": ""})", "1:10: the profile's name is empty");
        row("blank name", R"({"name": " \t"})", "1:10: the profile's name is empty");
        row("name is a number", R"({"name": 7})", "1:10: expected a text, the profile's name, and found a number");
        row("name is a colon", R"({"name": :})", "1:10: expected a text, the profile's name, and found \":\"");
        row("name is a comma", R"({"name": ,})", "1:10: expected a text, the profile's name, and found \",\"");
        row("name is false", R"({"name": false})", "1:10: expected a text, the profile's name, and found false");
        row("name is null", R"({"name": null})", "1:10: expected a text, the profile's name, and found null");
        row("extensions are a list", R"({"extensions": ["a"]})",
            "1:16: expected an object, the extensions, and found a list");
        row("extension is a text", R"({"extensions": {"a": "b"}})",
            "1:22: expected true, false or a list of names, and found the text \"b\"");
        row("extension is null", R"({"extensions": {"a": null}})",
            "1:22: expected true, false or a list of names, and found null");
        row("extension is an object", R"({"extensions": {"a": {}}})",
            "1:22: expected true, false or a list of names, and found an object");
        row("extension without a name", R"({"extensions": {"": true}})", "1:17: the name of an extension is empty");
        row("controlled is a boolean", R"({"extensions": {"a": [true]}})",
            "1:23: expected the name of an extension, and found true");
        row("controlled without a name", R"({"extensions": {"a": [""]}})", "1:23: the name of an extension is empty");
        row("controlled twice", R"({"extensions": {"a": ["b", "b"]}})", "1:28: \"b\" is in the list twice");
        row("controls itself", R"({"extensions": {"a": ["b", "a"]}})", "1:28: \"a\" can't control itself");
        row("deeply nested", R"({"extensions": {"a": )" + QByteArray(100000, '['),
            "1:23: expected the name of an extension, and found a list");
    }
    void aBadProfileIsRefusedWithItsPlace()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, message);
        const auto result = read(json);
        QVERIFY(result.profile == nullptr);
        QCOMPARE(result.error, u"my.json:"_s + message);
    }

    void everyFormOfTextIsRead_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << QByteArray("Plain") << u"Plain"_s;
        QTest::newRow("UTF-8") << QByteArray("\xC3\x9C\xF0\x9F\x98\x80") << u"Ü\U0001F600"_s;
        QTest::newRow("simple escapes") << QByteArray(R"(\"\\\/\b\f\n\r\t)") << u"\"\\/\b\f\n\r\t"_s;
        QTest::newRow("codes") << QByteArray(R"(\u00dc\u00DC)") << u"ÜÜ"_s;
        QTest::newRow("surrogates") << QByteArray(R"(\ud83d\ude00)") << u"\U0001F600"_s;
    }
    void everyFormOfTextIsRead()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, name);
        const auto result = read("\t{\r\n\"extensions\":{},\"name\":\"" + text + "\"}\n\n");
        QVERIFY2(result.profile != nullptr, qPrintable(result.error));
        QCOMPARE(orvane::toQString(result.profile->getName()), name);
    }
};

QTEST_APPLESS_MAIN(TestProfileReader)
#include "tst_ProfileReader.moc"
