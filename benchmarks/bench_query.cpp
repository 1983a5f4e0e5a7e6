// Expressions over columns of 1,000,000 numbers, beside the library that evaluates them.

#include "Timing.h"

#include "meridane/query/Expression.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include <muParser.h>

namespace {

constexpr std::size_t rows = 1'000'000;
constexpr int rounds = 9;

std::vector<double> column(double step)
{
    std::vector<double> values(rows);
    for (std::size_t i = 0; i < rows; ++i)
        values[i] = step * static_cast<double>(i % 1000) - 1;
    return values;
}

/// Both texts mean the same. The rows are evaluated in parts.
void measure(const std::string& name, const std::string& text, const std::string& parserText, std::size_t part = rows)
{
    std::array columns{column(0.25), column(0.5), column(0.01)};
    std::vector<double> out(rows);
    std::vector<double> expected(rows);
    const std::array<std::span<const double>, 3> spans{columns[0], columns[1], columns[2]};
    const meridane::Expression::Context context{.variables = {"x", "y", "z"}};

    bench::compare(
        name, 1.5, rounds,
        [&] {
            return bench::seconds([&] {
                const auto parsed = meridane::Expression::parse(text, context);
                for (std::size_t start = 0; start < rows; start += part) {
                    const std::size_t count = std::min(part, rows - start);
                    std::array<std::span<const double>, 3> slice;
                    for (std::size_t i = 0; i < slice.size(); ++i)
                        slice[i] = spans[i].subspan(start, count);
                    if (std::get<meridane::Expression>(parsed).evaluateRows(
                            slice, std::span(out).subspan(start, count)))
                        std::abort();
                }
            });
        },
        [&] {
            return bench::seconds([&] {
                mu::Parser parser;
                parser.DefineVar("x", columns[0].data());
                parser.DefineVar("y", columns[1].data());
                parser.DefineVar("z", columns[2].data());
                parser.SetExpr(parserText);
                parser.Eval(expected.data(), static_cast<int>(rows));
            });
        });
    if (out != expected)
        std::abort();
}

} // namespace

int main()
{
    measure("x*2 + y over 1,000,000 rows", "x*2 + y", "x*2 + y");
    measure("x > 0 and z < 1 over 1,000,000 rows", "x > 0 and z < 1", "x > 0 && z < 1");
    measure("x > 0 and z < 1 over 1,000,000 rows in parts of 1,024", "x > 0 and z < 1", "x > 0 && z < 1", 1024);
    measure("a formula of six terms over 1,000,000 rows", "(x + y)*50% - z/2 + max(x; y; z)",
        "(x + y)*0.5 - z/2 + max(x, y, z)");
    return EXIT_SUCCESS;
}
