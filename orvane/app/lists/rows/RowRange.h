#pragma once

#include "orvane/app/base/Result.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

/// A range of rows as people write it in Python, such as `0:5000`, `10:`, `-5:` or `::-1`.
///
/// It is `first:end:step`; each part may be left out. Rows count from 0, negative numbers from the end of the list. The
/// row `end` isn't part of the range. With a negative step the rows go backwards. Parts beyond the list are cut.
class RowRange {
    Q_DECLARE_TR_FUNCTIONS(RowRange)

public:
    /// The rows of a range in a list of a certain length: `first`, `first + step` and so on.
    struct Rows {
        int first = 0;
        int step = 1;
        int count = 0;

        bool operator==(const Rows&) const = default;
    };

    /// All rows.
    RowRange() = default;
    /// The empty text means all rows. A single number means that one row. Fails with a message for other texts.
    [[nodiscard]] static orvane::Result<RowRange> parse(const QString& text);

    /// Whether the range is all rows in their order, whatever the length of the list.
    [[nodiscard]] bool isAll() const noexcept;
    [[nodiscard]] Rows rows(int count) const;
    bool operator==(const RowRange&) const = default;

private:
    std::optional<long long> m_first;
    std::optional<long long> m_end;
    long long m_step = 1;
};
