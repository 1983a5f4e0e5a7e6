#pragma once

#include "meridane/query/FoundParts.h"
#include "meridane/query/QueryError.h"
#include "meridane/query/QuerySubject.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

class NxField;
class NxNode;

namespace meridane {

class NodeIndex;
class QueryFacts;
class QueryTree;
struct QueryDraft;

/// What a user searches for, the same words for trees, tables, lists and the command line.
///
/// - `arm`: a name of a node or a field, or a class of fields, in which these letters occur in this order; a class of
///   nodes or a value that contains them.
/// - `"left arm"`: a name or a value that contains this text.
/// - `/arm[0-9]+/`: a name or a value in which the regular expression is found.
/// - `t:Mesh`: a node of this class or of one that derives from it, and its fields; a field of this class (`t:Vec3f`).
/// - `f:radius`: a field whose name has these letters in this order.
/// - `=0.5` `!=0.5` `<1` `<=1` `>1` `>=1`: a field with such a number; `=` and `!=` also compare texts.
/// - `~text`: a field whose value contains this text.
/// - `changed`, `ignored`: a field that differs from its default, or that is ignored.
/// - `missing`: a field with the path of a file that doesn't exist. `unused`: a node that applies to nothing, and its
///   fields. Both are found if the caller passes `QueryFacts`; without them, nothing is missing or unused.
///
/// Words side by side must all match; `and`, `or`, `not` and brackets combine them. `not` binds closest, `or` least.
/// Letters match in either case, with and without accents. A node matches words about fields if one field of it matches
/// all that are side by side, and `not` with such words if no field matches.
///
/// Copies share their words and are cheap. Not for several threads at a time.
class Query {
public:
    /// What the query searches.
    using Subject = QuerySubject;

    /// The empty query, which matches everything.
    Query() = default;
    /// Reads a text as a whole. The error says what is wrong and what to write instead.
    [[nodiscard]] static std::variant<Query, QueryError> parse(std::string_view text, Subject subject = Subject::Scene);
    /// The query of a text that is still being typed.
    [[nodiscard]] static QueryDraft parseDraft(std::string_view text, Subject subject = Subject::Scene);

    /// Whether it has no words.
    [[nodiscard]] bool isEmpty() const noexcept { return m_tree == nullptr; }
    /// Whether it has words about fields: `f:`, values, `changed`, `ignored`, `missing`.
    [[nodiscard]] bool isAboutFields() const noexcept;
    /// Whether it has words that need facts: `missing`, `unused`.
    [[nodiscard]] bool needsFacts() const noexcept;

    /// Of values the first 4 KiB of the text and the first 1,000 texts of a list are searched, but all numbers.
    [[nodiscard]] bool matches(const NxNode& node, const QueryFacts* facts = nullptr) const;
    /// Whether a field matches; the same limits apply.
    [[nodiscard]] bool matches(const NxField& field, const QueryFacts* facts = nullptr) const;
    /// A node of an index. It is looked into only if the index doesn't have what the query is about.
    [[nodiscard]] bool matches(const NodeIndex& index, std::uint32_t entry, const QueryFacts* facts = nullptr) const;
    /// The first field of a node that matches what the query says about fields; null if it says nothing, or if there is
    /// none.
    [[nodiscard]] NxField* firstField(const NxNode& node, const QueryFacts* facts = nullptr) const;
    /// A plain text, in UTF-8. A word matches if the text contains it.
    [[nodiscard]] bool matchesText(std::string_view text) const;
    /// The parts of a text, in UTF-8, in which words of the query are found, for highlighting: of the first 4 KiB.
    /// Words after `not`, comparisons of numbers, `changed` and `ignored` have none.
    [[nodiscard]] FoundParts foundIn(std::string_view text, SearchedText kind) const;

private:
    explicit Query(std::shared_ptr<const QueryTree> tree)
        : m_tree(std::move(tree))
    {
    }

    std::shared_ptr<const QueryTree> m_tree;
};

/// A query while it is being typed.
struct QueryDraft {
    Query query; ///< what is complete so far; empty after an error
    std::optional<QueryError> missing; ///< what is missing, such as a closing quote
    std::optional<QueryError> error; ///< why the text can't become a query by typing on
};

} // namespace meridane
