#pragma once

// The kinds by which editors choose sliders, validators and tables. The operations that take a kind take its number; a
// number without a kind has the effect that the operation documents.
namespace orvane {

/// The sliders of `makeSlider`.
enum class SliderKind { Float = 1, Double = 2, Int32 = 3, UInt32 = 4, Int16 = 5, UInt16 = 6 };

/// The integers of `DvIntSlider` (`Int32`, `Int16`) and `DvUIntSlider` (`UInt32`, `UInt16`).
enum class IntegerKind { Int32 = 1, UInt32 = 2, Int16 = 3, UInt16 = 4 };

/// The values that a cell of a row table takes. No editor uses `AnyInt32` and `AnyUInt32`.
enum class CellKind {
    Text = 0,
    Int16 = 1,
    UInt16 = 2,
    AnyInt32 = 3,
    AnyUInt32 = 4,
    Int32 = 5,
    UInt32 = 6,
    Float = 7,
    Double = 8
};

/// The validators of the lines in a popup: `Integer` has the range of an int, `Number` that of a double.
enum class ValidatorKind { None = 0, Int16 = 1, Integer = 2, Float = 3, Number = 4 };

/// The tables of a multi-value editor.
enum class TableKind { Plain = 0, Color = 1 };

/// The ranges of a pair of spin boxes. `Integer` and `Int32` are the same range.
enum class SpinBoxKind { Int16 = 0, Integer = 1, Int32 = 2 };

/// The number of a kind, for the operations that take one.
template <typename Kind>
[[nodiscard]] constexpr int kindNumber(Kind kind) noexcept
{
    return static_cast<int>(kind);
}

} // namespace orvane
