#pragma once

#include <string_view>

namespace orvane {

/// The build folder, in a build that counts which branches the tests take (KAL_COVERAGE); empty in all other builds.
/// When a process exits, it adds its counts to files in this folder. Limits and sandbox must allow that.
[[nodiscard]] constexpr std::string_view coverageFolder()
{
#if defined(KAL_COVERAGE_FOLDER)
    return KAL_COVERAGE_FOLDER;
#else
    return {};
#endif
}

} // namespace orvane
