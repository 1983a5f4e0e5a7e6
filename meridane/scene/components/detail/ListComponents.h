#pragma once

#include "meridane/scene/components/detail/ValueComponents.h"
#include "meridane/scene/fields/ListField.h"
#include "meridane/scene/fields/MemoryGuard.h"

#include <string>
#include <vector>

namespace meridane {

/// The components of a class of fields with a list of values.
template <typename Value, typename Format>
class ListComponents final : public ValueComponents<Value> {
public:
    using Field = ListField<Value, Format>;
    using Base = ValueComponents<Value>;
    using Base::Base;

    [[nodiscard]] int rows(const NxField& field) const override { return of(field).getNum(); }
    [[nodiscard]] double get(const NxField& field, int row, int component) const override
    {
        const Field& list = of(field);
        return row >= 0 && row < list.getNum() && Base::has(component) ? Base::part(list[row], component)
                                                                       : std::numeric_limits<double>::quiet_NaN();
    }
    void read(const NxField& field, int firstRow, int component, std::span<double> out) const override
    {
        std::span<const Value> values = of(field).getValues();
        if (firstRow < 0 || static_cast<std::size_t>(firstRow) > values.size() || !Base::has(component))
            values = {};
        else
            values = values.subspan(static_cast<std::size_t>(firstRow));
        const std::size_t count = std::min(values.size(), out.size());
        for (std::size_t i = 0; i < count; ++i)
            out[i] = Base::part(values[i], component);
        std::ranges::fill(out.subspan(count), std::numeric_limits<double>::quiet_NaN());
    }
    bool setRow(NxField& field, int row, std::span<const double> components) const override
    {
        Value value{};
        return Base::join(components, value) && set1(field, row, value);
    }
    bool setColumn(
        NxField& field, std::span<const int> rows, int component, std::span<const double> values) const override
    {
        const int num = of(field).getNum();
        if (rows.size() != values.size() || !Base::has(component)
            || !std::ranges::all_of(values, &Base::Conversion::fits))
            return false;
        if (rows.empty())
            return true;
        if (rows.front() < 0 || rows.back() >= num
            || std::ranges::adjacent_find(rows, std::ranges::greater_equal()) != rows.end())
            return false;
        if (rows.size() == 1)
            return set1(field, rows[0], Base::withPart(of(field)[rows[0]], component, values[0]));
        return setRows(static_cast<Field&>(field), rows, component, values);
    }

private:
    [[nodiscard]] static const Field& of(const NxField& field) { return static_cast<const Field&>(field); }

    static bool set1(NxField& field, int row, const Value& value)
    {
        auto& list = static_cast<Field&>(field);
        return withinMemory(sizeof(Value), [&] { return list.set1Value(row, value); });
    }

    /// Writes several rows that exist. Rows that are close to each other are replaced together, so that the record of
    /// the change has only these; otherwise the record takes over the list as it was, and so does the next write of the
    /// same step without a record.
    static bool setRows(Field& list, std::span<const int> rows, int component, std::span<const double> values)
    {
        constexpr std::size_t mostBytes = 65'536;
        const auto extent = static_cast<std::size_t>(rows.back() - rows.front()) + 1;
        const std::size_t bytes = extent * sizeof(Value);
        const bool replacesSome
            = list.plainRowBytes() > 0 && bytes <= mostBytes && extent < list.getValues().size() / 2;
        const int first = replacesSome ? rows.front() : 0;
        const auto changed = [&](std::vector<Value>& present) {
            for (std::size_t i = 0; i < rows.size(); ++i) {
                Value& value = present[static_cast<std::size_t>(rows[i] - first)];
                value = Base::withPart(value, component, values[i]);
            }
        };
        return withinMemory(list.getValues().size_bytes(), [&] {
            const std::span<const Value> present = list.getValues();
            if (!replacesSome) {
                std::vector<Value> all(present.begin(), present.end());
                changed(all);
                return list.setValues(std::move(all));
            }
            const auto part = present.subspan(static_cast<std::size_t>(first), extent);
            std::vector<Value> some(part.begin(), part.end());
            changed(some);
            return list.replacePlainRows(
                first, static_cast<int>(extent), std::string_view(reinterpret_cast<const char*>(some.data()), bytes));
        });
    }
};

} // namespace meridane
