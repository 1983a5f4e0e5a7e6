#pragma once

#include "orvane/extender/detail/FieldWatch.h"

#include <cstddef>

class NxField;

/// Estimates the memory of a command from the field before the execution and after it.
///
/// A command on a single value keeps two texts of it. One on a list keeps two texts of a row, and the texts of the rows
/// that it removes. The execution may destroy the field.
class CommandBytes {
public:
    explicit CommandBytes(NxField* field);

    [[nodiscard]] std::size_t afterExecution() const;

private:
    [[nodiscard]] int rows(int withoutList) const;

    FieldWatch m_field;
    int m_rows;
    std::size_t m_rowBytes;
};
