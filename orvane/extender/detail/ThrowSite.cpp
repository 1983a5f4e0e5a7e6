#include "orvane/extender/detail/ThrowSite.h"

#include <QFile>

#include <array>
#include <cstdlib>

#include <cxxabi.h>
#include <dlfcn.h>
#include <unwind.h>

namespace {

/// The calls that led to the latest exception of a thread, the innermost first.
struct CallStack {
    std::array<void*, 48> addresses;
    std::size_t count;
};

thread_local CallStack latestThrow = {};

_Unwind_Reason_Code noteCall(_Unwind_Context* context, void* data)
{
    auto& stack = *static_cast<CallStack*>(data);
    if (stack.count == stack.addresses.size())
        return _URC_END_OF_STACK;
    // An address behind a call that is the last of its function would be that of the next one.
    stack.addresses[stack.count++] = reinterpret_cast<void*>(_Unwind_GetIP(context) - 1);
    return _URC_NO_REASON;
}

} // namespace

extern "C" void __cxxabiv1::__cxa_throw(void* exception, std::type_info* type, void (*destroy)(void*))
{
    using Throw = decltype(&__cxxabiv1::__cxa_throw);
    static const auto next = reinterpret_cast<Throw>(::dlsym(RTLD_NEXT, "__cxa_throw"));
    latestThrow.count = 0;
    _Unwind_Backtrace(&noteCall, &latestThrow);
    if (next != nullptr)
        next(exception, type, destroy);
    std::abort();
}

QStringList orvane::throwingLibraries()
{
    QStringList libraries;
    for (std::size_t i = 0; i < latestThrow.count; ++i) {
        Dl_info info;
        if (::dladdr(latestThrow.addresses[i], &info) == 0 || info.dli_fname == nullptr)
            continue;
        const QString name = QFile::decodeName(info.dli_fname);
        if (libraries.isEmpty() || libraries.last() != name)
            libraries.append(name);
    }
    return libraries;
}
