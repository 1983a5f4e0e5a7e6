#include "query/ExpressionText.h"

#include <QTest>

#include <clocale>
#include <locale>
#include <numbers>

using meridane::Expression;
using meridane::numberText;

/// Numbers and formulas as people write them.
class TestExpression : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formulasHaveValues_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("value");
        const auto row
            = [](const char* text, const char* value) { QTest::newRow(text) << QByteArray(text) << QByteArray(value); };
        // Numbers.
        row("0", "0");
        row("231", "231");
        row("0.5", "0.5");
        row("0,5", "0.5");
        row("3,5", "3.5");
        row("2.5", "2.5");
        row(",5", "0.5");
        row(".5", "0.5");
        row("5.", "5");
        row("1,234", "1.234");
        row("1.234", "1.234");
        row("007", "7");
        row("1e3", "1000");
        row("1,5e3", "1500");
        row("1E-3", "0.001");
        row("1e+3", "1000");
        row("1e-999", "0");
        row("0x1F", "31");
        row("0X1f", "31");
        row("0x1F+1", "32");
        row("0.1", "0.1");
        row("4.9e-324", "5e-324");
        row("1.7976931348623157e308", "1.7976931348623157e+308");
        row("50%", "0.5");
        row("7%", "0.07");
        row("50 %", "0.5");
        row("50%%", "0.005");
        row("(1+1)%", "0.02");
        row("x%", "0.02");
        row("(x%)%", "2e-04");
        row("max(x; 1)%", "0.02");
        row("x*50%", "1");
        row("2^50%", "1.4142135623730951");
        row("-50%", "-0.5");
        // As pasted.
        row("  1.5\t\n", "1.5");
        row("\u00A01.5\u00A0", "1.5");
        row("\u202F1.5\u2009", "1.5");
        row("\uFEFF1.5", "1.5");
        row("\u22121.5", "-1.5");
        row("\u20131.5", "-1.5");
        row("2\u00D73\u00F74", "1.5");
        row("\u0663\u066B\u0665", "3.5");
        row("\u061C-\u0663", "-3");
        row("\u06F1\u06F2", "12");
        row("\u0665\u0660\u066A", "0.5");
        row("max(1\u061B 2)", "2");
        row("\uFF11\uFF12", "12");
        row("2*\u03C0", "6.283185307179586");
        row("x \u2265 2", "1");
        row("x \u2260 2", "0");
        // Signs.
        row("2*3+1", "7");
        row("1+2*3", "7");
        row("(1+2)*3", "9");
        row("2^3^2", "512");
        row("2**3", "8");
        row("-2^2", "-4");
        row("(-2)^2", "4");
        row("2^-1", "0.5");
        row("2--3", "5");
        row("2-+-3", "5");
        row("+5", "5");
        row("--5", "5");
        row("7/2", "3.5");
        row("1-2-3", "-4");
        row("8/4/2", "1");
        row("1e3+1", "1001");
        row("1,5+1.5", "3");
        // Variables and constants.
        row("x", "2");
        row("X", "2");
        row("x+1", "3");
        row("x*x", "4");
        row("-x^2", "-4");
        row("pi", "3.141592653589793");
        row("PI", "3.141592653589793");
        row("e", "2.718281828459045");
        // Comparisons.
        row("x > 1", "1");
        row("x < 1", "0");
        row("x = 2", "1");
        row("x == 2", "1");
        row("x != 2", "0");
        row("x <> 2", "0");
        row("x >= 2", "1");
        row("x <= 2", "1");
        row("x > 0 and x < 1", "0");
        row("x > 0 AND x < 3", "1");
        row("x > 5 or x = 2", "1");
        row("x > 5 || x = 2 && 1", "1");
        row("not x > 5", "1");
        row("not (x > 1)", "0");
        row("!(x > 1)", "0");
        row("not not x", "1");
        row("not -x", "0");
        row("-(not x)", "-0");
        row("not x > 5 and not x < 1", "1");
        row("if(not x; 1; not x = 3)", "1");
        row("- - -x", "-2");
        row("not x = 3 and x = 2", "1");
        row("1 + (x > 1)", "2");
        row("0 < x and x < 3", "1");
        row("if(x > 1; 10; 20)", "10");
        row("if(x > 5; 10; 20)", "20");
        // Functions.
        row("sin(0)", "0");
        row("SIN(0)", "0");
        row("cos(pi)", "-1");
        row("tan(0)", "0");
        row("asin(1)*2", "3.141592653589793");
        row("acos(1)", "0");
        row("atan(0)", "0");
        row("atan2(1; 0)", "1.5707963267948966");
        row("sinh(0)", "0");
        row("cosh(0)", "1");
        row("tanh(0)", "0");
        row("exp(0)", "1");
        row("ln(e)", "1");
        row("log2(8)", "3");
        row("log10(1000)", "3");
        row("sqrt(16)", "4");
        row("cbrt(8)", "2");
        row("pow(2; 10)", "1024");
        row("hypot(3; 4)", "5");
        row("abs(-3)", "3");
        row("sign(-3)", "-1");
        row("floor(-1.5)", "-2");
        row("ceil(1,2)", "2");
        row("round(2.5)", "3");
        row("round(-2.5)", "-3");
        row("trunc(-1.7)", "-1");
        row("mod(7; 4)", "3");
        row("mod(-1; 4)", "3");
        row("min(3; 1; 2)", "1");
        row("max(1,5; 2.5)", "2.5");
        row("max (1 ; 2)", "2");
        row("clamp(7; 0; 1)", "1");
        row("clamp(-7; 0; 1)", "0");
        row("mix(10; 20; 25%)", "12.5");
        row("radians(180)", "3.141592653589793");
        row("degrees(pi)", "180");
        row("max(min(1; 2); -(3))", "1");
        row("((((x))))", "2");
    }

    void formulasHaveValues()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, value);
        QCOMPARE(QByteArray::fromStdString(resultOf(text.toStdString())), value);
    }

    void formulasMeanTheSameInEveryLocale()
    {
        const std::string before = std::setlocale(LC_ALL, nullptr);
        for (const char* const name : {"de_DE.UTF-8", "fr_FR.UTF-8", "ar_EG.UTF-8", "C"}) {
            std::setlocale(LC_ALL, name); // where it isn't installed, the one before remains
            QCOMPARE(resultOf("1,5 + 1.25"), std::string("2.75"));
            QCOMPARE(resultOf("sqrt(2,25)"), std::string("1.5"));
        }
        std::setlocale(LC_ALL, before.c_str());
    }

    void degreesAreForAngles()
    {
        const Expression::Context angle{.isAngle = true};
        QCOMPARE(resultOf("180deg", angle), numberText(std::numbers::pi));
        QCOMPARE(resultOf("90 deg", angle), numberText(std::numbers::pi / 2));
        QCOMPARE(resultOf("45\u00B0", angle), numberText(std::numbers::pi / 4));
        QCOMPARE(resultOf("(30+60) deg", angle), numberText(std::numbers::pi / 2));
        QCOMPARE(resultOf("x + 90deg", angle, {1}), numberText(1 + std::numbers::pi / 2));
        QCOMPARE(resultOf("x deg", angle, {180}), numberText(std::numbers::pi));
        QCOMPARE(resultOf("1.5 rad", angle), std::string("1.5"));
        QCOMPARE(resultOf("1.5", angle), std::string("1.5"));
        QCOMPARE(resultOf("45deg"), std::string("2: \"deg\" is for angles, and this isn't an angle."));
        QCOMPARE(resultOf("45\u00B0"), std::string("2: \"\u00B0\" is for angles, and this isn't an angle."));
        QCOMPARE(resultOf("1 rad"), std::string("2: \"rad\" is for angles, and this isn't an angle."));
    }

    void infinityIsForFieldsThatTakeIt()
    {
        const Expression::Context context{.mayBeInfinite = true};
        QCOMPARE(resultOf("inf", context), std::string("inf"));
        QCOMPARE(resultOf("-Infinity", context), std::string("-inf"));
        QCOMPARE(resultOf("NaN", context), std::string("nan"));
        QCOMPARE(resultOf("min(inf; 5)", context), std::string("5"));
        QCOMPARE(resultOf("x + 1", context, {std::numeric_limits<double>::infinity()}), std::string("inf"));
        QCOMPARE(resultOf("5", context, {std::numeric_limits<double>::quiet_NaN()}), std::string("5"));
        QCOMPARE(resultOf("1/0", context), std::string("0: A division by 0 has no result."));
        for (const char* const text : {"inf", "nan", "Infinity"})
            QVERIFY(resultOf(text).ends_with("can't be used here: a finite number is needed."));
        QCOMPARE(resultOf("x + 1", {}, {std::numeric_limits<double>::infinity()}),
            std::string("0: x is inf, which isn't a number to calculate with."));
        QCOMPARE(
            resultOf("inf", {.mayBeInfinite = true, .isWhole = true}), std::string("0: inf isn't a whole number."));
    }

    void wholeNumbersAreRequiredWhereTheContextSaysSo()
    {
        const Expression::Context context{.isWhole = true};
        QCOMPARE(resultOf("7/2", context), std::string("0: 3.5 isn't a whole number."));
        QCOMPARE(resultOf("round(7/2)", context), std::string("4"));
        QCOMPARE(resultOf("1e300", context), std::string("1e+300"));
    }

    void variablesHaveNames()
    {
        const Expression::Context context{.variables = {"x", "y", "z", "i", "m00", "min", "E"}};
        const std::vector<double> values{1, 2, 3, 4, 5, 6, 7};
        QCOMPARE(resultOf("x + y*z", context, values), std::string("7"));
        QCOMPARE(resultOf("i + m00", context, values), std::string("9"));
        QCOMPARE(resultOf("min + 1", context, values), std::string("7"));
        QCOMPARE(resultOf("E", context, values), std::string("7"));
        QCOMPARE(resultOf("e", context, values), numberText(std::numbers::e));
        QCOMPARE(resultOf("5", {.variables = {}}, {}), std::string("5"));
        const auto parsed = Expression::parse("y + 1", context);
        const auto& expression = std::get<Expression>(parsed);
        QVERIFY(expression.usesVariables());
        QVERIFY(!expression.usesVariable(0));
        QVERIFY(expression.usesVariable(1));
        QVERIFY(!expression.usesVariable(7));
        QVERIFY(!std::get<Expression>(Expression::parse("1 + 1", context)).usesVariables());
        QCOMPARE(expression.text(), std::string("y + 1"));
    }

    void oneFormulaHasAValueForEachNumber()
    {
        const auto parsed = Expression::parse("x + 1");
        const Expression copy = std::get<Expression>(parsed);
        QCOMPARE(std::get<double>(copy.evaluate(1)), 2.0);
        QCOMPARE(std::get<double>(copy.evaluate(41)), 42.0);
        QCOMPARE(std::get<double>(std::get<Expression>(parsed).evaluate(-1)), 0.0);
        QCOMPARE(std::get<double>(std::get<Expression>(Expression::parse("5", {.variables = {}})).evaluate()), 5.0);
    }
};

QTEST_APPLESS_MAIN(TestExpression)
#include "tst_Expression.moc"
