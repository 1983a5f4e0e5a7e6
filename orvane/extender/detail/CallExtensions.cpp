#include "orvane/extender/detail/CallExtensions.h"

#include <utility>

namespace orvane {
namespace {

ExceptionHandler theHandler;

} // namespace

void setExceptionHandler(ExceptionHandler handler)
{
    theHandler = std::move(handler);
}

bool handleException(const QString& during)
{
    return theHandler && theHandler(during);
}

} // namespace orvane
