#pragma once

/// \file
/// The virtual operations of `SingleField` and `ListField` for types of values that the toolkit doesn't know. A source
/// file that declares a field class on one of them includes this header.
///
/// The text form of a value is a pair of functions that the compiler finds with the type, for instance as friends:
///
///     bool readValue(meridane::TextReader& reader, Angle& value);
///     void writeValue(std::string& text, const Angle& value);
///
/// `readValue` changes the value only if it returns true. In a scene file a value ends with its line, or with a `;`, a
/// `}` or a `#` outside of quotes and brackets, so the text of a value has none of them.
///
/// Two values of a type that can be copied byte by byte are the same if all their bytes are; such a type must have no
/// padding. Any other type needs an `operator==`.

#include "meridane/scene/fields/detail/ListFieldText.h" // IWYU pragma: export
#include "meridane/scene/fields/detail/SingleFieldText.h" // IWYU pragma: export
