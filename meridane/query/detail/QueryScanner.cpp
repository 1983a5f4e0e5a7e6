#include "meridane/query/detail/QueryScanner.h"

#include "meridane/query/Expression.h"
#include "meridane/query/detail/Functions.h"
#include "meridane/query/detail/TextFolding.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <utility>

namespace meridane {
namespace {

constexpr int mostExpressions = 16;

/// Whether a text is meant as a number, so that it must be one.
bool looksLikeNumber(std::string_view text)
{
    static constexpr std::string_view starts = "0123456789.,+-";
    return !text.empty() && starts.find(text.front()) != std::string_view::npos;
}

/// Whether an expression with an error at that place may become right by typing on.
bool mayGoOn(std::string_view value, std::size_t errorPosition)
{
    static constexpr std::string_view openEnds = "+-*/^(;.,eExX=<>!";
    if (errorPosition >= value.size() || openEnds.find(value.back()) != std::string_view::npos)
        return true;
    if (std::ranges::count(value, '(') > std::ranges::count(value, ')'))
        return true;
    // The beginning of a name, such as that of a function.
    const auto isLetter = [](char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; };
    std::size_t start = value.size();
    while (start > 0 && isLetter(value[start - 1]))
        --start;
    const std::string name = foldText(value.substr(start));
    const auto begins = [&name](std::string_view known) { return known.starts_with(name); };
    static constexpr std::array<std::string_view, 5> others{"deg", "e", "inf", "nan", "pi"};
    return !name.empty()
        && (std::ranges::any_of(expressionFunctions(), begins, &ExpressionFunction::name)
            || std::ranges::any_of(others, begins));
}

} // namespace

QueryScanner::QueryScanner(std::string_view text, QuerySubject subject, Mode mode)
    : QueryCursor(text, subject, mode)
{
}

std::optional<QueryTree> QueryScanner::run()
{
    if (m_text.size() > mostQueryBytes)
        return fail(mostQueryBytes,
            "The text is longer than " + std::to_string(mostQueryBytes)
                + " characters, which is the limit of a query.");
    skipBlanks();
    if (m_position == m_text.size())
        return std::nullopt;
    Tree tree = readAny();
    if (!m_error && !isAtEnd())
        return fail(
            m_position, "An opening bracket is missing for this closing one. Put brackets to search for in quotes.");
    return tree;
}

QueryScanner::Tree QueryScanner::readAny()
{
    QueryTree::Any any;
    while (true) {
        Tree tree = readAll();
        if (m_error)
            return std::nullopt;
        if (tree)
            any.conditions.push_back(*std::move(tree));
        if (!isWordHere("or"))
            break;
        m_position += 2;
    }
    if (any.conditions.empty())
        return std::nullopt;
    if (any.conditions.size() == 1)
        return std::move(any.conditions.front());
    return QueryTree(std::move(any));
}

QueryScanner::Tree QueryScanner::readAll()
{
    QueryTree::All all;
    while (true) {
        Tree tree = readOne();
        if (m_error)
            return std::nullopt;
        if (tree)
            all.conditions.push_back(*std::move(tree));
        skipBlanks();
        if (isWordHere("and"))
            m_position += 3;
        else if (isAtEnd() || next() == ')' || isWordHere("or"))
            break;
    }
    if (all.conditions.empty())
        return std::nullopt;
    if (all.conditions.size() == 1)
        return std::move(all.conditions.front());
    return QueryTree(std::move(all));
}

QueryScanner::Tree QueryScanner::readOne()
{
    bool isNegated = false;
    for (skipBlanks(); isWordHere("not"); skipBlanks()) {
        isNegated = !isNegated;
        m_position += 3;
    }
    Tree tree = next() == '(' ? readBracket() : readTerm();
    if (!tree || !isNegated)
        return tree;
    QueryTree::Not negation;
    negation.condition.push_back(*std::move(tree));
    return QueryTree(std::move(negation));
}

QueryScanner::Tree QueryScanner::readBracket()
{
    const std::size_t start = m_position;
    if (m_brackets == mostQueryBrackets)
        return fail(start,
            "More than " + std::to_string(mostQueryBrackets)
                + " brackets are within each other, which is the limit of a query.");
    ++m_brackets;
    ++m_position;
    Tree tree = readAny();
    if (m_error)
        return std::nullopt;
    if (next() == ')')
        ++m_position;
    else
        lack(start, "A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
    --m_brackets;
    return m_error ? std::nullopt : std::move(tree);
}

QueryScanner::Tree QueryScanner::readTerm()
{
    if (isAtEnd())
        return lack(m_position, "A word is missing at the end.");
    if (next() == ')' || isWordHere("and") || isWordHere("or")) {
        const std::string_view word = next() == ')' ? rest().substr(0, 1) : wordHere();
        std::string message
            = "A word is missing before \"" + std::string(word) + "\". Put it in quotes to search for it.";
        const std::size_t start = m_position;
        // The word may go on, as in "orange".
        if (next() == ')' || word.size() < rest().size())
            return next() == ')' && m_brackets > 0 ? lack(start, std::move(message)) : fail(start, std::move(message));
        m_position += word.size();
        return lack(start, std::move(message));
    }
    if (m_isScene && signHere() != nullptr)
        return readValue();
    if (m_isScene && next() == '~')
        return readValueText();
    if (m_isScene && m_isDraft && rest() == "!") {
        ++m_position;
        return lack(m_position, "A value is missing after !=.");
    }
    if (next() == '"' || regularExpressionHere() > 0 || isOpenExpressionHere()) {
        std::optional<TextPattern> pattern = readPattern("A word");
        return pattern ? Tree(QueryTree(QueryTree::Name{*std::move(pattern), {}})) : std::nullopt;
    }
    return readWord();
}

QueryScanner::Tree QueryScanner::readWord()
{
    const std::string_view word = wordHere();
    const bool isAboutClass = isKeyword(word.substr(0, 2), "t:");
    if (m_isScene && (isAboutClass || isKeyword(word.substr(0, 2), "f:"))) {
        m_position += 2;
        if (!isAboutClass) {
            std::optional<TextPattern> pattern = readPattern("The name of a field is missing after f:");
            return pattern ? Tree(QueryTree(QueryTree::FieldName{*std::move(pattern)})) : std::nullopt;
        }
        std::string_view name = wordHere();
        if (name.empty())
            return lack(m_position, "The name of a class is missing after t:, such as t:Mesh.");
        m_position += name.size();
        return QueryTree(QueryTree::Class{ClassPattern(name)});
    }
    m_position += word.size();
    if (m_isScene && isKeyword(word, "changed"))
        return QueryTree(QueryTree::Changed());
    if (m_isScene && isKeyword(word, "ignored"))
        return QueryTree(QueryTree::Ignored());
    if (m_isScene && isKeyword(word, "missing"))
        return QueryTree(QueryTree::Missing());
    if (m_isScene && isKeyword(word, "unused"))
        return QueryTree(QueryTree::Unused());
    return QueryTree(QueryTree::Name{TextPattern::word(word), {}});
}

QueryScanner::Tree QueryScanner::readValue()
{
    const auto& [sign, comparison] = *signHere();
    m_position += sign.size();
    skipBlanks();
    const std::size_t start = m_position;
    const bool isEquality = comparison == ValueTest::Comparison::Equal || comparison == ValueTest::Comparison::NotEqual;
    if (next() == '"') {
        const std::optional<std::string> text = readQuoted();
        if (!text)
            return std::nullopt;
        if (!isEquality)
            return fail(start, "Only numbers are greater or less. Texts are compared by = and !=.");
        return QueryTree(ValueTest(comparison, TextPattern::phrase(*text), std::nullopt));
    }
    const std::string_view value = valueHere();
    if (value.empty())
        return lack(start, "A value is missing after " + std::string(sign) + ".");
    m_position += value.size();
    return readNumber(comparison, start, value);
}

QueryScanner::Tree QueryScanner::readNumber(ValueTest::Comparison comparison, std::size_t start, std::string_view value)
{
    const bool isEquality = comparison == ValueTest::Comparison::Equal || comparison == ValueTest::Comparison::NotEqual;
    const auto refuse = [&](const QueryError& error) -> Tree {
        if (isAtEnd() && mayGoOn(value, error.position))
            return lack(start + error.position, error.message);
        return fail(start + error.position, error.message);
    };
    const auto parsed = Expression::parse(value, {.variables = {}, .isAngle = true, .mayBeInfinite = true});
    if (const auto* const error = std::get_if<QueryError>(&parsed)) {
        if (!isEquality || looksLikeNumber(value))
            return refuse(*error);
        return QueryTree(ValueTest(comparison, TextPattern::phrase(value), std::nullopt));
    }
    const auto number = std::get<Expression>(parsed).evaluate();
    if (const auto* const error = std::get_if<QueryError>(&number))
        return refuse(*error);
    if (!isEquality && std::isnan(std::get<double>(number)))
        return fail(start, "Nothing is greater or less than nan. Write =nan to find it.");
    return QueryTree(ValueTest(comparison, TextPattern::phrase(value), std::get<double>(number)));
}

QueryScanner::Tree QueryScanner::readValueText()
{
    ++m_position;
    skipBlanks();
    std::optional<TextPattern> pattern = readPattern("A text is missing after ~");
    return pattern ? Tree(QueryTree(QueryTree::ValueText{*std::move(pattern)})) : std::nullopt;
}

std::optional<TextPattern> QueryScanner::readPattern(const char* what)
{
    if (next() == '"') {
        const std::optional<std::string> text = readQuoted();
        return text ? std::optional(TextPattern::phrase(*text)) : std::nullopt;
    }
    if (regularExpressionHere() > 0)
        return readRegularExpression();
    if (isOpenExpressionHere())
        return readOpenExpression();
    const std::string_view word = wordHere();
    if (word.empty())
        return lack(m_position, std::string(what) + ".");
    m_position += word.size();
    return TextPattern::word(word);
}

std::optional<TextPattern> QueryScanner::readRegularExpression()
{
    const std::size_t start = m_position;
    const std::size_t length = regularExpressionHere();
    m_position += length;
    return compile(start, m_text.substr(start + 1, length - 2));
}

std::optional<TextPattern> QueryScanner::readOpenExpression()
{
    const std::size_t start = m_position;
    m_position = m_text.size();
    std::optional<TextPattern> pattern
        = start + 1 < m_text.size() ? compile(start, m_text.substr(start + 1)) : std::nullopt;
    if (pattern)
        lack(start, "The closing / of the regular expression is missing.");
    else
        lack(start, m_error ? std::exchange(m_error, std::nullopt)->message : "A regular expression is missing.");
    return pattern;
}

std::optional<TextPattern> QueryScanner::compile(std::size_t start, std::string_view text)
{
    if (++m_expressions > mostExpressions)
        return fail(start,
            "The query has more than " + std::to_string(mostExpressions) + " regular expressions, which is the limit.");
    std::string expression(text);
    for (std::size_t slash = expression.find("\\/"); slash != std::string::npos; slash = expression.find("\\/", slash))
        expression.erase(slash, 1);
    TextPattern pattern = TextPattern::regularExpression(expression);
    if (pattern.refusal())
        return fail(start, *pattern.refusal());
    return pattern;
}

std::optional<std::string> QueryScanner::readQuoted()
{
    const std::size_t start = m_position++;
    std::string text;
    for (; m_position < m_text.size() && next() != '"'; ++m_position) {
        if (next() == '\\' && m_position + 1 < m_text.size() && (rest()[1] == '"' || rest()[1] == '\\'))
            ++m_position;
        text += next();
    }
    if (!isAtEnd()) {
        ++m_position;
        return text;
    }
    lack(start, "The closing quote is missing.");
    return m_error || text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::nullopt_t QueryScanner::lack(std::size_t position, std::string message)
{
    if (!m_isDraft)
        return fail(position, std::move(message));
    if (!m_missing)
        m_missing = QueryError{std::move(message), position};
    return std::nullopt;
}

std::nullopt_t QueryScanner::fail(std::size_t position, std::string message)
{
    m_error = QueryError{std::move(message), position};
    return std::nullopt;
}

} // namespace meridane
