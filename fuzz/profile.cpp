// Profile files: a profile or one line that says why not, never both, and the same for the same bytes.

#include "Fuzz.h"

#include "orvane/extender/OrvProfile.h"

#include <QByteArray>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const QByteArray json(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
    const OrvProfile::ReadResult result = OrvProfile::fromJson(json, QStringLiteral("input"));
    fuzz::check((result.profile == nullptr) != result.error.isEmpty(), "a profile or a message");
    fuzz::check(!result.error.contains(u'\n'), "the message is one line");
    const OrvProfile::ReadResult again = OrvProfile::fromJson(json, QStringLiteral("input"));
    fuzz::check(again.error == result.error, "the same message for the same bytes");
    if (result.profile != nullptr)
        fuzz::check(result.profile->getName() == again.profile->getName(), "the same name for the same bytes");
    return 0;
}
