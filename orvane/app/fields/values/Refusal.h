#pragma once

#include <QString>

class NxField;

namespace orvane {

/// Says that a text isn't a value of the field, and what the field takes.
[[nodiscard]] QString refusedText(const NxField& field, const QString& text);

/// Why a component of the field doesn't take a number, and what it takes; empty if it does.
[[nodiscard]] QString refusedNumber(const NxField& field, int component, double number);

} // namespace orvane
