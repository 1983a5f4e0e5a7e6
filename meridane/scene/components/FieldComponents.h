#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class NxField;
class NxType;

namespace meridane {

/// The numbers that each value of a field consists of, read and written alike for all field classes. There is one
/// object for each class of numeric fields, which lives as long as the program. Thread of the user interface only.
///
/// A field that is passed must be one for which `of` returns this object.
class FieldComponents {
public:
    /// The type of a component. The integers have 16 bits (`Short`, `UShort`) or 32; a `Flag` is 0 or 1.
    enum class Number : std::uint8_t { Float, Double, Short, UShort, Int, UInt, Flag };

    FieldComponents(const FieldComponents&) = delete;
    FieldComponents& operator=(const FieldComponents&) = delete;

    /// The components of a field; null for a class whose values aren't numbers (texts, names, images), and for a class
    /// of a plug-in that doesn't derive from a numeric one.
    [[nodiscard]] static const FieldComponents* of(const NxField& field);
    /// The same for all fields of a class.
    [[nodiscard]] static const FieldComponents* of(NxType fieldClass);

    /// The number of components of one value: 1 for a number, a boolean, an enumeration and a bit mask, 3 for a vector
    /// of three, 16 for a matrix.
    [[nodiscard]] virtual int count() const noexcept = 0;
    /// The name of a component in the order of the text form: "x" to "w" for vectors, "r" to "a" for colours, "angle"
    /// after the axis of a rotation, in radians, "distance" after the normal of a plane, "m00" to "m33" row by row,
    /// "min x" to "max z" for boxes. Empty for a single number and for a component that doesn't exist.
    [[nodiscard]] virtual std::string_view name(int component) const noexcept = 0;
    /// The type of all components.
    [[nodiscard]] virtual Number number() const noexcept = 0;
    /// The least and the greatest finite number of that type.
    [[nodiscard]] virtual double lowest() const noexcept = 0;
    [[nodiscard]] virtual double highest() const noexcept = 0; ///< see `lowest`
    /// Whether the type has whole numbers only.
    [[nodiscard]] bool isWhole() const noexcept { return number() != Number::Float && number() != Number::Double; }
    /// Why a component can't have that number, in plain words: it isn't whole, out of range or not finite. Nothing if
    /// it can. Floating point types take infinities and NaN.
    [[nodiscard]] std::optional<std::string> refusal(double value) const;

    /// The number of values: 1 for a single value.
    [[nodiscard]] virtual int rows(const NxField& field) const = 0;
    /// A number of a value; NaN for a row or a component that doesn't exist.
    [[nodiscard]] virtual double get(const NxField& field, int row, int component) const = 0;
    /// A component of the rows from `firstRow` on, one for each element of `out`; NaN for rows that don't exist.
    virtual void read(const NxField& field, int firstRow, int component, std::span<double> out) const = 0;

    /// Writes one number with the field's own setter, so that the write is recorded and notifies the observers. Changes
    /// nothing and returns false if the row or the component doesn't exist or `refusal` has a reason. A float is
    /// rounded; the normal of a plane is normalised as a whole after each write.
    bool set(NxField& field, int row, int component, double value) const;
    /// Writes a whole value, `count` numbers.
    virtual bool setRow(NxField& field, int row, std::span<const double> components) const = 0;
    /// Writes a component of many rows with one notification and one record. `rows` are sorted and unique, with a value
    /// for each. Changes nothing and returns false if any of them can't be written, or if the rows don't fit in memory
    /// a second time, which is reported.
    virtual bool setColumn(
        NxField& field, std::span<const int> rows, int component, std::span<const double> values) const = 0;

protected:
    FieldComponents() = default;
    ~FieldComponents() = default;
};

} // namespace meridane
