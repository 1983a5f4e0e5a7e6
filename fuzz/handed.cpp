// What another process sends to a running window: a message or one line that says why not, and an accepted one is
// written and read again as the same.

#include "Fuzz.h"

#include "orvane/app/instance/HandedFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    QByteArray received(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
    const auto content = orvane::takeHandedContent(received);
    if (!content) {
        fuzz::check(!content.error().isEmpty(), "refused bytes have a message");
        return 0;
    }
    if (!content.value())
        return 0;
    fuzz::check(content.value()->size() <= orvane::longestHandedContent, "no content is too long");
    const auto file = HandedFile::fromContent(*content.value());
    fuzz::check(file || !file.error().contains(u'\n'), "the message is one line");
    if (!file)
        return 0;
    fuzz::check(file.value().fileName.isEmpty() || file.value().fileName.startsWith(u'/'), "names are absolute");
    QByteArray again = file.value().toBytes();
    const auto second = orvane::takeHandedContent(again);
    fuzz::check(second && second.value().has_value() && again.isEmpty(), "what was read is a message");
    fuzz::check(HandedFile::fromContent(*second.value()).value() == file.value(), "it is the same message");
    return 0;
}
