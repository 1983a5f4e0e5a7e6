#pragma once

#include "meridane/base/errors/NxError.h"

/// A file that could not be read, or has something in it that could not be understood.
class NxReadError : public meridane::ErrorClass<NxReadError, NxError> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "ReadError";

    /// Lines and columns count from 1, columns in characters; 0 is unknown. The text is "file:line:column: message",
    /// without what is unknown or empty.
    NxReadError(const VbString& file, int line, int column, const VbString& message);

    /// The name of the file; empty if it is unknown.
    [[nodiscard]] const VbString& getFile() const { return m_file; }
    /// The line from 1, or 0 if it is unknown.
    [[nodiscard]] int getLine() const { return m_line; }
    /// The column from 1 in characters, or 0 if it is unknown.
    [[nodiscard]] int getColumn() const { return m_column; }
    /// What was wrong and what was expected, without the position.
    [[nodiscard]] const VbString& getMessage() const { return m_message; }

    /// Builds an error and hands it to the handler of this class, at once and on this thread.
    static void post(const VbString& file, int line, int column, const VbString& message);

private:
    VbString m_file;
    int m_line;
    int m_column;
    VbString m_message;
};

extern template class meridane::ErrorClass<NxReadError, NxError>;
