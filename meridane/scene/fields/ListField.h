#pragma once

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/text/ValueText.h"
#include "meridane/scene/text/detail/PlainValue.h"

#include <cassert>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace meridane {

/// The base of all fields with a list of values. `Format` reads and writes the text of one value.
///
/// The virtual operations are defined in ListFieldText.h, which the source file of a field class includes to
/// instantiate them once.
template <typename Value, typename Format = ValueFormat<Value>>
class ListField : public NxMField {
public:
    /// How a value is passed: numbers by value, all others by reference.
    using Read = std::conditional_t<std::is_arithmetic_v<Value>, Value, const Value&>;

    /// `container` may be null, for a field without a node.
    ListField(NxFieldContainer* container, const FieldDeclaration& declaration, std::vector<Value> values = {},
        Format format = Format())
        : NxMField(container, declaration)
        , m_format(format)
        , m_values(std::move(values))
    {
        assert(canHave(m_values.size()) && "rows are counted by int");
    }

    /// The number of rows.
    [[nodiscard]] int getNum() const final { return static_cast<int>(m_values.size()); }
    /// One value, of a row that exists.
    [[nodiscard]] Read operator[](int index) const
    {
        assert(index >= 0 && index < getNum() && "the row must exist");
        return m_values[static_cast<std::size_t>(index)];
    }
    /// Sets one value and notifies the observers. Returns false, and changes nothing, if the row doesn't exist.
    bool set1Value(int index, Read value)
    {
        if (index < 0 || index >= getNum())
            return false;
        recordRow(index);
        m_values[static_cast<std::size_t>(index)] = value;
        touch();
        return true;
    }

    /// All values, contiguous in memory; valid until the list changes.
    [[nodiscard]] std::span<const Value> getValues() const noexcept { return m_values; }
    /// Copies all values at once and notifies the observers once. If the values don't fit in memory, or are more than
    /// `getMaximumNum`, reports an `NxMemoryError`, changes nothing and returns false.
    bool setValues(std::span<const Value> values);
    /// The same without a copy.
    bool setValues(std::vector<Value>&& values);
    /// Returns all values without a copy, leaves the list empty and notifies the observers once.
    [[nodiscard]] std::vector<Value> takeValues()
    {
        recordValue();
        std::vector<Value> values = std::exchange(m_values, {});
        touch();
        return values;
    }

    /// Replaces `count` rows from `start` on by others, which may lie in the list itself, and notifies the observers
    /// once. Returns false, and changes nothing, if the rows don't exist or the list doesn't fit in memory, which is
    /// reported.
    bool replaceRows(int start, int count, std::span<const Value> rows);

    /// Compares by the bits of the values, from the first row on.
    [[nodiscard]] int firstDifferentRow(const NxField& other) const override;
    /// Writes the text of one value; the empty text for a row that doesn't exist.
    void get1(int index, VbString& text) const override;
    /// Removes rows and notifies the observers once; -1 as `count` removes all rows from `start` on.
    void deleteValues(int start, int count) override;
    /// Inserts rows with the value `Value()`, such as 0, and notifies the observers once.
    void insertSpace(int start, int count) override;
    /// The size of `Value` for lists of plain numbers, whose text has no format of its own; otherwise 0.
    [[nodiscard]] std::size_t plainRowBytes() const noexcept override;
    /// Appends the bytes of rows as they are in memory.
    void appendPlainRows(std::string& bytes, int start, int count) const override;
    /// Replaces rows by bytes that `appendPlainRows` has written, and notifies the observers once.
    bool replacePlainRows(int start, int count, std::string_view bytes) override;

    /// Whether the other list is of this class and has as many rows with the same bits.
    [[nodiscard]] bool isSame(const NxField& other) const override;
    /// Copies all rows of a list of this class and notifies the observers once.
    bool copyFrom(const NxField& other) override;
    /// The size of all values, with the memory that they own, in bytes.
    [[nodiscard]] std::size_t valueBytes() const override;
    /// Reads about `budget` rows at each call.
    Progress readText(TextReader& reader, bool first, std::size_t budget) override;
    /// Appends about `budget` rows at each call, `[` and `]` around them, with commas between them.
    bool writeText(std::string& text, std::size_t& position, std::size_t budget) const override;
    /// A record with a copy of all rows.
    [[nodiscard]] std::unique_ptr<ChangeRecord> recordOfValue() override;

protected:
    /// What reads and writes the text of a value, such as the names of an enumeration.
    [[nodiscard]] const Format& format() const noexcept { return m_format; }
    /// `insertSpace` with copies of a value.
    void insertCopies(int start, int count, const Value& value);

private:
    static constexpr bool hasPlainRows = PlainValue<Value> && std::is_same_v<Format, ValueFormat<Value>>;

    bool assignText(TextReader& reader) override;
    bool assign1Text(int index, TextReader& reader) override;
    /// Reports a row that is about to change.
    void recordRow(int row)
    {
        if (ChangeRecorder::attached() != nullptr) [[unlikely]]
            makeRecordOfRow(row);
    }
    void makeRecordOfRow(int row);
    /// Reports that `count` new values are about to replace the rows from `first` to before `end`. Returns the recorder
    /// if it took a record, so that it can be withdrawn.
    ChangeRecorder* recordRows(std::size_t first, std::size_t end, std::size_t count);
    /// Makes the list longer or shorter, so that it has `count` rows in place of those from `first` to before `end`.
    void resizeRows(std::size_t first, std::size_t end, std::size_t count);
    /// Replaces the list. The old one is moved to the record of the change if there is one.
    void replace(std::vector<Value>&& values);
    Progress readNextValue(std::vector<Value>& values, TextReader& reader, std::size_t maximum) const;
    Progress readValues(std::vector<Value>& values, TextReader& reader, bool first, std::size_t budget) const;

    [[no_unique_address]] Format m_format;
    std::vector<Value> m_values;
};

} // namespace meridane
