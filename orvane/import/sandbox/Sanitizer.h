#pragma once

namespace orvane {

/// True in a program built with the address sanitizer. It reserves terabytes of address space for itself, and its
/// search for leaks, at the end of the process, starts a helper that traces this one and reads the program's own files:
/// limits and locks must let it.
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
