#include "meridane/scene/file/NxReadFailure.h"

std::string NxReadFailure::text() const
{
    std::string result = file;
    for (const int number : {line, column}) {
        if (number == 0)
            break;
        if (!result.empty())
            result += ':';
        result += std::to_string(number);
    }
    return result.empty() ? message : result + ": " + message;
}
