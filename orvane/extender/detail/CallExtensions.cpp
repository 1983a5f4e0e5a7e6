#include "orvane/extender/detail/CallExtensions.h"

#include <utility>

namespace orvane {
namespace {

ExceptionHandler theHandler;
DyingEditorHandler theDyingEditorHandler;

} // namespace

void setExceptionHandler(ExceptionHandler handler)
{
    theHandler = std::move(handler);
}

bool handleException(const QString& during)
{
    return theHandler && theHandler(during);
}

void setDyingEditorHandler(DyingEditorHandler handler)
{
    theDyingEditorHandler = std::move(handler);
}

void handleDyingEditor(OrvEditor& editor)
{
    if (theDyingEditorHandler)
        theDyingEditorHandler(editor);
}

} // namespace orvane
