#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Functions that the fuzz targets share.
namespace fuzz {

[[nodiscard]] inline std::string_view toText(const std::uint8_t* bytes, std::size_t count)
{
    return {reinterpret_cast<const char*>(bytes), count};
}

/// Reports a finding with that text and ends the process.
inline void check(bool holds, const char* statement)
{
    if (holds)
        return;
    std::fprintf(stderr, "doesn't hold: %s\n", statement);
    std::abort();
}

} // namespace fuzz

/// The entry point of the fuzzer: one run with that input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count);
