#pragma once

#include "meridane/base/errors/ErrorClass.h"
#include "meridane/base/types/NxTypedObject.h"
#include "meridane/base/values/VbString.h"

/// Something that the user must hear of, posted by the toolkit to whoever shows it.
///
/// There are six error classes, and each has a handler of its own; an error goes to the handler of exactly the class
/// whose `post` was called. A class without a handler writes one line to `std::cerr`: "error: ", "warning: " or
/// "information: ", and the text. Errors may be posted, and handlers set, on any thread.
class NxError : public meridane::ErrorClass<NxError, NxTypedObject> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "Error";

    /// The text is for people.
    explicit NxError(const VbString& text);

    /// What happened, for people.
    [[nodiscard]] const VbString& getDebugString() const { return m_text; }

    /// Builds an error and hands it to the class's handler, at once and on this thread.
    static void post(const VbString& text);

private:
    VbString m_text;
};

extern template class meridane::ErrorClass<NxError, NxTypedObject>;
