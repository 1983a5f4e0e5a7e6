#include "orvane/app/lists/rows/ListRows.h"

#include "orvane/app/lists/rows/detail/ListVisit.h"
#include "orvane/extender/VbText.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/MemoryGuard.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace orvane {

namespace {

/// Runs that are removed one by one. Each takes the time to move what is behind it, so more are removed together.
constexpr std::size_t fewRuns = 8;
/// Groups of rows that are written, and recorded, one by one.
constexpr std::size_t mostGroups = 1000;

template <typename Value>
void append(std::vector<Value>& values, std::span<const Value> list, int first, int end)
{
    if (first < end)
        values.insert(values.end(), list.begin() + first, list.begin() + end);
}

template <typename List>
bool removeTogether(List& list, const RowRuns& rows)
{
    const auto values = list.getValues();
    const int first = rows.front().first;
    const int end = rows.back().end();
    std::vector<ValueOf<List>> kept;
    const auto count = static_cast<std::size_t>(end - first - rowCount(rows));
    return meridane::withinMemory(count * sizeof(ValueOf<List>), [&] {
        kept.reserve(count);
        int next = first;
        for (const RowRun run : rows) {
            append(kept, values, next, run.first);
            next = run.end();
        }
        return list.replaceRows(first, end - first, kept);
    });
}

template <typename List>
bool moveIn(List& list, const RowRuns& rows, int before)
{
    const auto values = list.getValues();
    const int first = std::min(rows.front().first, before);
    const int end = std::max(rows.back().end(), before);
    std::vector<ValueOf<List>> moved;
    return meridane::withinMemory(static_cast<std::size_t>(end - first) * sizeof(ValueOf<List>), [&] {
        moved.reserve(static_cast<std::size_t>(end - first));
        const auto appendOthers = [&](int from, int to) {
            for (const RowRun run : rows) {
                append(moved, values, from, std::min(run.first, to));
                from = std::max(from, run.end());
            }
            append(moved, values, from, to);
        };
        appendOthers(first, before);
        for (const RowRun run : rows)
            append(moved, values, run.first, run.end());
        appendOthers(before, end);
        return list.replaceRows(first, end - first, moved);
    });
}

/// The first of `rows` from `from` on that isn't to be written together with those before it, so that the record of
/// the change has few other rows, and at most some thousands.
std::size_t endOfGroup(std::span<const int> rows, std::size_t from)
{
    constexpr int mostRows = 1000;
    constexpr int widestGap = 4;
    std::size_t next = from + 1;
    while (next < rows.size() && rows[next] - rows[next - 1] <= widestGap && rows[next] - rows[from] < mostRows)
        ++next;
    return next;
}

/// How many such groups there are, but at most `most`.
std::size_t countGroups(std::span<const int> rows, std::size_t most)
{
    std::size_t groups = 0;
    for (std::size_t row = 0; row < rows.size() && groups < most; row = endOfGroup(rows, row))
        ++groups;
    return groups;
}

/// Replaces what lies between the first and the last of the rows by itself, with these values.
template <typename List>
bool replaceSome(List& list, std::span<const int> rows, std::vector<ValueOf<List>> texts)
{
    const int first = rows.front();
    const auto present
        = list.getValues().subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(rows.back() - first) + 1);
    std::vector<ValueOf<List>> values(present.begin(), present.end());
    for (std::size_t i = 0; i < rows.size(); ++i)
        values[static_cast<std::size_t>(rows[i] - first)] = std::move(texts[i]);
    return list.replaceRows(first, static_cast<int>(present.size()), values);
}

template <typename List, typename Convert>
bool writeTextsIn(List& list, std::span<const int> rows, const QStringList& texts, Convert convert)
{
    return meridane::withinMemory(list.getValues().size_bytes(), [&] {
        std::vector<ValueOf<List>> values;
        values.reserve(rows.size());
        for (const QString& text : texts)
            values.push_back(convert(text));
        if (rows.size() > mostGroups)
            return replaceSome(list, rows, std::move(values));
        for (std::size_t i = 0; i < rows.size(); ++i)
            list.set1Value(rows[i], values[i]);
        return true;
    });
}

