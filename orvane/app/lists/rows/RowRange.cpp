#include "orvane/app/lists/rows/RowRange.h"

#include "orvane/app/base/PlainText.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace {

/// Numbers beyond this are beyond every list.
constexpr long long farthest = 1LL << 40;

/// A part of a range; nothing for an empty one. Fails for what isn't a whole number.
orvane::Result<std::optional<long long>> parseRangePart(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::optional<long long>();
    bool isNumber = false;
    const long long number = trimmed.toLongLong(&isNumber);
    const bool isLong = trimmed.size() > 18;
    const QStringView digits = QStringView(trimmed).mid(trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0);
    const bool hasDigitsOnly = !digits.isEmpty()
        && std::all_of(digits.begin(), digits.end(), [](QChar sign) { return sign >= u'0' && sign <= u'9'; });
    if (!hasDigitsOnly || (!isNumber && !isLong))
        return orvane::Failure{
            RowRange::tr("\"%1\" isn't the number of a row. Write a range such as 0:5000, 10:, -5: or ::-1.")
                .arg(orvane::shortLine(trimmed, 40))};
    if (!isNumber)
        return std::optional(trimmed.startsWith(u'-') ? -farthest : farthest);
    return std::optional(std::clamp(number, -farthest, farthest));
}

/// Of a list with `count` rows: the row that a part means, limited to `lowest` and `highest`.
long long rangePlaceOf(
    const std::optional<long long>& part, long long otherwise, long long count, long long lowest, long long highest)
{
    if (!part)
        return otherwise;
    return std::clamp(*part < 0 ? *part + count : *part, lowest, highest);
}

} // namespace

orvane::Result<RowRange> RowRange::parse(const QString& text)
{
    constexpr qsizetype mostParts = 3;
    RowRange range;
    if (text.trimmed().isEmpty())
        return range;
    const QStringList texts = text.split(u':');
    if (texts.size() > mostParts)
        return orvane::Failure{tr("A range has at most three parts: first:end:step.")};
    std::optional<long long> parts[mostParts];
    for (qsizetype part = 0; part < texts.size(); ++part) {
        const auto parsed = parseRangePart(texts[part]);
        if (!parsed)
            return orvane::Failure{parsed.error()};
        parts[part] = parsed.value();
    }
    if (parts[2] == 0)
        return orvane::Failure{tr("The step of a range can't be 0.")};
    range.m_first = parts[0];
    range.m_end = parts[1];
    range.m_step = parts[2].value_or(1);
    if (texts.size() == 1) // the end of the last row can't be written as a number, which would be 0
        range.m_end = parts[0] == -1 ? std::nullopt : std::optional(*parts[0] + 1);
    return range;
}

bool RowRange::isAll() const noexcept
{
    return m_step == 1 && !m_end && m_first.value_or(0) == 0;
}

RowRange::Rows RowRange::rows(int count) const
{
    const bool backwards = m_step < 0;
    const long long lowest = backwards ? -1 : 0;
    const long long highest = backwards ? count - 1LL : count;
    const long long first = rangePlaceOf(m_first, backwards ? highest : lowest, count, lowest, highest);
    const long long end = rangePlaceOf(m_end, backwards ? lowest : highest, count, lowest, highest);
    const long long length = backwards ? first - end : end - first;
    if (length <= 0)
        return {};
    const long long stride = backwards ? -m_step : m_step;
    constexpr long long most = std::numeric_limits<int>::max();
    return {static_cast<int>(first), static_cast<int>(std::clamp(m_step, -most, most)),
        static_cast<int>((length + stride - 1) / stride)};
}
