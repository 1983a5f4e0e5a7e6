#pragma once

#include "meridane/base/values/VbString.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class NxGroup;

/// Finds names that no child of a group has, for nodes that are about to come into it.
class SiblingNames {
public:
    explicit SiblingNames(const NxGroup& group);

    /// The name if no child has it, else the name with the next free number, such as "arm 2" for "arm". From then on it
    /// is taken. The empty name stays, however many have it.
    [[nodiscard]] VbString take(const VbString& name);

private:
    /// The numbers behind a name that are taken. Siblings of one kind mostly have numbers from 1 on, so they are bits.
    class Numbers {
    public:
        /// Returns false if the number was taken already.
        bool take(int number);
        [[nodiscard]] int takeNext();

    private:
        std::vector<bool> m_low;
        std::unordered_set<int> m_high;
        int m_next = 2; // to be tried
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>()(text); }
    };

    Numbers& numbersOf(std::string_view base);
    /// Returns false if the name was taken already.
    bool takeAsIs(std::string_view name);

    std::unordered_set<std::string> m_plain; // names without a number
    std::unordered_map<std::string, Numbers, Hash, std::equal_to<>> m_numbers; // by the name before the number
    std::string m_latestBase;
    Numbers* m_latest = nullptr; // of that base
};
