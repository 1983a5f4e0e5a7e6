#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/ListField.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/detail/FieldRecords.h"
#include "meridane/scene/text/detail/ValueBits.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <utility>

namespace meridane {

template <typename Value, typename Format>
void ListField<Value, Format>::get1(int index, VbString& text) const
{
    std::string result;
    if (index >= 0 && index < getNum())
        m_format.write(result, m_values[static_cast<std::size_t>(index)]);
    text = VbString(std::move(result));
}

template <typename Value, typename Format>
void ListField<Value, Format>::deleteValues(int start, int count)
{
    const long long first = std::max(start, 0);
    const long long end = count == -1 ? getNum() : std::min<long long>(static_cast<long long>(start) + count, getNum());
    if (first >= end)
        return;
    recordRows(static_cast<std::size_t>(first), static_cast<std::size_t>(end), 0);
    m_values.erase(m_values.begin() + first, m_values.begin() + end);
    touch();
}

template <typename Value, typename Format>
void ListField<Value, Format>::insertSpace(int start, int count)
{
    insertCopies(start, count, Value());
}

template <typename Value, typename Format>
void ListField<Value, Format>::insertCopies(int start, int count, const Value& value)
{
    if (count <= 0)
        return;
    const auto number = static_cast<std::size_t>(count);
    const bool fits = withinMemory((m_values.size() + number) * sizeof(Value), [&] {
        if (!canHave(m_values.size() + number))
            throw std::bad_alloc();
        const auto place = static_cast<std::size_t>(std::clamp(start, 0, getNum()));
        ChangeRecorder* const changes = recordRows(place, place, number);
        try {
            m_values.insert(m_values.begin() + static_cast<std::ptrdiff_t>(place), number, value);
        } catch (...) {
            if (changes != nullptr)
                changes->withdraw();
            throw;
        }
        return true;
    });
    if (fits)
        touch();
}

template <typename Value, typename Format>
std::size_t ListField<Value, Format>::plainRowBytes() const noexcept
{
    return hasPlainRows ? sizeof(Value) : 0;
}

template <typename Value, typename Format>
void ListField<Value, Format>::appendPlainRows(std::string& bytes, int start, int count) const
{
    assert(hasPlainRows && start >= 0 && count >= 0 && count <= getNum() - start && "plain rows that exist");
    if constexpr (hasPlainRows) {
        const auto rows = std::span<const Value>(m_values).subspan(
            static_cast<std::size_t>(start), static_cast<std::size_t>(count));
        bytes.append(reinterpret_cast<const char*>(rows.data()), rows.size_bytes());
    }
}

template <typename Value, typename Format>
bool ListField<Value, Format>::replacePlainRows(int start, int count, std::string_view bytes)
{
    if constexpr (!hasPlainRows) {
        return false;
    } else {
        if (start < 0 || count < 0 || start > getNum() || count > getNum() - start || bytes.size() % sizeof(Value) != 0)
            return false;
        const auto first = static_cast<std::size_t>(start);
        const std::size_t end = first + static_cast<std::size_t>(count);
        const std::size_t rows = bytes.size() / sizeof(Value);
        const bool fits = withinMemory(bytes.size(), [&] {
            if (!canHave(m_values.size() - (end - first) + rows))
                throw std::bad_alloc();
            ChangeRecorder* changes = nullptr;
            if (count == 1 && rows == 1)
                recordRow(start); // which may have a record already
            else
                changes = recordRows(first, end, rows);
            try {
                resizeRows(first, end, rows);
            } catch (...) {
                if (changes != nullptr)
                    changes->withdraw();
                throw;
            }
            return true;
        });
        if (!fits)
            return false;
        if (rows > 0)
            std::memcpy(m_values.data() + first, bytes.data(), bytes.size());
        touch();
        return true;
    }
}

template <typename Value, typename Format>
bool ListField<Value, Format>::replaceRows(int start, int count, std::span<const Value> rows)
{
    if (start < 0 || count < 0 || start > getNum() || count > getNum() - start)
        return false;
    const auto first = static_cast<std::size_t>(start);
    const std::size_t end = first + static_cast<std::size_t>(count);
    const bool fits = withinMemory(rows.size_bytes(), [&] {
        if (!canHave(m_values.size() - (end - first) + rows.size()))
            throw std::bad_alloc();
        // All memory is allocated before anything changes.
        std::vector<Value> copies(rows.begin(), rows.end());
        m_values.reserve(m_values.size() - (end - first) + rows.size());
        recordRows(first, end, rows.size());
        resizeRows(first, end, copies.size());
        std::ranges::move(copies, m_values.begin() + start);
        return true;
    });
    if (fits)
        touch();
    return fits;
}

template <typename Value, typename Format>
void ListField<Value, Format>::resizeRows(std::size_t first, std::size_t end, std::size_t count)
{
    const auto place = [this](std::size_t row) { return m_values.begin() + static_cast<std::ptrdiff_t>(row); };
    if (count > end - first)
        m_values.insert(place(end), count - (end - first), Value());
    else
        m_values.erase(place(first + count), place(end));
}

template <typename Value, typename Format>
bool ListField<Value, Format>::setValues(std::span<const Value> values)
{
    std::vector<Value> copy;
    return withinMemory(values.size_bytes(), [&] {
        copy.assign(values.begin(), values.end());
        return true;
    }) && setValues(std::move(copy));
}

template <typename Value, typename Format>
bool ListField<Value, Format>::setValues(std::vector<Value>&& values)
{
    if (!canHave(values.size()))
        return reportMemory(values.size() * sizeof(Value));
    replace(std::move(values));
    touch();
    return true;
}

template <typename Value, typename Format>
bool ListField<Value, Format>::isSame(const NxField& other) const
{
    return isOfSameClass(other) && areSameValues<Value>(m_values, static_cast<const ListField&>(other).m_values);
}

template <typename Value, typename Format>
int ListField<Value, Format>::firstDifferentRow(const NxField& other) const
{
    if (!isOfSameClass(other))
        return 0;
    const std::vector<Value>& values = static_cast<const ListField&>(other).m_values;
    const auto isSame = [](const Value& left, const Value& right) { return isSameValue(left, right); };
    const auto found = std::mismatch(m_values.begin(), m_values.end(), values.begin(), values.end(), isSame);
    return static_cast<int>(found.first - m_values.begin());
}

template <typename Value, typename Format>
bool ListField<Value, Format>::copyFrom(const NxField& other)
{
    return isOfSameClass(other) && setValues(static_cast<const ListField&>(other).getValues());
}

template <typename Value, typename Format>
std::size_t ListField<Value, Format>::valueBytes() const
{
    if constexpr (std::is_trivially_copyable_v<Value>) {
        return sizeof(m_values) + m_values.size() * sizeof(Value);
    } else {
        std::size_t bytes = sizeof(m_values);
        for (const Value& value : m_values)
            bytes += bytesOfValue(value);
        return bytes;
    }
}

template <typename Value, typename Format>
NxField::Progress ListField<Value, Format>::readText(TextReader& reader, bool first, std::size_t budget)
{
    return readValues(m_values, reader, first, budget);
}

// A slice ends directly after a value, so the next one begins with the separator.
template <typename Value, typename Format>
NxField::Progress ListField<Value, Format>::readValues(
    std::vector<Value>& values, TextReader& reader, bool first, std::size_t budget) const
{
    if (first)
        values.clear();
    const auto maximum = static_cast<std::size_t>(getMaximumNum());
    for (; budget > 0 && !reader.isSpent(); --budget) {
        if constexpr (std::is_same_v<Format, ValueFormat<Value>> && TextNumber<Value>) {
            if (Value value{}; !values.empty() && values.size() < maximum && reader.readPlainFollower(value)) {
                values.push_back(value);
                continue;
            }
        }
        const std::size_t start = reader.position();
        const Progress progress = readNextValue(values, reader, maximum);
        if (reader.isInterrupted()) {
            reader.goBack(start);
            return Progress::More;
        }
        if (progress != Progress::More)
            return progress;
        reader.forget();
    }
    return Progress::More;
}

template <typename Value, typename Format>
NxField::Progress ListField<Value, Format>::readNextValue(
    std::vector<Value>& values, TextReader& reader, std::size_t maximum) const
{
    const bool first = values.empty();
    const bool bracket = first && reader.accept('[');
    const bool ends = first ? bracket && reader.accept(']') : !reader.accept(',') && reader.accept(']');
    if (ends)
        return Progress::Done;
    if (values.size() >= maximum) {
        reader.fail("the end of a list, which has at most " + std::to_string(maximum) + " values");
        return Progress::Failed;
    }
    Value value{};
    if (!m_format.read(reader, value) || reader.isInterrupted())
        return Progress::Failed;
    values.push_back(std::move(value));
    return first && !bracket ? Progress::Done : Progress::More;
}

template <typename Value, typename Format>
bool ListField<Value, Format>::writeText(std::string& text, std::size_t& position, std::size_t budget) const
{
    if (position == 0)
        text += '[';
    bool more = false;
    if constexpr (std::is_same_v<Value, VbString>) {
        more = writeValuesPart(text, m_values, position, textBytesOf(budget));
    } else {
        const std::size_t end = m_values.size() - position > budget ? position + budget : m_values.size();
        for (; position < end; ++position) {
            if (position > 0)
                text += ", ";
            m_format.write(text, m_values[position]);
        }
        more = position < m_values.size();
    }
    if (!more)
        text += ']';
    return more;
}

template <typename Value, typename Format>
bool ListField<Value, Format>::assignText(TextReader& reader)
{
    std::vector<Value> values;
    if (readValues(values, reader, true, std::numeric_limits<std::size_t>::max()) != Progress::Done
        || !reader.expectEnd())
        return false;
    replace(std::move(values));
    return true;
}

template <typename Value, typename Format>
bool ListField<Value, Format>::assign1Text(int index, TextReader& reader)
{
    Value value{};
    if (!m_format.readWhole(reader, value))
        return false;
    recordRow(index);
    m_values[static_cast<std::size_t>(index)] = std::move(value);
    return true;
}

template <typename Value, typename Format>
std::unique_ptr<ChangeRecord> ListField<Value, Format>::recordOfValue()
{
    return std::make_unique<ValueRecord<std::vector<Value>>>(*this, m_values, m_values);
}

template <typename Value, typename Format>
void ListField<Value, Format>::makeRecordOfRow(int row)
{
    const auto first = static_cast<std::size_t>(row);
    ChangeRecorder* const changes = recorder();
    if (changes == nullptr || changes->hasRow(*this, row))
        return;
    changes->add(std::make_unique<RowsRecord<Value>>(*this, m_values, first, 1, std::vector<Value>{m_values[first]}));
    changes->noteRow(*this, row);
}

template <typename Value, typename Format>
ChangeRecorder* ListField<Value, Format>::recordRows(std::size_t first, std::size_t end, std::size_t count)
{
    ChangeRecorder* const changes = recorder();
    if (changes == nullptr)
        return nullptr;
    const auto begin = m_values.begin();
    std::vector<Value> rows(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end));
    changes->add(std::make_unique<RowsRecord<Value>>(*this, m_values, first, count, std::move(rows)));
    return changes;
}

template <typename Value, typename Format>
void ListField<Value, Format>::replace(std::vector<Value>&& values)
{
    if (ChangeRecorder* const changes = recorder()) {
        changes->add(std::make_unique<ValueRecord<std::vector<Value>>>(*this, m_values, std::move(m_values)));
        noteRecorded();
    }
    m_values = std::move(values);
}

} // namespace meridane
