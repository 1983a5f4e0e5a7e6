#pragma once

#include "meridane/scene/fields/NxField.h"

/// The root of all fields that hold a list of values.
///
/// Rows are counted from 0. The values lie next to each other in memory.
class NxMField : public NxField {
public:
    [[nodiscard]] static NxType getClassTypeId();

    /// The most values that a list can have: 2^31 - 1, for rows are counted by `int`. A list that would have more stays
    /// as it is, and what was asked for is reported like a list that doesn't fit in memory.
    [[nodiscard]] static int getMaximumNum() noexcept;
    /// Lowers that number, to see what happens there without the gigabytes.
    static void setMaximumNum(int count) noexcept;

    /// The number of values.
    [[nodiscard]] virtual int getNum() const = 0;
    /// Writes one value in text form; the empty text for a row that doesn't exist.
    virtual void get1(int index, VbString& text) const = 0;
    /// Takes one value from its text form. A text that doesn't parse whole, or a row that doesn't exist, changes
    /// nothing and gives false.
    bool set1(int index, const VbString& text);
    bool set1(int index, const char* text);

    /// Tells the observers that `count` values from `start` on changed; `resized` is 1 where their number may have.
    void valueChanged(int start, int count, int resized);

    /// Removes `count` values from `start` on; what lies outside the list is left out of account. A count of -1 means
    /// to the end.
    virtual void deleteValues(int start, int count) = 0;
    /// Opens `count` new values at `start` (which is held to 0 to `getNum`), each as a new value of its type is. A list
    /// that doesn't fit in memory stays as it is and is reported as an `NxMemoryError`.
    virtual void insertSpace(int start, int count) = 0;

protected:
    using NxField::NxField;

    /// True for a number of values that a list can have.
    [[nodiscard]] static bool canHave(std::size_t count) noexcept;

private:
    virtual bool assign1Text(int index, meridane::TextReader& reader) = 0;
};
