#pragma once

#include <sanitizer/lsan_interface.h>

namespace orvane {

/// True in a program built with the address sanitizer. The sanitizer reserves terabytes of address space. Its leak
/// check at the end of the process starts a helper that traces this one and reads the program's files. Limits and
/// sandbox must allow that.
[[nodiscard]] constexpr bool isSanitized()
{
#if defined(__SANITIZE_ADDRESS__)
    return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    return true;
#else
    return false;
#endif
#else
    return false;
#endif
}

/// While one lives, memory that is allocated isn't looked for by the leak check: some readers of the import library
/// lose a part of what they have read when they give up a file.
class LeaksIgnored {
public:
    LeaksIgnored()
    {
        if constexpr (isSanitized())
            __lsan_disable();
    }
    LeaksIgnored(const LeaksIgnored&) = delete;
    LeaksIgnored& operator=(const LeaksIgnored&) = delete;
    ~LeaksIgnored()
    {
        if constexpr (isSanitized())
            __lsan_enable();
    }
};

} // namespace orvane
