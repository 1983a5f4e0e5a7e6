#pragma once

#include <cstdint>

class DvRealSlider;
class DvSlider;
class NxField;

// The value of a field in the slider of a numeric editor, and back.
namespace orvane {

/// Shows a value in a real slider, whose range is widened to it first. Contract: so is a bounded range, with its
/// validator, so the value of a field is never refused or limited.
void showReal(DvRealSlider& slider, double value);

/// Shows the text form of an integer field.
void showInteger(DvSlider& slider, const NxField& field);

/// Writes a slider's value to an integer field, always in decimal, and pushes the command with the slider's snapshot.
void applyInteger(DvSlider& slider, NxField& field, std::int64_t value);

} // namespace orvane
