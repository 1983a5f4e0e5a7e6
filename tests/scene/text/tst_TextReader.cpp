#include "meridane/scene/text/TextReader.h"

#include <QTest>

#include <limits>

using meridane::TextReader;

namespace {

// The note that a failed operation left: offset and expectation.
std::string note(const TextReader& reader)
{
    return std::to_string(reader.failurePosition()) + ": " + reader.expected();
}

} // namespace

class TestTextReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLineHasSpacesAndTabsForBlanks()
    {
        TextReader reader(" \t x");
        reader.skipBlanks();
        QCOMPARE(reader.position(), std::size_t{3});
        QCOMPARE(reader.peek(), 'x');

        TextReader atLineEnd(" \n#x");
        atLineEnd.skipBlanks();
        QCOMPARE(atLineEnd.peek(), '\n');
    }

    void aFileHasLineEndsAndCommentsForBlanks()
    {
        TextReader reader(" \r\n# one # two\n\t#\n#\r\nx", TextReader::Blanks::File);
        reader.skipBlanks();
        QCOMPARE(reader.peek(), 'x');

        TextReader toTheEnd("#", TextReader::Blanks::File);
        toTheEnd.skipBlanks();
        QVERIFY(toTheEnd.atEnd());
        TextReader unfinished("# comment", TextReader::Blanks::File);
        QVERIFY(unfinished.expectEnd());
    }

    void manyCommentsTakeNoStack()
    {
        std::string text;
        for (int i = 0; i < 1000000; ++i)
            text += "#\n";
        TextReader reader(text, TextReader::Blanks::File);
        QVERIFY(reader.expectEnd());
    }

    void charactersAreAcceptedBehindBlanks()
    {
        TextReader reader("  { }");
        QVERIFY(!reader.accept('}'));
        QVERIFY(reader.expected().empty());
        QVERIFY(reader.accept('{'));
        QVERIFY(reader.expect('}'));
        QVERIFY(!reader.expect('}'));
        QCOMPARE(note(reader), std::string("5: \"}\""));
    }

    void theEndIsExpectedBehindBlanks()
    {
        TextReader reader(" 1 ");
        QVERIFY(!reader.expectEnd());
        QCOMPARE(note(reader), std::string("1: the end of the text"));
        reader.advance(1);
        QVERIFY(reader.expectEnd());
        reader.advance(100);
        QVERIFY(reader.atEnd());
    }

    void numbersEndAtADelimiter_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("rest");
        QTest::newRow("blank") << std::string("12 3") << std::string(" 3");
        QTest::newRow("comma") << std::string("12,3") << std::string(",3");
        QTest::newRow("bracket") << std::string("12]") << std::string("]");
        QTest::newRow("brace") << std::string("12}") << std::string("}");
        QTest::newRow("comment") << std::string("12#3") << std::string("#3");
        QTest::newRow("line end") << std::string("12\n3") << std::string("\n3");
        QTest::newRow("bar") << std::string("12|3") << std::string("|3");
        QTest::newRow("quote") << std::string("12\"") << std::string("\"");
        QTest::newRow("end") << std::string("12") << std::string();
    }

    void numbersEndAtADelimiter()
    {
        QFETCH(const std::string, text);
        QFETCH(const std::string, rest);
        int whole = 0;
        TextReader wholeReader(text);
        QVERIFY(wholeReader.readNumber(whole));
        QCOMPARE(whole, 12);
        QVERIFY(wholeReader.rest() == rest);
        float real = 0;
        TextReader realReader(text);
        QVERIFY(realReader.readNumber(real));
        QCOMPARE(real, 12.0F);
        QVERIFY(realReader.rest() == rest);
    }

    void numbersOutOfRangeNameTheRange()
    {
        short small = 0;
        TextReader shortReader("  40000");
        QVERIFY(!shortReader.readNumber(small));
        QCOMPARE(note(shortReader), std::string("2: a whole number from -32768 to 32767"));
        unsigned int positive = 0;
        TextReader unsignedReader("-1");
        QVERIFY(!unsignedReader.readNumber(positive));
        QCOMPARE(note(unsignedReader), std::string("0: a whole number from 0 to 4294967295"));
        float real = 0;
        TextReader floatReader("1e39");
        QVERIFY(!floatReader.readNumber(real));
        QCOMPARE(note(floatReader), std::string("0: a number that fits in 32 bits"));
        double wide = 0;
        TextReader doubleReader("-1e309");
        QVERIFY(!doubleReader.readNumber(wide));
        QCOMPARE(note(doubleReader), std::string("0: a number that fits in 64 bits"));
        TextReader wordReader("one");
        QVERIFY(!wordReader.readNumber(wide));
        QCOMPARE(note(wordReader), std::string("0: a number"));
    }

    void fractionsTooSmallBecomeZero_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<bool>("negative");
        QTest::newRow("exponent") << std::string("1e-999") << false;
        QTest::newRow("signed") << std::string("-1E-999") << true;
        QTest::newRow("plus") << std::string("+1e-999") << false;
        QTest::newRow("endless exponent") << std::string("1e-99999999999999999999999") << false;
        QTest::newRow("endless fraction") << "0." + std::string(5000, '0') + "1" << false;
        QTest::newRow("digits against the exponent") << "1" + std::string(100, '0') + "e-999" << false;
        QTest::newRow("no digit before the point") << "-." + std::string(5000, '0') + "1e+10" << true;
    }

    void fractionsTooSmallBecomeZero()
    {
        QFETCH(const std::string, text);
        QFETCH(const bool, negative);
        float single = 1;
        QVERIFY(TextReader(text).readNumber(single));
        QCOMPARE(single, 0.0F);
        QCOMPARE(std::signbit(single), negative);
        double wide = 1;
        QVERIFY(TextReader(text).readNumber(wide));
        QCOMPARE(wide, 0.0);
        QCOMPARE(std::signbit(wide), negative);

        // The same digits without what makes them small are too large.
        const std::string large = "1" + std::string(5000, '0') + ".5";
        QVERIFY(!TextReader(large).readNumber(wide));
    }

    void aNumberThatFailsLeavesTheValue()
    {
        int whole = 42;
        QVERIFY(!TextReader("99999999999").readNumber(whole));
        QCOMPARE(whole, 42);
        QVERIFY(!TextReader("7x").readNumber(whole));
        QCOMPARE(whole, 42);
        double real = 42;
        for (const char* text : {"", "7x", "+-7", "1e999"}) {
            QVERIFY(!TextReader(text).readNumber(real));
            QCOMPARE(real, 42.0);
        }
    }

    void wordsEndAtADelimiter()
    {
        TextReader reader("  a-b=c:é|d");
        std::string_view word;
        QVERIFY(reader.readWord(word, "a name"));
        QVERIFY(word == "a-b=c:é");
        QVERIFY(!reader.readWord(word, "a name"));
        QCOMPARE(note(reader), std::string("10: a name"));
    }

    void quotedTextsAreUnescaped()
    {
        TextReader reader(" \"a\\\"b\\\\c\\nd\\te\" \"\\\\\" \"\" x"); // moc can't read it as a raw string
        std::string_view text;
        QVERIFY(reader.readQuoted(text));
        QVERIFY(text == "a\"b\\c\nd\te");
        QVERIFY(reader.readQuoted(text));
        QVERIFY(text == "\\");
        QVERIFY(reader.readQuoted(text));
        QVERIFY(text.empty());
        QVERIFY(!reader.readQuoted(text));
        QCOMPARE(reader.expected(), std::string("a text in double quotes"));
    }

    void quotedTextsWithoutEscapesAreNotCopied()
    {
        const std::string source = "\"plain\"";
        TextReader reader(source);
        std::string_view text;
        QVERIFY(reader.readQuoted(text));
        QVERIFY(text.data() == source.data() + 1);
    }

    void anOpenQuoteIsTheFailure()
    {
        std::string_view text;
        TextReader reader("  \"abc");
        QVERIFY(!reader.readQuoted(text));
        QCOMPARE(note(reader), std::string("2: a text with a closing quote"));
        TextReader escaped("\"a\\\"");
        QVERIFY(!escaped.readQuoted(text));
        QCOMPARE(note(escaped), std::string("0: a text with a closing quote"));
    }

    void anUnknownEscapeIsTheFailure()
    {
        std::string_view text;
        TextReader reader(R"("ab\q")");
        QVERIFY(!reader.readQuoted(text));
        QCOMPARE(note(reader), std::string(R"(3: one of the escapes \", \\, \n and \t)"));
        TextReader cut("\"ab\\");
        QVERIFY(!cut.readQuoted(text));
        QCOMPARE(cut.failurePosition(), std::size_t{3});
    }

    void theFirstFailureStays()
    {
        TextReader reader("  x");
        QVERIFY(!reader.failAt(1, "something"));
        QVERIFY(!reader.expectEnd());
        QCOMPARE(note(reader), std::string("1: something"));
    }

    void anEmptyTextIsAtItsEnd()
    {
        TextReader reader{std::string_view()};
        QVERIFY(reader.atEnd());
        QVERIFY(reader.expectEnd());
        QCOMPARE(reader.peek(), '\0');
        float number = 0;
        QVERIFY(!reader.readNumber(number));
        QCOMPARE(note(reader), std::string("0: a number"));
    }
};

QTEST_APPLESS_MAIN(TestTextReader)
#include "tst_TextReader.moc"
