#include "scene/TestNodes.h"

#include "meridane/query/Query.h"

#include <QTest>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

using meridane::Query;

namespace {

/// A query as a tree, with a matcher that is as plain as can be.
struct Condition {
    enum class Kind { Name, Class, FieldName, Greater, Equal, Text, Changed, Ignored, And, Or, Not };

    Kind kind = Kind::Name;
    std::string word;
    double number = 0;
    std::vector<Condition> parts;

    [[nodiscard]] bool isAboutFields() const
    {
        switch (kind) {
        case Kind::Name:
        case Kind::Class:
            return false;
        case Kind::And:
        case Kind::Or:
        case Kind::Not:
            return std::ranges::all_of(parts, &Condition::isAboutFields);
        default:
            return true;
        }
    }
};

using Kind = Condition::Kind;

class RandomQuery {
public:
    explicit RandomQuery(unsigned int seed)
        : m_engine(seed)
    {
    }

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned int>(limit)); }

    Condition make(int depth)
    {
        static const std::vector<std::string> words{"s", "si", "ze", "arm", "t", "wg", "x"};
        static const std::vector<std::string> classes{"Probe", "ExtendedProbe", "Mesh"};
        Condition condition;
        condition.kind = static_cast<Kind>(below(depth > 0 ? 11 : 8));
        condition.word = words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
        condition.number = below(5);
        if (condition.kind == Kind::Class)
            condition.word = classes[static_cast<std::size_t>(below(3))];
        const int parts = condition.kind == Kind::Not ? 1 : condition.kind >= Kind::And ? 2 + below(2) : 0;
        for (int i = 0; i < parts; ++i)
            condition.parts.push_back(make(depth - 1));
        return condition;
    }

    /// The text of the query, with needless brackets and blanks here and there.
    std::string write(const Condition& condition)
    {
        std::string text = body(condition);
        if (condition.kind >= Kind::And || below(8) == 0)
            text = "(" + blanks() + text + blanks() + ")";
        return text;
    }

private:
    std::string blanks() { return std::string(std::size_t{m_engine() % 3}, ' '); }

    std::string joined(const Condition& condition, const std::string& word)
    {
        std::string text;
        for (const Condition& part : condition.parts)
            text += (text.empty() ? "" : word) + write(part);
        return text;
    }

    std::string body(const Condition& condition)
    {
        const std::string number = std::to_string(static_cast<int>(condition.number));
        switch (condition.kind) {
        case Kind::Name:
            return condition.word;
        case Kind::Class:
            return "t:" + condition.word;
        case Kind::FieldName:
            return "f:" + condition.word;
        case Kind::Greater:
            return ">" + blanks() + number;
        case Kind::Equal:
            return "=" + blanks() + number;
        case Kind::Text:
            return "~" + condition.word;
        case Kind::Changed:
            return "changed";
        case Kind::Ignored:
            return "IGNORED";
        case Kind::And:
            return joined(condition, below(2) == 0 ? " " : " and ");
        case Kind::Or:
            return joined(condition, " or ");
        case Kind::Not:
            return "not " + write(condition.parts[0]);
        }
        return {};
    }

    std::mt19937 m_engine;
};

