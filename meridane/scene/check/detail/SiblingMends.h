#pragma once

#include "meridane/scene/check/NxSceneProblem.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace meridane {

class MendRecorder;

/// Mends problems of siblings, all those of a group at once: to remove thousands of children one by one would take the
/// square of the time.
class SiblingMends {
public:
    /// Notes a problem. One that isn't there any more is left out.
    void add(const NxSceneProblem& problem);
    /// Mends all. Returns the number of problems.
    std::size_t apply(MendRecorder& recorder);

private:
    struct Group {
        NxRef<NxGroup> group;
        std::set<std::string, std::less<>> names; ///< of which all but the first get another one
        std::vector<int> removed;
        std::size_t problems = 0;
    };

    static bool renameNamesakes(const Group& group, MendRecorder& recorder);

    std::map<const NxGroup*, Group> m_groups;
};

} // namespace meridane
