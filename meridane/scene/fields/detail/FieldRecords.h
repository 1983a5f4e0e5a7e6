#pragma once

#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/text/detail/ValueBits.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

/// Records of writes to fields.
namespace meridane {

class FieldRecord : public ChangeRecord {
public:
    [[nodiscard]] NxField* field() const noexcept override { return m_field; }
    void notify() const override { m_field->touch(); }

protected:
    FieldRecord(Kind kind, NxField& field)
        : ChangeRecord(kind, *field.getContainer())
        , m_field(&field)
    {
    }

private:
    NxField* m_field;
};

/// The whole value of a field before the first write of a step.
template <typename Value>
class ValueRecord final : public FieldRecord {
public:
    /// `place` is where the field keeps its value.
    ValueRecord(NxField& field, Value& place, Value value)
        : FieldRecord(Kind::Value, field)
        , m_place(&place)
        , m_value(std::move(value))
    {
    }

    void exchange() override { std::swap(*m_place, m_value); }
    [[nodiscard]] bool isSameAsNow() const override { return isSameValue(*m_place, m_value); }
    [[nodiscard]] Extent extent() const noexcept override { return {0, rowsOf(*m_place), rowsOf(m_value)}; }
    [[nodiscard]] std::size_t bytes() const override { return sizeof(*this) - sizeof(Value) + bytesOfValue(m_value); }
    void close() noexcept override { field()->m_isRecorded = false; }

private:
    template <typename Other>
    static std::size_t rowsOf(const Other& /*value*/) noexcept
    {
        return 0;
    }
    template <typename Row>
    static std::size_t rowsOf(const std::vector<Row>& list) noexcept
    {
        return list.size();
    }

    Value* m_place;
    Value m_value;
};

/// Some rows of a list: those that a write inserted, deleted or changed.
template <typename Value>
class RowsRecord final : public FieldRecord {
public:
    /// The write replaces the rows `replaced`, which begin at `start`, by `count` others.
    RowsRecord(
        NxField& field, std::vector<Value>& list, std::size_t start, std::size_t count, std::vector<Value> replaced)
        : FieldRecord(Kind::Rows, field)
        , m_list(&list)
        , m_start(start)
        , m_count(count)
        , m_rows(std::move(replaced))
    {
    }

    void exchange() override
    {
        const auto first = m_list->begin() + static_cast<std::ptrdiff_t>(m_start);
        const auto end = first + static_cast<std::ptrdiff_t>(m_count);
        if (m_count == m_rows.size()) {
            std::swap_ranges(first, end, m_rows.begin());
            return;
        }
        // All memory is allocated before anything changes.
        std::vector<Value> present(first, end);
        m_list->insert(end, m_rows.begin(), m_rows.end());
        const auto inserted = m_list->begin() + static_cast<std::ptrdiff_t>(m_start);
        m_list->erase(inserted, inserted + static_cast<std::ptrdiff_t>(m_count));
        m_count = m_rows.size();
        m_rows = std::move(present);
    }

    [[nodiscard]] bool isSameAsNow() const override
    {
        return m_count == m_rows.size()
            && areSameValues<Value>(std::span<const Value>(*m_list).subspan(m_start, m_count), m_rows);
    }
    [[nodiscard]] Extent extent() const noexcept override { return {m_start, m_count, m_rows.size()}; }

    void show() override { m_list->swap(m_rows); }

    [[nodiscard]] std::size_t bytes() const override
    {
        std::size_t bytes = sizeof(*this);
        for (const Value& value : m_rows)
            bytes += bytesOfValue(value);
        return bytes;
    }

private:
    std::vector<Value>* m_list;
    std::size_t m_start;
    std::size_t m_count; // of the rows that are in the list
    std::vector<Value> m_rows;
};

} // namespace meridane
