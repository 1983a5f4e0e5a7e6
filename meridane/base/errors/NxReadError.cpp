#include "meridane/base/errors/NxReadError.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

#include <string>

namespace {

VbString describe(const VbString& file, int line, int column, const VbString& message)
{
    std::string position(file.view());
    // A column means nothing without its line.
    for (const int number : {line, line == 0 ? 0 : column}) {
        if (number == 0)
            continue;
        if (!position.empty())
            position += ':';
        position += std::to_string(number);
    }
    if (!position.empty())
        position += ": ";
    return VbString(position + std::string(message.view()));
}

} // namespace

template class meridane::ErrorClass<NxReadError, NxError>;

NxReadError::NxReadError(const VbString& file, int line, int column, const VbString& message)
    : ErrorClass(describe(file, line, column, message))
    , m_file(file)
    , m_line(line)
    , m_column(column)
    , m_message(message)
{
}

void NxReadError::post(const VbString& file, int line, int column, const VbString& message)
{
    deliver(NxReadError(file, line, column, message));
}
