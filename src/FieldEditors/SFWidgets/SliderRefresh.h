#pragma once

#include <cstdint>

class DvRealSlider;
class DvSlider;
class NxField;

// How the value of a field comes into the slider of a numeric editor, and back.
namespace orvane {

/// Shows a value in a real slider, whose range grows to it first: also a bounded one, and its validator with it. So the
/// value of a field is never refused or limited on its way in.
void showReal(DvRealSlider& slider, double value);

/// Shows the text form of an integer field.
void showInteger(DvSlider& slider, const NxField& field);

/// Writes a slider's value to an integer field, always in decimal, whatever the radix of the slider, and pushes the
/// command with the slider's snapshot.
void applyInteger(DvSlider& slider, NxField& field, std::int64_t value);

} // namespace orvane