std::string lower(std::string text)
{
    std::ranges::transform(
        text, text.begin(), [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

bool lettersInOrder(const std::string& name, const std::string& word)
{
    std::size_t next = 0;
    for (const char letter : lower(name))
        next += next < word.size() && letter == word[next] ? 1U : 0U;
    return next == word.size();
}

/// What the conditions are about, taken from the node beforehand.
struct FieldFacts {
    std::string name;
    std::string className;
    std::string text;
    std::vector<double> numbers;
    bool changed = false;
    bool ignored = false;
};

struct NodeFacts {
    std::string name;
    std::vector<std::string> classes;
    std::vector<FieldFacts> fields;
};

bool fits(const Condition& condition, const NodeFacts& node, const FieldFacts& field)
{
    const auto part = [&](const Condition& inner) { return fits(inner, node, field); };
    const auto any = [&](auto test) { return std::ranges::any_of(field.numbers, test); };
    switch (condition.kind) {
    case Kind::Name:
        return lettersInOrder(field.name, condition.word) || lettersInOrder(field.className, condition.word)
            || lower(field.text).find(condition.word) != std::string::npos;
    case Kind::Class:
        return std::ranges::find(node.classes, condition.word) != node.classes.end();
    case Kind::FieldName:
        return lettersInOrder(field.name, condition.word);
    case Kind::Greater:
        return any([&](double number) { return number > condition.number; });
    case Kind::Equal:
        return any([&](double number) { return number == condition.number; });
    case Kind::Text:
        return lower(field.text).find(condition.word) != std::string::npos;
    case Kind::Changed:
        return field.changed;
    case Kind::Ignored:
        return field.ignored;
    case Kind::And:
        return std::ranges::all_of(condition.parts, part);
    case Kind::Or:
        return std::ranges::any_of(condition.parts, part);
    case Kind::Not:
        return !part(condition.parts[0]);
    }
    return false;
}

bool fits(const Condition& condition, const NodeFacts& node)
{
    const auto part = [&](const Condition& inner) { return fits(inner, node); };
    switch (condition.kind) {
    case Kind::Name:
        return lettersInOrder(node.name, condition.word)
            || lower(node.classes.front()).find(condition.word) != std::string::npos;
    case Kind::Class:
        return std::ranges::find(node.classes, condition.word) != node.classes.end();
    case Kind::Or:
        return std::ranges::any_of(condition.parts, part);
    case Kind::Not:
        return !part(condition.parts[0]);
    case Kind::And: {
        std::vector<Condition> aboutFields;
        bool areOthers = true;
        for (const Condition& inner : condition.parts) {
            if (inner.isAboutFields())
                aboutFields.push_back(inner);
            else
                areOthers = areOthers && part(inner);
        }
        if (std::ranges::all_of(aboutFields, [](const Condition& inner) { return inner.kind == Kind::Not; }))
            return areOthers && std::ranges::all_of(aboutFields, part);
        return areOthers && std::ranges::any_of(node.fields, [&](const FieldFacts& field) {
            return std::ranges::all_of(aboutFields, [&](const Condition& inner) { return fits(inner, node, field); });
        });
    }
    default:
        return std::ranges::any_of(node.fields, [&](const FieldFacts& field) { return fits(condition, node, field); });
    }
}

} // namespace

/// Random queries against a plain matcher.
class TestRandomQuery : public QObject {
    Q_OBJECT

private:
    static void change(ProbeNode& node, NodeFacts& facts, RandomQuery& random)
    {
        facts.name = random.below(2) == 0 ? "Arm 1" : "exit";
        node.setName(facts.name.c_str());
        const bool hasSize = random.below(2) == 0;
        const bool hasTitle = random.below(2) == 0;
        if (hasSize)
            node.size.setValue(3);
        if (hasTitle)
            node.title.setValue("Arm wx");
        node.title.setIgnored(random.below(2));
        node.weights.setIgnored(random.below(2));
        facts.fields = {
            {"size", "SFFloat", hasSize ? "3" : "1.5", {hasSize ? 3 : 1.5}, hasSize, false},
            {"title", "SFString", hasTitle ? "Arm wx" : "untitled", {}, hasTitle, node.title.isIgnored()},
            {"weights", "MFFloat", "[1, 2, 3]", {1, 2, 3}, false, node.weights.isIgnored()},
        };
    }

private Q_SLOTS:
    void queriesMatchWhatTheyShould()
    {
        RandomQuery random(1);
        int matches = 0;
        for (int i = 0; i < 20'000; ++i) {
            const bool isExtended = random.below(2) == 0;
            NodeFacts facts;
            facts.classes
                = isExtended ? std::vector<std::string>{"ExtendedProbe", "Probe"} : std::vector<std::string>{"Probe"};
            NxRef<ProbeNode> node;
            if (isExtended)
                node = new ExtendedProbeNode;
            else
                node = new ProbeNode;
            change(*node, facts, random);
            if (isExtended) {
                facts.fields.push_back({"depth", "SFFloat", "-1", {-1}, false, false});
                facts.fields.push_back({"last", "SFFloat", "0", {0}, false, false});
            }
            const Condition condition = random.make(3);
            const std::string text = random.write(condition);
            const auto parsed = Query::parse(text);
            QVERIFY2(std::holds_alternative<Query>(parsed), text.c_str());
            const Query& query = std::get<Query>(parsed);
            QVERIFY2(query.matches(*node) == fits(condition, facts), text.c_str());
            matches += query.matches(*node) ? 1 : 0;
            const std::vector<NxField*> fields = node->getFields();
            QCOMPARE(fields.size(), facts.fields.size());
            for (std::size_t field = 0; field < fields.size(); ++field)
                QVERIFY2(query.matches(*fields[field]) == fits(condition, facts, facts.fields[field]),
                    (text + " and " + facts.fields[field].name).c_str());
        }
        QVERIFY(matches > 2'000 && matches < 18'000);
    }
};

QTEST_APPLESS_MAIN(TestRandomQuery)
#include "tst_RandomQuery.moc"
