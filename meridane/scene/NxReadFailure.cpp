#include "meridane/scene/NxReadFailure.h"

std::string NxReadFailure::text() const
{
    std::string result = file;
    for (const int number : {line, column}) {
        if (number == 0)
            break;
        result += (result.empty() ? "" : ":") + std::to_string(number);
    }
    return result.empty() ? message : result + ": " + message;
}
