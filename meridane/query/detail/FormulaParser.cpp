#include "meridane/query/detail/FormulaParser.h"

#include "meridane/query/detail/Functions.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <numbers>
#include <string>

namespace meridane {
namespace {

/// Reads a number as `numberText` writes it.
int readPlainNumber(const char* text, int* position, double* value)
{
    if (*text < '0' || *text > '9')
        return 0;
    const auto [end, error] = std::from_chars(text, text + std::strlen(text), *value);
    if (error != std::errc())
        return 0;
    *position += static_cast<int>(end - text);
    return 1;
}

double negative(double value)
{
    return -value;
}
double logicalNot(double /*left*/, double value)
{
    return value == 0 ? 1 : 0;
}
double percent(double value)
{
    return value / 100;
}
double degrees(double value)
{
    return value * std::numbers::pi / 180;
}

} // namespace

FormulaParser::FormulaParser()
{
    FormulaParser::InitCharSets();
    FormulaParser::InitFun();
    FormulaParser::InitConst();
    FormulaParser::InitOprt();
    AddValIdent(&readPlainNumber);
}

void FormulaParser::bind(std::size_t index, const double* value)
{
    // The library reads variables only; formulas have no assignments.
    DefineVar(std::string("v").append(std::to_string(index)),
        const_cast<double*>(value)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

void FormulaParser::InitCharSets()
{
    DefineNameChars("0123456789abcdefghijklmnopqrstuvwxyz");
    DefineOprtChars("+-*/^<>=!&|%@~");
    DefineInfixOprtChars("-");
}

void FormulaParser::InitFun()
{
    for (const ExpressionFunction& function : expressionFunctions())
        std::visit([&](auto pointer) { DefineFun(std::string(function.name), pointer); }, function.function);
}

void FormulaParser::InitConst()
{
    DefineConst("pi", std::numbers::pi);
    DefineConst("e", std::numbers::e);
    DefineConst("inf", std::numeric_limits<double>::infinity());
    DefineConst("nan", std::numeric_limits<double>::quiet_NaN());
}

void FormulaParser::InitOprt()
{
    DefineInfixOprt("-", &negative);
    DefineOprt("~", &logicalNot, mu::prLOGIC, mu::oaRIGHT, true);
    DefinePostfixOprt("%", &percent);
    DefinePostfixOprt("@", &degrees);
}

} // namespace meridane
