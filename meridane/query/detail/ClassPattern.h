#pragma once

#include "meridane/base/types/NxType.h"
#include "meridane/query/FoundParts.h"
#include "meridane/query/detail/TypeAnswers.h"

#include <string>
#include <string_view>

class NxField;
class NxNode;

namespace meridane {

/// The name of a class, in any case of letters: the objects of this class and of those that derive from it. If no class
/// has exactly this name, it is the beginning of names. Classes of fields also match without `SF` or `MF`.
class ClassPattern {
public:
    explicit ClassPattern(std::string_view name);

    [[nodiscard]] bool matches(const NxNode& node) const;
    /// A node of that class, which is known already.
    [[nodiscard]] bool matches(const NxNode& node, NxType type) const;
    /// A field, by its own class.
    [[nodiscard]] bool matches(const NxField& field) const;
    /// Adds the part of a class's name that is the pattern.
    void addFound(std::string_view name, FoundParts& parts) const;

private:
    [[nodiscard]] bool matches(NxType type) const;
    [[nodiscard]] bool matchesOneOf(NxType type) const;
    [[nodiscard]] bool matchesName(std::string_view name) const;

    std::string m_name;
    bool m_isWhole = false;
    mutable TypeAnswers m_known;
};

} // namespace meridane
