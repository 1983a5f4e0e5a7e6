#include "query/ExpressionText.h"
#include "scene/RandomValues.h"

#include <QTest>

#include <bit>

using meridane::Expression;
using meridane::FieldComponents;
using meridane::numberText;

/// Numbers as text.
class TestNumberText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreShort()
    {
        QCOMPARE(numberText(0.1), std::string("0.1"));
        QCOMPARE(numberText(static_cast<double>(0.1F)), std::string("0.10000000149011612"));
        QCOMPARE(numberText(static_cast<double>(0.1F), FieldComponents::Number::Float), std::string("0.1"));
        QCOMPARE(numberText(1e300, FieldComponents::Number::Float), std::string("1e+300"));
        QCOMPARE(numberText(-0.0), std::string("-0"));
        QCOMPARE(numberText(4e9, FieldComponents::Number::UInt), std::string("4000000000"));
        QCOMPARE(numberText(-2e9, FieldComponents::Number::Int), std::string("-2000000000"));
        QCOMPARE(numberText(0.5, FieldComponents::Number::Int), std::string("0.5"));
        QCOMPARE(numberText(4294967295.0, FieldComponents::Number::UInt), std::string("4294967295"));
        QCOMPARE(numberText(std::numeric_limits<double>::infinity()), std::string("inf"));
        QCOMPARE(
            numberText(-std::numeric_limits<double>::infinity(), FieldComponents::Number::Float), std::string("-inf"));
        QCOMPARE(numberText(std::numeric_limits<double>::quiet_NaN()), std::string("nan"));
    }

    void numbersAreReadBackToTheBit()
    {
        RandomValues random(1);
        for (int i = 0; i < 10'000; ++i) {
            double number = 0;
            random.fill(number);
            float single = 0;
            random.fill(single);
            if (!std::isfinite(number) || !std::isfinite(single))
                continue;
            QCOMPARE(resultOf(numberText(number)), numberText(number));
            const auto value
                = std::get<Expression>(Expression::parse(numberText(double{single}, FieldComponents::Number::Float)))
                      .evaluate();
            QCOMPARE(std::bit_cast<std::uint32_t>(static_cast<float>(std::get<double>(value))),
                std::bit_cast<std::uint32_t>(single));
        }
    }
};

QTEST_APPLESS_MAIN(TestNumberText)
#include "tst_NumberText.moc"
