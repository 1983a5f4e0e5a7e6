#include "meridane/query/detail/QueryScanner.h"

#include "meridane/query/Expression.h"
#include "meridane/query/detail/TextFolding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace meridane {
namespace {

constexpr std::string_view noBreakSpace = "\u00A0";
constexpr int mostExpressions = 16;

constexpr std::array<std::pair<std::string_view, ValueTest::Comparison>, 6> comparisons{{
    {"!=", ValueTest::Comparison::NotEqual},
    {"<=", ValueTest::Comparison::LessOrEqual},
    {">=", ValueTest::Comparison::GreaterOrEqual},
    {"=", ValueTest::Comparison::Equal},
    {"<", ValueTest::Comparison::Less},
    {">", ValueTest::Comparison::Greater},
}};

const auto* comparisonAt(std::string_view text)
{
    const auto found
        = std::ranges::find_if(comparisons, [text](const auto& entry) { return text.starts_with(entry.first); });
    return found != comparisons.end() ? &*found : nullptr;
}

bool isBlank(char character) noexcept
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// Whether a text is meant as a number, so that it must be one.
bool looksLikeNumber(std::string_view text)
{
    static constexpr std::string_view signs = "0123456789.,+-";
    return !text.empty() && signs.find(text.front()) != std::string_view::npos;
}

} // namespace

QueryScanner::QueryScanner(std::string_view text, QuerySubject subject)
    : m_text(text)
    , m_isScene(subject == QuerySubject::Scene)
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
    if (tree && m_position < m_text.size())
        return fail(
            m_position, "An opening bracket is missing for this closing one. Put brackets to search for in quotes.");
    return tree;
}

QueryScanner::Tree QueryScanner::readAny()
{
    QueryTree::Any any;
    while (true) {
        Tree tree = readAll();
        if (!tree)
            return std::nullopt;
        any.conditions.push_back(*std::move(tree));
        if (!isWordHere("or"))
            break;
        m_position += 2;
    }
    if (any.conditions.size() == 1)
        return std::move(any.conditions.front());
    return QueryTree(std::move(any));
}

QueryScanner::Tree QueryScanner::readAll()
{
    QueryTree::All all;
    while (true) {
        Tree tree = readOne();
        if (!tree)
            return std::nullopt;
        all.conditions.push_back(*std::move(tree));
        skipBlanks();
        if (isWordHere("and"))
            m_position += 3;
        else if (m_position == m_text.size() || next() == ')' || isWordHere("or"))
            break;
    }
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
    if (!tree)
        return std::nullopt;
    if (next() != ')')
        return fail(start, "A closing bracket is missing for this opening one. Put brackets to search for in quotes.");
    ++m_position;
    --m_brackets;
    return tree;
}

QueryScanner::Tree QueryScanner::readTerm()
{
    if (m_position == m_text.size())
        return fail(m_position, "A word is missing at the end.");
    if (next() == ')' || isWordHere("and") || isWordHere("or"))
        return fail(m_position,
            "A word is missing before \"" + std::string(next() == ')' ? ")" : wordHere())
                + "\". Put it in quotes to search for it.");
    if (m_isScene && comparisonAt(rest()) != nullptr)
        return readValue();
    if (m_isScene && next() == '~')
        return readValueText();
    if (next() == '"' || regularExpressionHere() > 0) {
        std::optional<TextPattern> pattern = readPattern("A word");
        return pattern ? Tree(QueryTree(QueryTree::Name{*std::move(pattern)})) : std::nullopt;
    }
    return readWord();
}

QueryScanner::Tree QueryScanner::readWord()
{
    const std::string_view word = wordHere();
    const std::string folded = foldText(word);
    if (m_isScene && (folded.starts_with("t:") || folded.starts_with("f:"))) {
        m_position += 2;
        if (folded[0] == 'f') {
            std::optional<TextPattern> pattern = readPattern("The name of a field is missing after f:");
            return pattern ? Tree(QueryTree(QueryTree::FieldName{*std::move(pattern)})) : std::nullopt;
        }
        std::string_view name = wordHere();
        if (name.empty())
            return fail(m_position, "The name of a class is missing after t:, such as t:Mesh.");
        m_position += name.size();
        return QueryTree(QueryTree::Class{ClassPattern(name)});
    }
    m_position += word.size();
    if (m_isScene && folded == "changed")
        return QueryTree(QueryTree::Changed());
    if (m_isScene && folded == "ignored")
        return QueryTree(QueryTree::Ignored());
    return QueryTree(QueryTree::Name{TextPattern::word(word)});
}

QueryScanner::Tree QueryScanner::readValue()
{
    const auto& [sign, comparison] = *comparisonAt(rest());
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
        return fail(start, "A value is missing after " + std::string(sign) + ".");
    m_position += value.size();
    const auto refuse = [&](const QueryError& error) { return fail(start + error.position, error.message); };
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
    const std::string_view word = wordHere();
    if (word.empty())
        return fail(m_position, std::string(what) + ".");
    m_position += word.size();
    return TextPattern::word(word);
}

std::optional<TextPattern> QueryScanner::readRegularExpression()
{
    const std::size_t start = m_position;
    const std::size_t length = regularExpressionHere();
    m_position += length;
    if (++m_expressions > mostExpressions)
        return fail(start,
            "The query has more than " + std::to_string(mostExpressions) + " regular expressions, which is the limit.");
    std::string expression(m_text.substr(start + 1, length - 2));
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
    if (m_position == m_text.size())
        return fail(start, "The closing quote is missing.");
    ++m_position;
    return text;
}

std::string_view QueryScanner::valueHere() const
{
    std::size_t open = 0;
    std::size_t length = 0;
    for (const std::string_view text = rest(); length < text.size(); ++length) {
        const char character = text[length];
        if (open == 0
            && (isBlank(character) || character == ')' || character == '~'
                || comparisonAt(text.substr(length)) != nullptr))
            break;
        open += character == '(' ? 1 : 0;
        open -= character == ')' ? 1 : 0;
    }
    return rest().substr(0, length);
}

void QueryScanner::skipBlanks()
{
    while (true) {
        if (isBlank(next()))
            ++m_position;
        else if (rest().starts_with(noBreakSpace))
            m_position += noBreakSpace.size();
        else
            break;
    }
}

std::string_view QueryScanner::wordHere() const
{
    const std::string_view text = rest();
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const char character = text[length];
        if (isBlank(character) || character == '(' || character == ')' || character == '"'
            || text.substr(length).starts_with(noBreakSpace))
            break;
        if (m_isScene && (character == '~' || comparisonAt(text.substr(length)) != nullptr))
            break;
    }
    return text.substr(0, length);
}

bool QueryScanner::isWordHere(std::string_view word) const
{
    return foldText(wordHere()) == word;
}

std::size_t QueryScanner::regularExpressionHere() const
{
    const std::string_view text = rest();
    if (!text.starts_with('/'))
        return 0;
    std::size_t end = 1;
    while (end < text.size() && text[end] != '/')
        end += text[end] == '\\' ? 2U : 1U;
    if (end >= text.size() || end == 1)
        return 0;
    // Otherwise it is a path.
    const bool isComplete = end + 1 == text.size() || isBlank(text[end + 1]) || text[end + 1] == ')';
    return isComplete ? end + 1 : 0;
}

std::nullopt_t QueryScanner::fail(std::size_t position, std::string message)
{
    m_error = QueryError{std::move(message), position};
    return std::nullopt;
}

} // namespace meridane
