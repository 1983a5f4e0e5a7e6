#include "orvane/app/history/StepText.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/compare/ShortText.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/journal/JournalStep.h"

#include <QCoreApplication>

#include <algorithm>
#include <string>

namespace {

using meridane::ChangeRecord;
using Records = std::span<const std::unique_ptr<ChangeRecord>>;

constexpr std::size_t shownLength = 200; // bytes
constexpr std::size_t mostRowsShown = 16;

QString tr(const char* text, int count = -1)
{
    return QCoreApplication::translate("StepText", text, nullptr, count);
}

/// Such as "3: 1 0 0": some rows of a list, with the number of the first one.
QString rowsText(const NxMField& list, std::size_t first, std::size_t count)
{
    if (count == 0)
        return {};
    std::string text = std::to_string(first) + ": ";
    VbString value;
    for (std::size_t row = 0; row < count; ++row) {
        if (row > 0)
            text += ", ";
        if (row == mostRowsShown || text.size() > shownLength)
            return orvane::toQString(text + "…");
        list.get1(static_cast<int>(first + row), value);
        text += meridane::shortText(value.view(), {}, shownLength);
    }
    return orvane::toQString(text);
}

/// The rows that a step changed, before or after it.
struct RowRange {
    std::size_t first;
    std::size_t count;
};

/// What is there now.
QString textOf(const ChangeRecord& record, const std::optional<RowRange>& rows)
{
    switch (record.kind()) {
    case ChangeRecord::Kind::Name:
        return orvane::toQString(record.node().getName());
    case ChangeRecord::Kind::Ignored:
        return record.field()->isIgnored() ? tr("ignored") : tr("used");
    default:
        break;
    }
    if (rows)
        return rowsText(dynamic_cast<const NxMField&>(*record.field()), rows->first, rows->count);
    return orvane::toQString(meridane::shortValue(*record.field(), nullptr, shownLength));
}

QString textAt(
    const PastState::History& history, const ChangeRecord& record, int position, const std::optional<RowRange>& rows)
{
    const PastState past(history, *StepPlace::of(record), position, PastState::mostShown);
    return past.isReached() ? orvane::oneLine(textOf(record, rows)) : QString(QChar(0x2026));
}

} // namespace

std::optional<StepPlace> orvane::onlyPlaceOf(const meridane::JournalStep& step)
{
    const Records records = step.records();
    const auto place = StepPlace::of(*records.front());
    const auto isSame = [&place](const auto& record) { return StepPlace::of(*record) == place; };
    return std::ranges::all_of(records, isSame) ? place : std::nullopt;
}

StepText orvane::stepText(const PastState::History& history, int step)
{
    const meridane::JournalStep* const changes = history.steps.changes(step);
    if (changes == nullptr)
        return {};
    const Records records = changes->records();
    const ChangeRecord& first = *records.front();
    if (!onlyPlaceOf(*changes)) {
        const auto isOfChildren = [](const auto& record) { return record->kind() == ChangeRecord::Kind::Children; };
        return {{}, std::ranges::all_of(records, isOfChildren) ? QString() : tr("%1 changes").arg(records.size())};
    }
    std::optional<RowRange> before;
    std::optional<RowRange> after;
    if (records.size() == 1 && first.kind() == ChangeRecord::Kind::Rows) {
        const ChangeRecord::Extent rows = first.extent();
        before = RowRange{rows.start, rows.recorded};
        after = RowRange{rows.start, rows.present};
        if (step >= history.steps.position())
            std::swap(before, after);
    }
    return {textAt(history, first, step, before), textAt(history, first, step + 1, after)};
}
