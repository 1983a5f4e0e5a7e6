#include "meridane/query/detail/ExpressionScanner.h"

#include "meridane/query/NumberText.h"
#include "meridane/query/detail/NumberScanner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace meridane {
namespace {

constexpr std::size_t mostFormulaBytes = 20'000; // that the parser takes

std::string inLowerCase(std::string_view word)
{
    std::string lower(word);
    std::ranges::transform(lower, lower.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; });
    return lower;
}

} // namespace

ExpressionScanner::ExpressionScanner(std::string_view original, const ExpressionContext& context)
    : m_context(context)
    , m_source(original.substr(0, ExpressionContext::mostBytes))
    , m_isTooLong(original.size() > ExpressionContext::mostBytes)
{
    m_formula.uses.resize(context.variables.size());
}

std::variant<Formula, QueryError> ExpressionScanner::run()
{
    if (m_isTooLong)
        return QueryError{std::string("The text is longer than ")
                              .append(std::to_string(ExpressionContext::mostBytes))
                              .append(" characters, which is the limit of a formula."),
            ExpressionContext::mostBytes};
    bool isGood = true;
    while (isGood) {
        m_source.skipBlanks();
        if (m_source.isAtEnd()) {
            isGood = finish();
            break;
        }
        isGood = m_wantsOperand ? readOperand() : readOperation();
    }
    if (!isGood)
        return *m_error;
    return std::move(m_formula);
}

bool ExpressionScanner::readOperand()
{
    const char next = m_source.next();
    if (next == '+' || next == '-') {
        m_isNegative ^= next == '-';
        m_source.skip(1);
        return true;
    }
    if (std::exchange(m_isNegative, false))
        addOperation("-", 0);
    if (beginsNumber(m_source.text(), m_source.position()))
        return readNumber();
    if (ExpressionSource::isLetter(next))
        return readOperandWord();
    switch (next) {
    case '(':
        return open(nullptr);
    case '!':
        if (m_source.next(1) != '=')
            return readNot(1);
        break;
    case ',':
        return fail("A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon.");
    case Spelling::unknownSign:
        return fail(m_source.quoted() + " has no meaning in a formula.");
    default:
        break;
    }
    return fail("A number is missing before " + m_source.quoted() + ".");
}

bool ExpressionScanner::readNumber()
{
    const ScannedNumber number = scanNumber(m_source.text(), m_source.position());
    if (!number.refusal.empty())
        return fail(number.refusal);
    m_source.moveTo(number.end);
    m_levels.back().hasComma |= number.hasComma;
    m_literalStart = m_formula.text.size();
    addOperand(numberText(number.value));
    m_literal = number.value;
    return true;
}

bool ExpressionScanner::readOperandWord()
{
    const std::string_view word = m_source.word();
    const std::size_t start = m_source.position();
    const std::string lower = inLowerCase(word);
    auto variable = std::ranges::find(m_context.variables, word);
    const ExpressionFunction* const function = findExpressionFunction(lower);
    if (variable == m_context.variables.end() && function == nullptr)
        variable = std::ranges::find(m_context.variables, lower);
    if (variable != m_context.variables.end()) {
        const auto index = static_cast<std::size_t>(variable - m_context.variables.begin());
        m_formula.uses[index] = true;
        addOperand(std::string("v").append(std::to_string(index)));
    } else if (function != nullptr) {
        m_source.skip(word.size());
        return readFunction(*function, start);
    } else if (lower == "pi") {
        addOperand("pi");
    } else if (lower == "e") {
        addOperand("e");
    } else if (lower == "inf" || lower == "infinity" || lower == "nan") {
        if (!m_context.mayBeInfinite)
            return fail(m_source.quoted(word.size()) + " can't be used here: a finite number is needed.");
        m_formula.namesInfinity = true;
        addOperand(lower == "nan" ? "nan" : "inf");
    } else if (lower == "not") {
        return readNot(word.size());
    } else {
        return failAtUnknownWord(word);
    }
    m_source.skip(word.size());
    return true;
}

