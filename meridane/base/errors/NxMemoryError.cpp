#include "meridane/base/errors/NxMemoryError.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

#include <string>

namespace {

VbString describe(const char* file, int line, std::size_t size)
{
    std::string text;
    if (file != nullptr)
        text += std::string(file) + ":" + std::to_string(line) + ": ";
    return VbString(text + "no memory for " + std::to_string(size) + " bytes");
}

} // namespace

template class meridane::ErrorClass<NxMemoryError, NxError>;

NxMemoryError::NxMemoryError(const char* file, int line, std::size_t size)
    : ErrorClass(describe(file, line, size))
    , m_size(size)
{
}

void NxMemoryError::post(const char* file, int line, std::size_t size)
{
    deliver(NxMemoryError(file, line, size));
}
