#include "orvane/extender/detail/HistoryLimit.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/values/VbString.h"

#include <charconv>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t leastMiB = 1;
constexpr std::size_t mostMiB = std::size_t{1} << 20;

} // namespace

std::optional<std::size_t> orvane::preferredHistoryLimit()
{
    const VbString value = NxPreferences::getString("ORVANE_HISTORY", VbString());
    const std::string_view text = value.view();
    if (text.empty())
        return std::nullopt;
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size() && number >= leastMiB && number <= mostMiB)
        return number << 20U;
    NxDebugError::post(NxDebugError::Warning,
        VbString("The preference ORVANE_HISTORY must be a whole number of MiB from " + std::to_string(leastMiB) + " to "
            + std::to_string(mostMiB) + ", not \"" + std::string(text) + "\". The history keeps its limit."));
    return std::nullopt;
}
