#pragma once

#include "meridane/base/types/NxType.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace meridane {

/// What was found out about each class, so that a condition looks at the name of a class once.
class TypeAnswers {
public:
    /// The answer of `test`, which is called for the first object of a class.
    template <typename Test>
    bool of(NxType type, Test test)
    {
        const auto known = std::ranges::find(m_known, type, &std::pair<NxType, bool>::first);
        if (known != m_known.end())
            return known->second;
        const bool answer = test();
        m_known.emplace_back(type, answer);
        return answer;
    }

private:
    std::vector<std::pair<NxType, bool>> m_known; // of few classes
};

} // namespace meridane