// The operator has two sides, since the parser takes no two signs in a row before a number.
bool ExpressionScanner::readNot(std::size_t length)
{
    if (!m_mayNegate)
        return fail("Write " + m_source.quoted(length) + " and what follows it in brackets.");
    return addLogic("0 ~", length);
}

bool ExpressionScanner::failAtUnknownWord(std::string_view word)
{
    const std::string lower = inLowerCase(word);
    if (lower == "log")
        return fail("\"log\" has several meanings: write ln, log2 or log10.");
    if (lower == "and" || lower == "or" || lower == "deg" || lower == "rad")
        return fail("A number is missing before " + m_source.quoted(word.size()) + ".");
    std::size_t after = word.size();
    while (m_source.next(after) == ' ')
        ++after;
    if (m_source.next(after) == '(')
        return fail("There is no function " + ExpressionSource::quote(word)
            + ". There are: " + namesOfExpressionFunctions() + ".");
    std::string names;
    for (const std::string& name : m_context.variables)
        names.append(names.empty() ? "" : ", ").append(name);
    return fail(ExpressionSource::quote(word) + " isn't known here. "
        + (names.empty() ? "There are no variables." : "The variables are: " + names + "."));
}

bool ExpressionScanner::readFunction(const ExpressionFunction& function, std::size_t start)
{
    m_source.skipBlanks();
    if (m_source.next() != '(')
        return failAt(start,
            "The function " + std::string(function.name) + " needs its argument in brackets: "
                + std::string(function.name) + "(" + (function.fewestArguments() > 1 ? "1; 2" : "1") + ").");
    m_formula.text.append(function.name);
    return open(&function);
}

bool ExpressionScanner::readOperation()
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 6> plain{
        {{"**", "^"}, {"+", "+"}, {"-", "-"}, {"*", "*"}, {"/", "/"}, {"^", "^"}}};
    static constexpr std::array<std::string_view, 7> comparisons{"==", "!=", "<>", "<=", ">=", "<", ">"};
    for (const auto& [sign, meaning] : plain) {
        if (m_source.startsWith(sign))
            return addOperation(meaning, sign.size());
    }
    for (const std::string_view sign : comparisons) {
        if (m_source.startsWith(sign))
            return readComparison(sign);
    }
    if (m_source.startsWith("&&") || m_source.startsWith("||")) {
        m_levels.back().isCompared = false;
        return addLogic(m_source.startsWith("&&") ? "&&" : "||", 2);
    }
    const char next = m_source.next();
    if (ExpressionSource::isLetter(next))
        return readOperationWord();
    if (beginsNumber(m_source.text(), m_source.position()))
        return fail("A sign such as + or * is missing before " + m_source.quoted() + ".");
    switch (next) {
    case '=':
        return readComparison("=");
    case '%':
        return readPercent();
    case Spelling::degreeSign:
        return readDegrees(1);
    case '(':
        return fail("A multiplication needs its sign: write * before the bracket.");
    case ')':
        return close();
    case ';':
        return readSemicolon();
    case ',':
        return fail("A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon.");
    case '?':
    case ':':
        return fail("Write if(condition; then; otherwise) instead of " + m_source.quoted() + ".");
    default:
        return fail(m_source.quoted() + " has no meaning in a formula.");
    }
}

bool ExpressionScanner::readOperationWord()
{
    const std::string_view word = m_source.word();
    const std::string lower = inLowerCase(word);
    if (lower == "and" || lower == "or") {
        m_levels.back().isCompared = false;
        return addLogic(lower == "and" ? "&&" : "||", word.size());
    }
    if (lower == "deg")
        return readDegrees(word.size());
    if (lower == "rad") {
        if (!m_context.isAngle)
            return fail("\"rad\" is for angles, and this isn't an angle.");
        m_source.skip(word.size());
        return true;
    }
    return fail("A multiplication needs its sign: write * before " + m_source.quoted(word.size()) + ".");
}

bool ExpressionScanner::readComparison(std::string_view sign)
{
    Level& level = m_levels.back();
    if (level.isCompared)
        return fail("Two comparisons in a row: write them apart, such as 0 < x and x < 1.");
    level.isCompared = true;
    const std::string_view meaning = sign == "=" ? "==" : sign == "<>" ? "!=" : sign;
    return addOperation(meaning, sign.size());
}

