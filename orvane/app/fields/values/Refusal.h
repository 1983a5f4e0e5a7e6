#pragma once

#include <QString>

class NxField;

namespace orvane {

/// Says that a text isn't a value of the field, and what the field takes.
[[nodiscard]] QString refusedText(const NxField& field, const QString& text);

} // namespace orvane
