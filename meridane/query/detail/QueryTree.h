#pragma once

#include "meridane/query/FoundParts.h"
#include "meridane/query/detail/ClassPattern.h"
#include "meridane/query/detail/TextPattern.h"
#include "meridane/query/detail/ValueTest.h"

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

class NxField;
class NxNode;

namespace meridane {

/// A condition of a query, or several that are combined.
class QueryTree {
public:
    /// A name of a node, field or class, or a part of a value.
    struct Name {
        TextPattern pattern;
    };
    struct Class {
        ClassPattern pattern;
    };
    struct FieldName {
        TextPattern pattern;
    };
    struct ValueText {
        TextPattern pattern;
    };
    struct Changed { };
    struct Ignored { };
    struct All {
        std::vector<QueryTree> conditions;
    };
    struct Any {
        std::vector<QueryTree> conditions;
    };
    struct Not {
        std::vector<QueryTree> condition; ///< exactly one
    };
    using Condition = std::variant<Name, Class, FieldName, ValueText, ValueTest, Changed, Ignored, All, Any, Not>;

    explicit QueryTree(Condition condition);

    /// Whether some of the conditions, or all of them, are about fields and can't be decided for a name alone.
    [[nodiscard]] bool isAboutFields() const noexcept { return m_isAboutFields; }
    [[nodiscard]] bool isOnlyAboutFields() const noexcept { return m_isOnlyAboutFields; }

    [[nodiscard]] bool matches(const NxNode& node) const;
    [[nodiscard]] bool matches(const NxField& field) const;
    [[nodiscard]] bool matchesText(std::string_view text) const;
    /// Adds the parts of a text in which words are found, in any order.
    void addFound(std::string_view text, SearchedText kind, FoundParts& parts) const;

private:
    Condition m_condition;
    bool m_isAboutFields;
    bool m_isOnlyAboutFields;
};

} // namespace meridane
