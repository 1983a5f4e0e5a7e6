#pragma once

#include <QString>

#include <functional>

class OrvEditor;

namespace orvane {

/// Handles the exception that is being handled, which was thrown during something such as "an event". Returns false if
/// no plug-in threw it.
using ExceptionHandler = std::function<bool(const QString& during)>;

/// Sets the handler of exceptions that leave extensions; without one they are passed on.
void setExceptionHandler(ExceptionHandler handler);
/// Calls the handler, from within a handler of the language.
[[nodiscard]] bool handleException(const QString& during);

/// Lets the docks release an editor that is being destroyed while it is active.
using DyingEditorHandler = std::function<void(OrvEditor& editor)>;

/// Sets the handler of dying editors; without one nothing happens.
void setDyingEditorHandler(DyingEditorHandler handler);
void handleDyingEditor(OrvEditor& editor);

/// Calls code of extensions, such as the slots of a signal. An exception of a plug-in ends with the call. The profile
/// is applied again then without the plug-in, and the selection announced, so that those are called too who would have
/// been called after it. Other exceptions are passed on.
template <typename Call>
void callExtensions(const QString& during, const Call& call)
{
    try {
        call();
    } catch (...) {
        if (!handleException(during))
            throw;
    }
}

} // namespace orvane
