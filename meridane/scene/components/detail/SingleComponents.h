#pragma once

#include "meridane/scene/components/detail/ValueComponents.h"
#include "meridane/scene/fields/SingleField.h"

namespace meridane {

/// The components of a class of fields with a single value.
template <typename Value, typename Format>
class SingleComponents final : public ValueComponents<Value> {
public:
    using Field = SingleField<Value, Format>;
    using Base = ValueComponents<Value>;
    using Base::Base;

    [[nodiscard]] int rows(const NxField& /*field*/) const override { return 1; }
    [[nodiscard]] double get(const NxField& field, int row, int component) const override
    {
        return row == 0 && Base::has(component) ? Base::part(static_cast<const Field&>(field).getValue(), component)
                                                : std::numeric_limits<double>::quiet_NaN();
    }
    void read(const NxField& field, int firstRow, int component, std::span<double> out) const override
    {
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = get(field, i == 0 ? firstRow : -1, component);
    }
    bool setRow(NxField& field, int row, std::span<const double> components) const override
    {
        Value value{};
        if (row != 0 || !Base::join(components, value))
            return false;
        static_cast<Field&>(field).setValue(value);
        return true;
    }
    bool setColumn(
        NxField& field, std::span<const int> rows, int component, std::span<const double> values) const override
    {
        if (rows.size() != values.size())
            return false;
        if (rows.empty())
            return true;
        if (rows.size() != 1 || rows[0] != 0 || !Base::has(component) || !Base::Conversion::fits(values[0]))
            return false;
        auto& single = static_cast<Field&>(field);
        single.setValue(Base::withPart(single.getValue(), component, values[0]));
        return true;
    }
};

} // namespace meridane
