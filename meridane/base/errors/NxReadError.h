#pragma once

#include "meridane/base/errors/NxError.h"

/// A file that could not be read, or has something in it that could not be understood.
class NxReadError : public meridane::ErrorClass<NxReadError, NxError> {
public:
    static constexpr const char* typeName = "ReadError";

    /// Lines and columns count from 1, columns in characters; 0 is unknown. The text is "file:line:column: message",
    /// without what is unknown or empty.
    NxReadError(const VbString& file, int line, int column, const VbString& message);

    [[nodiscard]] const VbString& getFile() const { return m_file; }
    [[nodiscard]] int getLine() const { return m_line; }
    [[nodiscard]] int getColumn() const { return m_column; }
    /// What was wrong and what was expected, without the position.
    [[nodiscard]] const VbString& getMessage() const { return m_message; }

    static void post(const VbString& file, int line, int column, const VbString& message);

private:
    VbString m_file;
    int m_line;
    int m_column;
    VbString m_message;
};

extern template class meridane::ErrorClass<NxReadError, NxError>;
