#include "scene/SceneText.h"

#include <QTest>

/// Every way in which a scene file can be wrong, with the place and the words of the message.
class TestNxSceneReaderErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFileWithoutTheFirstLineIsNoScene_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("message");
        const char* const expected = "test.mrd:1:1: expected the first line of a scene file, \"#mrd 1.0\", found ";
        QTest::newRow("empty") << QByteArray()
                               << QByteArray("test.mrd:1:1: unexpected end of file, expected the first "
                                             "line of a scene file, \"#mrd 1.0\"");
        QTest::newRow("only a byte order mark")
            << QByteArray("\xEF\xBB\xBF")
            << QByteArray("test.mrd:1:1: unexpected end of file, expected the first "
                          "line of a scene file, \"#mrd 1.0\"");
        QTest::newRow("text") << QByteArray("Group { }") << expected + QByteArray("\"Group\"");
        QTest::newRow("empty line first") << QByteArray("\n#mrd 1.0\n") << expected + QByteArray("the end of the line");
        QTest::newRow("blank first") << QByteArray(" #mrd 1.0\n") << expected + QByteArray("\" \"");
        QTest::newRow("zeros") << QByteArray(100, '\0')
                               << expected + QByteArray("\"").append(QByteArray("\\x00").repeated(32)).append("…\"");
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE#\0m\0r\0d\0", 10)
                                << expected + QByteArray("\"\xEF\xBF\xBD\xEF\xBF\xBD\"");
        QTest::newRow("no blank") << QByteArray("#mrd\n") << expected + QByteArray("\"#\"");
    }

    void aFileWithoutTheFirstLineIsNoScene() { checkMessage(); }

    void anotherVersionIsRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("message");
        const char* const expected
            = "test.mrd:1:6: scene files of this version can't be read, expected \"1.0\", found ";
        QTest::newRow("later") << QByteArray("#mrd 2.0\nGroup { }") << expected + QByteArray("\"2.0\"");
        QTest::newRow("later minor") << QByteArray("#mrd 1.1\n") << expected + QByteArray("\"1.1\"");
        QTest::newRow("longer") << QByteArray("#mrd 1.01\n") << expected + QByteArray("\"1.01\"");
        QTest::newRow("more behind it") << QByteArray("#mrd 1.0 Group { }\n") << expected + QByteArray("\"1.0\"");
        QTest::newRow("none") << QByteArray("#mrd \n") << expected + QByteArray("the end of the line");
        QTest::newRow("cut off") << QByteArray("#mrd ") << expected + QByteArray("the end of the file");
    }

    void anotherVersionIsRefused() { checkMessage(); }

    void aWrongStatementIsReportedWithItsPlace_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char* name, const QByteArray& text, const char* message) {
            QTest::newRow(name) << text << QByteArray(message);
        };
        // Nodes
        row("number for a node", "1", "2:1: expected a node, found \"1\"");
        row("closing brace too many", "Group { } }", "2:11: expected a node, found \"}\"");
        row("field outside a node", "shininess = 1", "2:1: a field outside of a node, expected a node");
        row("node without a body", "Group\nMaterial { }",
            "3:1: expected a name in quotes, \"as\" or \"{\", found \"Material\"");
        row("name without a body", "Group \"a\" Material { }", "2:11: expected \"as\" or \"{\", found \"Material\"");
        row("name without quotes", "Group a { }", "2:7: expected a name in quotes, \"as\" or \"{\", found \"a\"");
        row("as without a label", "Group as { }", "2:10: expected a text in double quotes, found \"{\"");
        row("second label", "Group as \"a\" as \"b\" { }", "2:14: expected \"{\", found \"as\"");
        row("wrong escape in a name", "Group \"a\\x\" { }",
            "2:9: expected one of the escapes \\\", \\\\, \\n and \\t, found \"\\x\"");
        row("number in a node", "Group { 1 }", "2:9: expected a field, a node or \"}\", found \"1\"");
        row("closing bracket in a node", "Group { ] }", "2:9: expected a field, a node or \"}\", found \"]\"");
        row("zero byte", QByteArray("Group { \0 }", 11), "2:9: expected a field, a node or \"}\", found \"\\x00\"");
        row("letters that are no identifier", "Größe { }",
            "2:3: expected a name in quotes, \"as\" or \"{\", found \"öße\"");
        row("child of a node that is no group", "Material {\n    Group { }\n}",
            "3:5: a node of class Material holds no others, expected a field or \"}\"");
        row("use in a node that is no group", "Group \"a\" { }\nMaterial { use \"a\" }",
            "3:16: a node of class Material holds no others, expected a field or \"}\"");
        // Fields
        row("no value", "Material { shininess = }", "2:24: expected a value, found \"}\"");
        row("no value in the line", "Material { shininess =\n 1 }",
            "2:23: expected a value, found the end of the line");
        row("comment for a value", "Material { shininess = # 1\n }", "2:24: expected a value, found \"#\"");
        row("no value of an unknown field", "Material { unknown = ; }", "2:22: expected a value, found \";\"");
        row("word for a number", "Material { shininess = shiny }", "2:24: expected a number, found \"shiny\"");
        row("number out of range", "Material { shininess = 1e99 }",
            "2:24: expected a number that fits in 32 bits, found \"1e99\"");
        row("integer out of range", "FieldGallery { sfShort = 40000 }",
            "2:26: expected a whole number from -32768 to 32767, found \"40000\"");
        row("fraction for an integer", "Mesh { indices = [0, 1.5] }", "2:22: expected a whole number, found \"1.5\"");
        row("word for a boolean", "PointLight { on = yes }", "2:19: expected true or false, found \"yes\"");
        row("unknown name of an enumeration", "Mesh { primitive = QUADS }",
            "2:20: expected one of TRIANGLES, LINES, POINTS, found \"QUADS\"");
        row("too few components", "Transform { translation = 1 2 }", "2:31: expected a number, found \"}\"");
        row("too few components in a list", "Mesh { positions = [1 2 3, 4 5] }",
            "2:31: expected a number, found \"]\"");
        row("text without quotes around blanks", "Texture { filePath = a b }",
            "2:24: expected the end of the line or \";\", found \"b\"");
        row("too many components", "Transform { translation = 1 2 3 4 }",
            "2:33: expected the end of the line or \";\", found \"4\"");
        row("two fields without a separator", "Material { shininess = 1 transparency = 1 }",
            "2:26: expected the end of the line or \";\", found \"transparency\"");
        row("image with too few pixels", "Texture { image = 2 2 1 0x00 0x01 }",
            "2:35: expected a whole number, found \"}\"");
        row("image with too large pixels", "Texture { image = 1 1 1 0x100 }",
            "2:25: expected a pixel of 1 bytes, found \"0x100\"");
        row("field twice", "Material { shininess = 1; shininess = 1 }",
            "2:27: the field \"shininess\" is given twice in the node, expected it once");
        row("unknown field twice", "Material { unknown = 1\nignored unknown = 1 }",
            "3:9: the field \"unknown\" is given twice in the node, expected it once");
        row("ignored without equals", "Material { ignored shininess 1 }", "2:30: expected \"=\", found \"1\"");
        row("node for a value of an unknown field", "Group { child = Group { a = 1 } }",
            "2:23: expected the end of the value, found \"{\"");
        row("closing bracket in an unknown value", "Group { a = 1] }",
            "2:14: expected the end of the value, found \"]\"");
        row("column in characters", "Group \"äöü🤖\" { a = \"ß\"; 1 }",
            "2:25: expected a field, a node or \"}\", found \"1\"");
        row("tab as one character", "\tGroup { 1 }", "2:10: expected a field, a node or \"}\", found \"1\"");
        row("long token", "Group { 1234567890123456789012345678901234567890 }",
            "2:9: expected a field, a node or \"}\", found \"12345678901234567890123456789012…\"");
        row("long token of other letters", "Group { ääääääääääääääääääääääää }",
            "2:9: expected a field, a node or \"}\", found \"ääääääääääääääää…\"");
        // References
        row("reference to nothing", "Group \"a\" { use \"b\" }",
            "2:17: no node before here has the name or label \"b\"");
        row("reference to a later node", "use \"a\"\nGroup \"a\" { }",
            "2:5: no node before here has the name or label \"a\"");
        row("reference to no name", "Group { }\nuse \"\"", "3:5: no node before here has the name or label \"\"");
        row("cycle by name", "Group \"a\" {\n    Group { use \"a\" }\n}",
            "3:17: the node \"a\" would hold itself, expected one that ends before here");
        row("cycle by label", "Group as \"a\" { use \"a\" }",
            "2:20: the node \"a\" would hold itself, expected one that ends before here");
        row("use without a name", "Group { use a }", "2:13: expected a text in double quotes, found \"a\"");
        row("use with a body", "Group \"a\" { }\nuse \"a\" { }",
            "3:9: expected the end of the line or \";\", found \"{\"");
        // Cut off
        row("cut off in a node", "Group {\n    Material \"m\" {\n",
            "4:1: unexpected end of file, expected \"}\" behind the node of class Material that begins in line 3");
        row("cut off behind a class", "Group",
            "2:6: unexpected end of file, expected a name in quotes, \"as\" or \"{\"");
        row("cut off behind a name", "Group \"a\"", "2:10: unexpected end of file, expected \"as\" or \"{\"");
        row("cut off in a name", "Group \"abc", "2:7: expected a text with a closing quote, found \"abc");
        row("cut off behind equals", "Material { shininess =", "2:23: unexpected end of file, expected a value");
        row("cut off in a vector", "Transform { center = 1 2", "2:25: unexpected end of file, expected a number");
        row("cut off in a list", "Mesh { positions = [1 2 3,", "2:27: unexpected end of file, expected a number");
        row("cut off in an unknown list", "Mesh { unknown = [1 2 3, ", "2:26: unexpected end of file, expected \"]\"");
        row("cut off in an unknown text", "Mesh { unknown = \"1 2 3\n\n",
            "4:1: unexpected end of file, expected a closing quote");
        row("cut off behind use", "Group { } use", "2:14: unexpected end of file, expected a text in double quotes");
        row("use for a class", "use { }", "2:5: expected a text in double quotes, found \"{\"");
        row("ignored for a class", "Group { ignored { } }", "2:17: expected a field, found \"{\"");
        row("ignored in front of a child", "Group { ignored Material { } }", "2:26: expected \"=\", found \"{\"");
        row("cut off behind ignored", "Group { ignored a", "2:18: unexpected end of file, expected \"=\"");
    }

    void aWrongStatementIsReportedWithItsPlace()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, message);
        const NxReadFailure failure = SceneText::failure(SceneText::file(text.toStdString()));
        QCOMPARE(QByteArray::fromStdString(failure.text()), "test.mrd:" + message);
        QVERIFY(!SceneText::read(SceneText::file(text.toStdString())));
    }

    void everyCutOffFileIsRefusedOrWhole()
    {
        const std::string whole
            = SceneText::file("Transform \"a\" as \"b\" {\n    translation = 1 2 3\n"
                              "    unknown = [1, \"x\"]\n    Material { }\n    use \"b\\\"c\"\n}\n");
        const std::string good = SceneText::file("Transform \"a\" as \"b\" {\n    translation = 1 2 3\n"
                                                 "    unknown = [1, \"x\"]\n    Material { }\n}\n");
        QVERIFY(!SceneText::read(whole));
        for (std::size_t length = 0; length < good.size() - 1; ++length) {
            const NxReadFailure failure = SceneText::failure(good.substr(0, length));
            if (length == 8 || length == 9) // the first line alone
                QVERIFY(failure.message.empty());
            else
                QVERIFY2(
                    failure.line > 0 && failure.column > 0 && !failure.message.empty(), good.substr(0, length).c_str());
        }
        QVERIFY(SceneText::read(good.substr(0, good.size() - 1)));
    }

    void invalidUtf8IsFoundInEveryBlock_data()
    {
        QTest::addColumn<int>("ahead");
        for (const int ahead :
            {0, 1, 65500, 65520, 65521, 65522, 65523, 65524, 65525, 65526, 65527, 65528, 65540, 200000})
            QTest::newRow(qPrintable(QString::number(ahead))) << ahead;
    }

    void invalidUtf8IsFoundInEveryBlock()
    {
        QFETCH(int, ahead);
        const std::string filling = "#mrd 1.0\n#" + std::string(static_cast<std::size_t>(ahead), 'x');
        QVERIFY(SceneText::read(filling + "\xF0\x9F\xA4\x96 \xC3\xA9"));
        for (const char* invalid : {"\xFF", "\xC3", "\xF0\x9F\xA4", "\xC0\x80", "\xED\xA0\x80", "\x80"}) {
            for (const char* behind : {"", "\n", "\nGroup { }"}) {
                const NxReadFailure failure = SceneText::failure(filling + invalid + behind);
                QCOMPARE(failure.message, std::string("invalid UTF-8, expected a text in UTF-8"));
                QCOMPARE(failure.line, 2);
                QCOMPARE(failure.column, ahead + 2);
            }
        }
    }

    void nestingBombsAreRefused()
    {
        std::string bomb;
        for (int i = 0; i < 200000; ++i)
            bomb += "Group{";
        const NxReadFailure failure = SceneText::failure(SceneText::file(bomb));
        QCOMPARE(QByteArray::fromStdString(failure.text()),
            QByteArray("test.mrd:2:3073: nodes nested deeper than 512 levels"));
        const std::string brackets = "Group { unknown = " + std::string(1000000, '[');
        QCOMPARE(SceneText::failure(SceneText::file(brackets)).message,
            std::string("unexpected end of file, expected \"]\""));
        QVERIFY(SceneText::read(SceneText::file(brackets + std::string(1000000, ']') + " }")));
    }

    void longTokensAreRefused()
    {
        const std::string limit(65536, 'n');
        const std::string mebibyte(1 << 20, 'n');
        QVERIFY(SceneText::read(SceneText::file(limit + " { " + limit + " = 1 }")));
        QVERIFY(SceneText::read(SceneText::file("Group \"" + limit.substr(2) + "\" { }")));
        QVERIFY(SceneText::read(SceneText::file("Group { text = \"" + mebibyte + "\" }")));
        QVERIFY(SceneText::read(SceneText::file("Texture { filePath = \"" + mebibyte + "\" }")));
        const std::string word = ": expected a word of at most 65536 bytes, found \"" + limit.substr(0, 32) + "…\"";
        const std::string name = ": expected a name of at most 65536 bytes, found \"" + limit.substr(0, 31) + "…\"";
        QCOMPARE(SceneText::failure(SceneText::file(limit + "n { }")).text(), "test.mrd:2:1" + word);
        QCOMPARE(SceneText::failure(SceneText::file("Group { " + mebibyte + " = 1 }")).text(), "test.mrd:2:9" + word);
        QCOMPARE(
            SceneText::failure(SceneText::file("Group \"" + limit.substr(1) + "\" { }")).text(), "test.mrd:2:7" + name);
        QCOMPARE(
            SceneText::failure(SceneText::file("Group as \"" + mebibyte + "\" { }")).text(), "test.mrd:2:10" + name);
        QCOMPARE(
            SceneText::failure(SceneText::file("Group { use \"" + mebibyte + "\" }")).text(), "test.mrd:2:13" + name);
    }

private:
    static void checkMessage()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, message);
        QCOMPARE(QByteArray::fromStdString(SceneText::failure(text.toStdString()).text()), message);
    }
};

QTEST_APPLESS_MAIN(TestNxSceneReaderErrors)
#include "tst_NxSceneReaderErrors.moc"
