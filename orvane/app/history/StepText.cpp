#include "orvane/app/history/StepText.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
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
/// How many changes of rows may lie between a shown value and the present, so that a row of the list is ready in a
/// fraction of a millisecond.
constexpr std::size_t mostRecords = 500;

struct StepTextTexts {
    Q_DECLARE_TR_FUNCTIONS(StepText)
};

/// Such as "3: 1 0 0": rows of a list, with the number that the first one has.
QString rowsText(const NxMField& list, int row, std::size_t count, std::size_t number)
{
    if (count == 0)
        return {};
    std::string text = std::to_string(number) + ": ";
    VbString value;
    for (std::size_t place = 0; place < count; ++place) {
        if (place > 0)
            text += ", ";
        if (place == mostRowsShown || text.size() > shownLength)
            return orvane::toQString(text + "…");
        list.get1(row + static_cast<int>(place), value);
        text += meridane::shortText(value.view(), {}, shownLength);
    }
    return orvane::toQString(text);
}

/// What is at the place of the record now.
QString presentText(const ChangeRecord& record)
{
    switch (record.kind()) {
    case ChangeRecord::Kind::Name:
        return orvane::toQString(record.node().getName());
    case ChangeRecord::Kind::Ignored:
        return record.field()->isIgnored() ? StepTextTexts::tr("ignored") : StepTextTexts::tr("used");
    default:
        return orvane::toQString(meridane::shortValue(*record.field(), nullptr, shownLength));
    }
}

QString recordedText(ChangeRecord& record)
{
    const ChangeRecord::Extent extent = record.extent();
    record.show();
    QString text = record.kind() == ChangeRecord::Kind::Rows
        ? rowsText(dynamic_cast<const NxMField&>(*record.field()), 0, extent.recorded, extent.start)
        : presentText(record);
    record.show();
    return text;
}

/// The text in the state after `position` steps; of the rows of the record alone if there are any.
QString textAt(const PastState::History& history, const ChangeRecord& record, int position, bool isOfRows)
{
    const ChangeRecord::Extent extent = record.extent();
    const PastState past(history, *StepPlace::of(record), position, mostRecords);
    if (!past.isReached())
        return {QChar(0x2026)};
    return isOfRows ? rowsText(dynamic_cast<const NxMField&>(*record.field()), static_cast<int>(extent.start),
               extent.present, extent.start)
                    : presentText(record);
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
    if (!onlyPlaceOf(*changes)) {
        const auto isOfChildren = [](const auto& record) { return record->kind() == ChangeRecord::Kind::Children; };
        return {{},
            std::ranges::all_of(records, isOfChildren)
                ? QString()
                : StepTextTexts::tr("%1 changes").arg(orvane::countText(records.size()))};
    }
    ChangeRecord& record = *records.front();
    if (records.size() > 1)
        return {orvane::oneLine(textAt(history, record, step, false)),
            orvane::oneLine(textAt(history, record, step + 1, false))};
    // A record of a done step holds what was before it, and of one that can be redone what comes after it.
    const bool isDone = step < history.steps.position();
    const bool isOfRows = record.kind() == ChangeRecord::Kind::Rows;
    const QString recorded = orvane::oneLine(recordedText(record));
    const QString other = orvane::oneLine(textAt(history, record, isDone ? step + 1 : step, isOfRows));
    return isDone ? StepText{recorded, other} : StepText{other, recorded};
}
