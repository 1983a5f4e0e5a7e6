#include "query/ExpressionText.h"

#include <QTest>

#include <array>
#include <cmath>
#include <limits>
#include <random>

using meridane::Expression;

/// Formulas over columns of numbers.
class TestExpressionRows : public QObject {
    Q_OBJECT

private:
    using Columns = std::vector<std::span<const double>>;

    static Expression parsed(const std::string& text, const Expression::Context& context = {})
    {
        return std::get<Expression>(Expression::parse(text, context));
    }

private Q_SLOTS:
    void rowsHaveTheValuesOfSingleNumbers_data()
    {
        QTest::addColumn<int>("rows");
        for (const int rows : {0, 1, 100, 10'000, 10'001, 30'000})
            QTest::addRow("%d rows", rows) << rows;
    }

    void rowsHaveTheValuesOfSingleNumbers()
    {
        QFETCH(int, rows);
        const Expression::Context context{.variables = {"x", "y", "z", "i"}};
        std::mt19937 random(1);
        std::uniform_real_distribution<double> numbers(-10, 10);
        std::array<std::vector<double>, 4> columns;
        for (std::vector<double>& column : columns) {
            column.resize(static_cast<std::size_t>(rows));
            for (double& number : column)
                number = numbers(random);
        }
        std::vector<double> out(static_cast<std::size_t>(rows));
        for (const char* const text : {"x", "5", "x + y*2 - z/i", "x > 0 and z < 1", "max(x; y; z)",
                 "sqrt(abs(x)) + sin(i)", "if(x > y; x; y)", "x*50% + y^2", "x + x", "not x > 0"}) {
            const Expression expression = parsed(text, context);
            const Columns spans(columns.begin(), columns.end());
            QVERIFY(!expression.evaluateRows(spans, out));
            for (std::size_t row = 0; row < out.size(); ++row) {
                const std::array values{columns[0][row], columns[1][row], columns[2][row], columns[3][row]};
                QCOMPARE(out[row], std::get<double>(expression.evaluate(values)));
            }
        }
    }

    void anExpressionIsUsedForManySlices()
    {
        const Expression expression = parsed("x + 1");
        for (const std::size_t count : {500U, 10U, 20'000U, 1U, 11'000U}) {
            const std::vector<double> column(count, static_cast<double>(count));
            std::vector<double> out(count);
            QVERIFY(!expression.evaluateRows(Columns{column}, out));
            QCOMPARE(out, std::vector<double>(count, static_cast<double>(count) + 1));
        }
    }

    void theFirstRowWithoutAResultIsReported_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("few") << 20;
        QTest::newRow("many") << 20'000;
    }

    void theFirstRowWithoutAResultIsReported()
    {
        QFETCH(int, rows);
        std::vector<double> column(static_cast<std::size_t>(rows), 1);
        std::vector<double> out(column.size());
        column[7] = 0;
        column[9] = 0;
        const auto failure = parsed("1/x").evaluateRows(Columns{column}, out);
        QVERIFY(failure.has_value());
        QCOMPARE(failure->row, std::size_t{7});
        QCOMPARE(failure->error.message, std::string("A division by 0 has no result."));
        QVERIFY(!parsed("1/x > 5").evaluateRows(Columns{column}, out));
        QCOMPARE(out[7], 1.0);
        column[3] = 0.5;
        const auto notWhole = parsed("x", {.isWhole = true}).evaluateRows(Columns{column}, out);
        QCOMPARE(notWhole->row, std::size_t{3});
        QCOMPARE(notWhole->error.message, std::string("0.5 isn't a whole number."));
    }

    void rowsThatAreNoNumbersPassWhereTheContextAllowsThem()
    {
        std::vector<double> column(1000, std::numeric_limits<double>::quiet_NaN());
        column[0] = 1;
        std::vector<double> out(column.size());
        QVERIFY(!parsed("x + 1", {.mayBeInfinite = true}).evaluateRows(Columns{column}, out));
        QCOMPARE(out[0], 2.0);
        QVERIFY(std::isnan(out[1]));
        const auto failure = parsed("x + 1").evaluateRows(Columns{column}, out);
        QCOMPARE(failure->row, std::size_t{1});
        QCOMPARE(failure->error.message, std::string("x is nan, which isn't a number to calculate with."));
        QVERIFY(!parsed("x > 0").evaluateRows(Columns{column}, out));
        QCOMPARE(out[0], 1.0);
        QCOMPARE(out[1], 0.0);
    }

    void columnsThatAreNotUsedMayBeEmpty()
    {
        const std::vector<double> column(1000, 3);
        std::vector<double> out(column.size());
        QVERIFY(!parsed("y * 2", {.variables = {"x", "y"}}).evaluateRows(Columns{{}, column}, out));
        QCOMPARE(out, std::vector<double>(1000, 6));
    }
};

QTEST_APPLESS_MAIN(TestExpressionRows)
#include "tst_ExpressionRows.moc"
