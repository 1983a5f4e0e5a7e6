#pragma once

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

} // namespace orvane
