#pragma once

#include "meridane/base/values/VbString.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

class NxGroup;

/// Finds names that no child of a group has, for nodes that are about to come into it.
class SiblingNames {
public:
    explicit SiblingNames(const NxGroup& group);

    /// The name if no child has it, else the name with the next free number, such as "arm 2" for "arm". From then on it
    /// is taken. The empty name stays, however many have it.
    [[nodiscard]] VbString take(const VbString& name);

private:
    std::unordered_set<std::string> m_taken;
    std::unordered_map<std::string, int> m_next; // the number to try, by the name without one
};
