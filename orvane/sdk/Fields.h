#pragma once

#include "meridane/scene/fields/FieldText.h"

/// \file
/// Field classes of a plug-in.
///
///     struct Angle {
///         float degrees = 0;
///
///         friend bool readValue(meridane::TextReader& reader, Angle& angle)
///         {
///             return reader.readNumber(angle.degrees);
///         }
///         friend void writeValue(std::string& text, const Angle& angle) { meridane::writeValue(text, angle.degrees); }
///     };
///
///     class SFAngle : public orv::SingleField<Angle> {
///         NX_FIELD(SFAngle)
///
///     public:
///         using SingleField::SingleField;
///     };
///     NX_FIELD_SOURCE(SFAngle, NxSField, "SFAngle")
///
/// A list is the same with `orv::ListField<Angle>` and `NxMField`. FieldText.h describes the two functions.
namespace orv {

/// The base of a field class with a single value.
template <typename Value, typename Format = meridane::ValueFormat<Value>>
using SingleField = meridane::SingleField<Value, Format>;

/// The base of a field class with a list of values.
template <typename Value, typename Format = meridane::ValueFormat<Value>>
using ListField = meridane::ListField<Value, Format>;

} // namespace orv
