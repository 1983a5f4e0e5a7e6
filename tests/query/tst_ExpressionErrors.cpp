#include "query/ExpressionText.h"

#include <QTest>

using wrong_text::repeated;

/// What can't be calculated, and how the message says so.
class TestExpressionErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wrongTextsHaveMessages_data()
    {
        wrong_text::addRows({
            // Signs between thousands.
            {"1,234.5", "0: Signs between thousands can't be read: write 1234.5 for 1,234.5."},
            {"1.234,5", "0: Signs between thousands can't be read: write 1234.5 for 1.234,5."},
            {"1'234", "0: Signs between thousands can't be read: write 1234 for 1'234."},
            {"1\u2019234", "0: Signs between thousands can't be read: write 1234 for 1'234."},
            {"1 234", "0: Signs between thousands can't be read: write 1234 for 1 234."},
            {"1\u00A0234,5", "0: Signs between thousands can't be read: write 1234.5 for 1 234,5."},
            {"12 345 678", "0: Signs between thousands can't be read: write 12345678 for 12 345 678."},
            {"1,234,567", "0: Signs between thousands can't be read: write 1234567 for 1,234,567."},
            {"1.234.567,8", "0: Signs between thousands can't be read: write 1234567.8 for 1.234.567,8."},
            {"2*1,234.5", "2: Signs between thousands can't be read: write 1234.5 for 1,234.5."},
            {"1.2.3", "0: 1.2.3 isn't a number: it may have one decimal sign and no other signs."},
            {"1,2.3", "0: 1,2.3 isn't a number: it may have one decimal sign and no other signs."},
            {"1,234,5", "0: 1,234,5 isn't a number: it may have one decimal sign and no other signs."},
            // Numbers.
            {"", "0: A number or a formula is missing."},
            {"   ", "3: A number or a formula is missing."},
            {"1e999", "0: The number 1e999 is too large."},
            {"0x", "0: Digits from 0 to 9 and from a to f are missing after 0x."},
            {"0xFFFFFFFFFFFFFFFFFFFF", "0: The number 0xFFFFFFFFFFFFFFFFFFFF is too large."},
            {"1,", "1: A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon."},
            {"1 2", "2: A sign such as + or * is missing before \"2\"."},
            {"2x", "1: A multiplication needs its sign: write * before \"x\"."},
            {"2(3)", "1: A multiplication needs its sign: write * before the bracket."},
            {"(2)(3)", "3: A multiplication needs its sign: write * before the bracket."},
            {"x x", "2: A multiplication needs its sign: write * before \"x\"."},
            {"0x1Fg", "4: A multiplication needs its sign: write * before \"g\"."},
            // Signs and brackets.
            {"1+", "2: A number is missing at the end."},
            {"*1", "0: A number is missing before \"*\"."},
            {"1+*2", "2: A number is missing before \"*\"."},
            {"(1", "0: A closing bracket is missing for this opening one."},
            {"1)", "1: An opening bracket is missing for this closing one."},
            {"()", "1: A number is missing before \")\"."},
            {"(1;2)", "2: A semicolon separates the arguments of a function, and there is no function here."},
            {"1;2", "1: A semicolon separates the arguments of a function, and there is no function here."},
            {"10%3", "3: A sign such as + or * is missing before \"3\"."},
            {"0 < x < 1", "6: Two comparisons in a row: write them apart, such as 0 < x and x < 1."},
            {"2 * not x", "4: Write \"not\" and what follows it in brackets."},
            {"x = !x", "4: Write \"!\" and what follows it in brackets."},
            {"-not x", "1: Write \"not\" and what follows it in brackets."},
            {"-", "1: A number is missing at the end."},
            {"x%%", "2: Two units in a row: write brackets before \"%\"."},
            {"and", "0: A number is missing before \"and\"."},
            {"x and", "5: A number is missing at the end."},
            {"x > 1 ? 2 : 3", "6: Write if(condition; then; otherwise) instead of \"?\"."},
            // Names and functions.
            {"foo", "0: \"foo\" isn't known here. The variables are: x."},
            {"1+foo*2", "2: \"foo\" isn't known here. The variables are: x."},
            {"sin", "0: The function sin needs its argument in brackets: sin(1)."},
            {"max 1", "0: The function max needs its argument in brackets: max(1; 2)."},
            {"sin()", "4: A number is missing before \")\"."},
            {"sin(1; 2)", "3: sin takes 1 argument, not 2."},
            {"max(1)", "3: max takes 2 or more arguments, not 1."},
            {"max(1,2)",
                "3: max takes 2 or more arguments, not 1. A comma is a decimal sign: separate arguments with a "
                "semicolon."},
            {"max(1, 2)",
                "5: A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon."},
            {"pow(1; 2; 3)", "3: pow takes 2 arguments, not 3."},
            {"log(10)", "0: \"log\" has several meanings: write ln, log2 or log10."},
            // What the library itself could do.
            {"x = 5; x", "5: A semicolon separates the arguments of a function, and there is no function here."},
            {"\"text\"", "0: A number is missing before \"\"\"."},
            {"1 \"a\"", "2: \"\"\" has no meaning in a formula."},
            {"x & 1", "2: \"&\" has no meaning in a formula."},
            {"x | 1", "2: \"|\" has no meaning in a formula."},
            {"_pi", "0: \"_pi\" isn't known here. The variables are: x."},
            {"v0", "0: \"v0\" isn't known here. The variables are: x."},
            {"1#2", "1: \"#\" has no meaning in a formula."},
            {"\u65E5", "0: \"\u65E5\" has no meaning in a formula."},
            {"1+\u00E9", "2: \"\u00E9\" has no meaning in a formula."},
            {"\xFF", "0: \"\uFFFD\" has no meaning in a formula."},
            {"1\x01", "1: \"\\x01\" has no meaning in a formula."},
            // Values.
            {"1/0", "0: A division by 0 has no result."},
            {"1/(x-2)", "0: A division by 0 has no result."},
            {"0/0", "0: The result isn't defined, such as 0 divided by 0 or the square root of a negative number."},
            {"sqrt(-1)",
                "0: The result isn't defined, such as 0 divided by 0 or the square root of a negative number."},
            {"mod(1; 0)",
                "0: The result isn't defined, such as 0 divided by 0 or the square root of a negative number."},
            {"ln(0)", "0: The result is infinite, such as the logarithm of 0 or a negative power of 0."},
            {"0^-1", "0: The result is infinite, such as the logarithm of 0 or a negative power of 0."},
            {"1e308*10", "0: The result is too large for a number."},
            {"10^400", "0: The result is too large for a number."},
            {"2^2^2^2^2^2^2", "0: The result is too large for a number."},
        });
    }

    void wrongTextsHaveMessages()
    {
        wrong_text::checkRow([](const std::string& text) { return resultOf(text); });
    }

    void anUnknownFunctionListsTheKnownOnes()
    {
        const std::string message = resultOf("foo(1)");
        QVERIFY(message.starts_with("0: There is no function \"foo\". There are: sin, cos, "));
        QVERIFY(message.ends_with("degrees."));
    }

    void longTextsAreRefusedAtOnce()
    {
        const std::string limit = ": The text is longer than 4096 characters, which is the limit of a formula.";
        QCOMPARE(resultOf(repeated("1+", 500'000) + "1"), "4096" + limit);
        QCOMPARE(resultOf(repeated("(", 100'000) + "1" + repeated(")", 100'000)), "4096" + limit);
        QCOMPARE(resultOf(repeated("1", 1'000'000)), "4096" + limit);
        QCOMPARE(resultOf(repeated("1+", 2047) + "1"), std::string("2048"));
    }

    void bracketsHaveALimit()
    {
        QCOMPARE(resultOf(repeated("(", 64) + "1" + repeated(")", 64)), std::string("1"));
        QCOMPARE(resultOf(repeated("sqrt(", 64) + "1" + repeated(")", 64)), std::string("1"));
        QCOMPARE(resultOf(repeated("(", 65) + "1" + repeated(")", 65)),
            std::string("64: More than 64 brackets are within each other, which is the limit of a formula."));
        QCOMPARE(resultOf(repeated("abs(", 1000)),
            std::string("259: More than 64 brackets are within each other, which is the limit of a formula."));
    }

    void longChainsAreEvaluated()
    {
        QCOMPARE(resultOf("1" + repeated("^1", 2047)), std::string("1"));
        QCOMPARE(resultOf(repeated("-", 4000) + "1"), std::string("1"));
        QCOMPARE(resultOf(repeated("!", 4000) + "1"), std::string("1"));
        QCOMPARE(resultOf("5" + repeated("%", 4000)), std::string("0"));
        QCOMPARE(resultOf("max(1" + repeated(";1", 2000) + ")"), std::string("1"));
        QCOMPARE(resultOf("0.5" + repeated("\u00B0", 2040), {.isAngle = true}), std::string("0"));
        QVERIFY(resultOf("2" + repeated("^2", 2047)).ends_with("too large for a number."));
    }

    void messagesQuoteTheBeginningOfALongWord()
    {
        const std::string message = resultOf(repeated("a", 4000));
        QVERIFY(message.size() < 200);
        QVERIFY(message.starts_with("0: \"aaaa"));
    }
};

QTEST_APPLESS_MAIN(TestExpressionErrors)
#include "tst_ExpressionErrors.moc"
