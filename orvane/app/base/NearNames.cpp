#include "orvane/app/base/NearNames.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace {

/// Longer texts aren't mistyped names.
constexpr qsizetype longestName = 100;

/// How many letters must be inserted, removed, replaced or exchanged with the next to get from one text to the other.
int editDistance(const QString& from, const QString& to)
{
    const auto width = static_cast<std::size_t>(to.size()) + 1;
    std::vector<int> before(width);
    std::vector<int> above(width);
    std::iota(above.begin(), above.end(), 0);
    for (qsizetype row = 1; row <= from.size(); ++row) {
        std::vector<int> here(width);
        here[0] = static_cast<int>(row);
        for (qsizetype column = 1; column <= to.size(); ++column) {
            const auto at = static_cast<std::size_t>(column);
            const bool isSame = from.at(row - 1) == to.at(column - 1);
            here[at] = std::min({above[at] + 1, here[at - 1] + 1, above[at - 1] + (isSame ? 0 : 1)});
            if (row > 1 && column > 1 && from.at(row - 1) == to.at(column - 2) && from.at(row - 2) == to.at(column - 1))
                here[at] = std::min(here[at], before[at - 2] + 1);
        }
        before = std::exchange(above, std::move(here));
    }
    return above.back();
}

} // namespace

QStringList orvane::nearNames(const QString& typed, const QStringList& names)
{
    constexpr int most = 3;
    constexpr int lettersForOneMistake = 3;
    constexpr int shortestPart = 3;
    const QString wanted = typed.toLower();
    if (wanted.isEmpty() || wanted.size() > longestName)
        return {};
    std::vector<std::pair<int, QString>> near;
    for (const QString& name : names) {
        const QString candidate = name.toLower();
        if (candidate.size() > longestName)
            continue;
        const int distance = editDistance(wanted, candidate);
        const auto mistakes = static_cast<int>(wanted.size()) / lettersForOneMistake;
        if (distance <= mistakes || (wanted.size() >= shortestPart && candidate.contains(wanted)))
            near.emplace_back(distance, name);
    }
    std::stable_sort(
        near.begin(), near.end(), [](const auto& left, const auto& right) { return left.first < right.first; });
    QStringList result;
    for (const auto& [distance, name] : near) {
        if (result.size() < most)
            result.append(name);
    }
    return result;
}
