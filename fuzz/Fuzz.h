#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the fuzz targets share.
namespace fuzz {

[[nodiscard]] inline std::string_view toText(const std::uint8_t* bytes, std::size_t count)
{
    return {reinterpret_cast<const char*>(bytes), count};
}

/// Ends the process, as a finding, with that text.
inline void check(bool holds, const char* statement)
{
    if (holds)
        return;
    std::fprintf(stderr, "doesn't hold: %s\n", statement);
    std::abort();
}

} // namespace fuzz

/// The library's entry: one try with that input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);