/// The normal of a plane is normalised by each write, so all of its components are written together.
bool writePlanes(
    NxMFPlane& list, std::span<const int> rows, int component, std::span<const std::vector<double>> columns)
{
    const auto& components = *meridane::FieldComponents::of(list);
    std::vector<VbPlane> planes;
    return meridane::withinMemory(rows.size() * sizeof(VbPlane), [&] {
        planes.reserve(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            std::array<float, 4> parts{};
            for (int part = 0; part < static_cast<int>(parts.size()); ++part) {
                const auto column = static_cast<std::size_t>(part - component);
                const bool isWritten = part >= component && column < columns.size();
                parts.at(static_cast<std::size_t>(part))
                    = static_cast<float>(isWritten ? columns[column][i] : components.get(list, rows[i], part));
            }
            planes.emplace_back(VbVec3f(parts[0], parts[1], parts[2]), parts[3]);
        }
        return replaceSome(list, rows, std::move(planes));
    });
}

/// The text form says whether a class takes a text only when it is written.
bool writeTextForms(NxMField& list, std::span<const int> rows, const QStringList& texts)
{
    std::unique_ptr<meridane::ChangeRecord> before;
    if (rows.size() > 1 && list.getContainer() != nullptr)
        before = list.recordOfValue();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (list.set1(rows[i], toVbString(texts[static_cast<qsizetype>(i)])))
            continue;
        if (i > 0 && before != nullptr)
            list.exchangeValue(*before);
        return false;
    }
    return true;
}

} // namespace

bool removeRows(NxMField& list, const RowRuns& rows)
{
    if (rows.size() <= fewRuns) {
        std::for_each(
            rows.rbegin(), rows.rend(), [&list](const RowRun& run) { list.deleteValues(run.first, run.count); });
        return true;
    }
    return visitList(list, [&rows](auto& typed) { return removeTogether(typed, rows); });
}

bool moveRows(NxMField& list, const RowRuns& rows, int before)
{
    if (!wouldMove(rows, before))
        return true;
    return visitList(list, [&](auto& typed) { return moveIn(typed, rows, before); });
}

bool insertCopies(NxMField& list, const RowRuns& rows, int before)
{
    return visitList(list, [&](auto& typed) {
        std::vector<ValueOf<decltype(typed)>> copies;
        const auto count = static_cast<std::size_t>(rowCount(rows));
        return meridane::withinMemory(count * sizeof(copies[0]), [&] {
            copies.reserve(count);
            for (const RowRun run : rows)
                append(copies, typed.getValues(), run.first, run.end());
            return typed.replaceRows(before, 0, copies);
        });
    });
}

bool wouldMove(const RowRuns& rows, int before)
{
    return !rows.empty() && (rows.size() > 1 || before < rows.front().first || before > rows.front().end());
}

bool writeColumn(NxMField& list, std::span<const int> rows, int component, std::span<const double> values)
{
    const auto* const components = meridane::FieldComponents::of(list);
    if (components == nullptr || rows.empty())
        return components != nullptr;
    // Lists of other values than numbers are written row by row, or as a whole.
    const bool isPlain = list.plainRowBytes() > 0;
    const bool isMost = rows.size() > static_cast<std::size_t>(list.getNum()) / 2 && rows.size() > 1;
    if (isMost || (isPlain ? countGroups(rows, mostGroups) : rows.size()) >= mostGroups)
        return components->setColumn(list, rows, component, values);
    for (std::size_t from = 0; from < rows.size();) {
        const std::size_t end = isPlain ? endOfGroup(rows, from) : from + 1;
        if (!components->setColumn(list, rows.subspan(from, end - from), component, values.subspan(from, end - from)))
            return false;
        from = end;
    }
    return true;
}

bool writeColumns(
    NxMField& list, std::span<const int> rows, int component, std::span<const std::vector<double>> columns)
{
    if (auto* const planes = dynamic_cast<NxMFPlane*>(&list); planes != nullptr && columns.size() > 1)
        return rows.empty() || writePlanes(*planes, rows, component, columns);
    for (const std::vector<double>& column : columns) {
        if (!writeColumn(list, rows, component++, column))
            return false;
    }
    return true;
}

bool writeTexts(NxMField& list, std::span<const int> rows, const QStringList& texts)
{
    if (rows.empty())
        return true;
    if (auto* const strings = dynamic_cast<NxMFString*>(&list))
        return writeTextsIn(*strings, rows, texts, &toVbString);
    if (auto* const names = dynamic_cast<NxMFName*>(&list))
        return writeTextsIn(*names, rows, texts, &toVbName);
    return writeTextForms(list, rows, texts);
}

} // namespace orvane