bool ExpressionScanner::open(const ExpressionFunction* function)
{
    if (m_levels.size() > ExpressionContext::mostBrackets)
        return fail("More than " + std::to_string(ExpressionContext::mostBrackets)
            + " brackets are within each other, which is the limit of a formula.");
    m_levels.push_back({m_source.position(), function});
    return addLogic("(", 1);
}

bool ExpressionScanner::close()
{
    const Level level = m_levels.back();
    if (m_levels.size() == 1)
        return fail("An opening bracket is missing for this closing one.");
    if (level.function != nullptr) {
        const int fewest = level.function->fewestArguments();
        const bool isFew = level.arguments < fewest;
        if (isFew || (level.arguments > fewest && !level.function->takesMore())) {
            std::string message = std::string(level.function->name) + " takes " + std::to_string(fewest)
                + (level.function->takesMore() ? " or more" : "") + (fewest == 1 ? " argument" : " arguments")
                + ", not " + std::to_string(level.arguments) + ".";
            if (isFew && level.hasComma)
                message += " A comma is a decimal sign: separate arguments with a semicolon.";
            return failAt(level.position, std::move(message));
        }
    }
    m_levels.pop_back();
    m_source.skip(1);
    addOperand(")");
    return true;
}

bool ExpressionScanner::readSemicolon()
{
    Level& level = m_levels.back();
    if (level.function == nullptr)
        return fail("A semicolon separates the arguments of a function, and there is no function here.");
    ++level.arguments;
    level.isCompared = false;
    return addLogic(",", 1);
}

bool ExpressionScanner::readPercent()
{
    return addUnit("%", 1, [](double value) { return value / 100; });
}

bool ExpressionScanner::readDegrees(std::size_t length)
{
    if (!m_context.isAngle)
        return fail(m_source.quoted(length) + " is for angles, and this isn't an angle.");
    return addUnit("@", length, [](double value) { return value * std::numbers::pi / 180; });
}

// A unit converts a number at once. For the parser the operand is in brackets or a name, and has one unit at most.
bool ExpressionScanner::addUnit(std::string_view text, std::size_t length, double (*convert)(double))
{
    if (m_hasUnit)
        return fail("Two units in a row: write brackets before " + m_source.quoted(length) + ".");
    m_source.skip(length);
    if (m_literal) {
        const double value = convert(*m_literal);
        m_formula.text.resize(m_literalStart);
        addOperand(numberText(value));
        m_literal = value;
    } else {
        addOperand(text);
        m_hasUnit = true;
    }
    return true;
}

bool ExpressionScanner::finish()
{
    if (m_formula.text.empty() && !m_isNegative)
        return fail("A number or a formula is missing.");
    if (m_wantsOperand)
        return fail("A number is missing at the end.");
    if (m_levels.size() > 1)
        return failAt(m_levels.back().position, "A closing bracket is missing for this opening one.");
    if (m_formula.text.size() > mostFormulaBytes)
        return fail("The formula is too long.");
    return true;
}

void ExpressionScanner::addOperand(std::string_view text)
{
    m_literal.reset();
    m_formula.text.append(text).append(" ");
    m_wantsOperand = false;
    m_hasUnit = false;
}

bool ExpressionScanner::addOperation(std::string_view text, std::size_t length)
{
    m_literal.reset();
    m_formula.text.append(text).append(" ");
    m_source.skip(length);
    m_wantsOperand = true;
    m_mayNegate = false;
    return true;
}

bool ExpressionScanner::addLogic(std::string_view text, std::size_t length)
{
    addOperation(text, length);
    m_mayNegate = true;
    return true;
}

bool ExpressionScanner::fail(std::string message)
{
    return failAt(m_source.position(), std::move(message));
}

bool ExpressionScanner::failAt(std::size_t offset, std::string message)
{
    m_error = QueryError{std::move(message), m_source.originalPosition(offset)};
    return false;
}

} // namespace meridane
