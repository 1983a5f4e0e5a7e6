#pragma once

#include "meridane/scene/fields/NxField.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The root of all fields that hold a list of values.
///
/// Rows are counted from 0. The values lie next to each other in memory.
class NxMField : public NxField {
public:
    /// The run-time type of all lists, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();

    /// The greatest number of values in a list: 2^31 - 1, since rows are counted by `int`. A change that would exceed
    /// it isn't made, and is reported like a list that doesn't fit in memory.
    [[nodiscard]] static int getMaximumNum() noexcept;
    /// Lowers that number, so that tests don't need gigabytes.
    static void setMaximumNum(int count) noexcept;

    /// The number of values.
    [[nodiscard]] virtual int getNum() const = 0;
    /// The first row in which a list of the same class has another value to the bit, or no value; `getNum` if there is
    /// none. 0 for a field of another class.
    [[nodiscard]] virtual int firstDifferentRow(const NxField& other) const = 0;
    /// Writes one value in text form; the empty text for a row that doesn't exist.
    virtual void get1(int index, VbString& text) const = 0;
    /// Sets one value from its text form. Changes nothing and returns false if the text doesn't parse as a whole or the
    /// row doesn't exist.
    bool set1(int index, const VbString& text);
    /// The same for NUL-terminated UTF-8.
    bool set1(int index, const char* text);

    /// Notifies the observers that `count` values from `start` on changed; `resized` is 1 if their number may have
    /// changed.
    void valueChanged(int start, int count, int resized);

    /// Removes `count` values from `start` on; the part outside of the list is ignored. A count of -1 means to the end.
    virtual void deleteValues(int start, int count) = 0;
    /// Inserts `count` values at `start`, which is limited to 0 to `getNum`, each with the default of its type. If the
    /// list doesn't fit in memory, it isn't changed, and an `NxMemoryError` is reported.
    virtual void insertSpace(int start, int count) = 0;

    /// The size of a row in bytes, for lists of plain numbers: rows of them may be copied as bytes, and may have any
    /// bits. 0 for other lists.
    [[nodiscard]] virtual std::size_t plainRowBytes() const noexcept = 0;
    /// Appends the bytes of `count` rows from `start` on. The list must be one of plain numbers, and the rows must
    /// exist.
    virtual void appendPlainRows(std::string& bytes, int start, int count) const = 0;
    /// Replaces `count` rows from `start` on by those bytes and notifies the observers. Changes nothing and returns
    /// false if the list isn't one of plain numbers, the rows don't exist, the bytes end within a row, or the list
    /// wouldn't fit in memory.
    virtual bool replacePlainRows(int start, int count, std::string_view bytes) = 0;

protected:
    using NxField::NxField;

    /// Whether a list can have that number of values.
    [[nodiscard]] static bool canHave(std::size_t count) noexcept;

private:
    virtual bool assign1Text(int index, meridane::TextReader& reader) = 0;
};
