#pragma once

#include <QLocale>

namespace orvane {

/// Makes the C locale Qt's default, for numbers: validators and conversions of editors read a point as the decimal sign
/// and write one, as scenes do, on every desktop. To be called before the first widget is made.
void useProgramLocale();

/// The locale of the user's desktop: for dates, times, and the order of names.
[[nodiscard]] QLocale userLocale();

} // namespace orvane
