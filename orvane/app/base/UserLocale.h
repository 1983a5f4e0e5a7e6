#pragma once

#include <QLocale>

#include <cstddef>

class QDateTime;

namespace orvane {

/// Makes the C locale Qt's default, for numbers: validators and conversions of editors read a point as the decimal sign
/// and write one, as scenes do, on every desktop. To be called before the first widget is made.
void useProgramLocale();

/// The locale of the user's desktop: for dates, times, the order of names, and counts in messages.
[[nodiscard]] QLocale userLocale();
/// The same, or that of English for a desktop without a language, so that thousands have separators.
[[nodiscard]] QLocale messageLocale();

/// A number of things, in the way of the user's desktop. Not for values, which are the same on every desktop.
[[nodiscard]] QString countText(qlonglong count, const QLocale& locale = messageLocale());
[[nodiscard]] inline QString countText(int count)
{
    return countText(static_cast<qlonglong>(count));
}
[[nodiscard]] inline QString countText(std::size_t count)
{
    return countText(static_cast<qlonglong>(count));
}
/// A size in bytes, with the unit that suits it and one digit behind the decimal sign, unless it is 0.
[[nodiscard]] QString sizeText(qlonglong bytes, const QLocale& locale = messageLocale());
/// A moment to the second: of that day by the clock alone, of other days with the date. Without a language it is as in
/// ISO 8601.
[[nodiscard]] QString momentText(const QDateTime& moment, const QDate& today, const QLocale& locale = userLocale());

} // namespace orvane
