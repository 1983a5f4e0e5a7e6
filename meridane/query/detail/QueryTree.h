#pragma once

#include "meridane/query/FoundParts.h"
#include "meridane/query/detail/ClassPattern.h"
#include "meridane/query/detail/TextPattern.h"
#include "meridane/query/detail/TypeAnswers.h"
#include "meridane/query/detail/ValueTest.h"

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

class NxField;
class NxNode;

namespace meridane {

class QueryFacts;

/// A condition of a query, or several that are combined.
class QueryTree {
public:
    /// A node with what is known of it, so that most conditions needn't look into it.
    struct Node {
        const NxNode& node;
        NxType type;
        std::string_view foldedName;
        const QueryFacts* facts = nullptr;
    };
    /// A field; without facts, no file is missing and no node unused.
    struct Field {
        const NxField& field;
        const QueryFacts* facts = nullptr;
    };

    /// A name of a node, field or class, or a part of a value.
    struct Name {
        TextPattern pattern;
        mutable TypeAnswers classes; ///< whose name contains it
    };
    struct Class {
        ClassPattern pattern;
    };
    struct Unused { };
    struct FieldName {
        TextPattern pattern;
    };
    struct ValueText {
        TextPattern pattern;
    };
    struct Changed { };
    struct Ignored { };
    struct Missing { };
    struct All {
        std::vector<QueryTree> conditions;
    };
    struct Any {
        std::vector<QueryTree> conditions;
    };
    struct Not {
        std::vector<QueryTree> condition; ///< exactly one
    };
    using Condition
        = std::variant<Name, Class, Unused, FieldName, ValueText, ValueTest, Changed, Ignored, Missing, All, Any, Not>;

    explicit QueryTree(Condition condition);

    /// Whether some of the conditions, or all of them, are about fields and can't be decided for a name alone.
    [[nodiscard]] bool isAboutFields() const noexcept { return m_isAboutFields; }
    [[nodiscard]] bool isOnlyAboutFields() const noexcept { return m_isOnlyAboutFields; }
    [[nodiscard]] bool needsFacts() const noexcept { return m_needsFacts; }

    [[nodiscard]] bool matches(const Node& node) const;
    [[nodiscard]] bool matches(const Field& field) const;
    [[nodiscard]] bool matchesText(std::string_view text) const;
    /// Adds the parts of a text in which words are found, in any order.
    void addFound(std::string_view text, SearchedText kind, FoundParts& parts) const;
    /// The first field of a node that matches what is about fields; null if there is none, or nothing is.
    [[nodiscard]] NxField* firstField(const Node& node) const;

private:
    [[nodiscard]] bool matchesAll(const All& all, const Node& node) const;
    [[nodiscard]] static bool matchesName(const Name& name, const Node& node);
    [[nodiscard]] static NxField* oneField(const All& all, const Node& node);

    Condition m_condition;
    bool m_isAboutFields = false;
    bool m_isOnlyAboutFields = false;
    bool m_needsFacts = false;
};

} // namespace meridane
