#pragma once

#include "meridane/base/values/VbName.h"

#include <initializer_list>
#include <memory>
#include <string_view>

/// The values of an enumeration, or the bits of a mask, and their names: a table that the fields of a class share. It
/// must outlive them, so it is a static object.
class NxEnumeration {
public:
    /// The name is a word: letters, digits, `_`, `-` and the like, without blanks, quotes, commas, bars or brackets,
    /// and not beginning with a digit or a sign.
    struct Entry {
        const char* name; ///< a word; a literal
        int value; ///< any number; for a mask, a bit
    };
    /// Copies the entries in their order. A name that is no word is a broken contract, which is asserted.
    NxEnumeration(std::initializer_list<Entry> entries);

    /// The number of entries.
    [[nodiscard]] int count() const noexcept { return m_count; }
    /// All values in order; not to be written.
    [[nodiscard]] int* values() const noexcept { return m_values.get(); }
    /// All names in the order of the values; not to be written.
    [[nodiscard]] VbName* names() const noexcept { return m_names.get(); }

    /// Sets `value` to the value of a name. Returns false and doesn't change it if there is no such name.
    bool valueByName(std::string_view name, int& value) const;
    /// The first name of a value, or null.
    [[nodiscard]] const VbName* nameByValue(int value) const;

private:
    int m_count;
    std::unique_ptr<int[]> m_values;
    std::unique_ptr<VbName[]> m_names;
};
