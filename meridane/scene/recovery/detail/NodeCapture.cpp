#include "meridane/scene/recovery/detail/NodeCapture.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/recovery/detail/LogNumbers.h"

#include <algorithm>
#include <utility>

namespace meridane {

namespace {

// What one piece has at most; each takes some ten microseconds.
constexpr std::size_t bytesPerPiece = std::size_t{1} << 16U;
constexpr std::size_t valuesPerPiece = 4096;
constexpr std::size_t textsPerPiece = 512;
constexpr std::size_t childrenPerPiece = 256;

std::uint8_t partsOf(bool isFirst, bool isLast)
{
    return static_cast<std::uint8_t>(
        (isFirst ? RecoveryFormat::firstPart : 0) | (isLast ? RecoveryFormat::lastPart : 0));
}

} // namespace

NodeCapture::NodeCapture(
    Journal& journal, LogNumbers& numbers, OperationWriter& operations, std::deque<std::size_t>& waiting)
    : m_journal(journal)
    , m_numbers(numbers)
    , m_operations(operations)
    , m_waiting(waiting)
{
}

DirtyNode NodeCapture::contentsOf(NxNode& node)
{
    DirtyNode dirty;
    m_journal.reportAgain(node);
    dirty.name = !node.getName().isEmpty();
    const NxFieldData& data = *node.getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        NxField& field = *data.getField(&node, index);
        m_journal.reportAgain(field);
        const NxField& original = *data.getDefault(index);
        const bool isChanged = !original.isSame(field);
        if (!isChanged && !field.isIgnored())
            continue;
        DirtyField& content = dirty.fields.emplace_back();
        content.index = index;
        content.ignored = field.isIgnored();
        if (!isChanged)
            continue;
        content.value = true;
        if (const auto* list = dynamic_cast<const NxMField*>(&original)) {
            content.value = false;
            content.rows = std::make_unique<DirtyRows>(DirtyRows::Joining::Allowed);
            content.rows->replaceAll(static_cast<std::size_t>(list->getNum()));
        }
    }
    dirty.hasUnknownFields = !node.getUnknownFields().empty();
    if (const std::size_t children = node.getChildren().size(); children > 0) {
        dirty.children = std::make_unique<DirtyRows>(DirtyRows::Joining::Never);
        dirty.children->replace(0, 0, children);
    }
    return dirty;
}

void NodeCapture::capturePiece(NxNode& node, std::size_t number, DirtyNode& dirty)
{
    const std::uint64_t logNumber = m_numbers.number(number);
    if (std::exchange(dirty.name, false)) {
        m_journal.reportAgain(node);
        m_operations.name(logNumber, node.getName().view());
    } else if (!dirty.fields.empty()) {
        // The first one until it is done, since a value in several parts must not be interrupted.
        DirtyField& first = dirty.fields.front();
        m_operations.describeClass(node);
        if (captureField(*node.getFieldData()->getField(&node, first.index), {logNumber, first.index}, first))
            dirty.fields.erase(dirty.fields.begin());
    } else if (dirty.hasUnknownFields) {
        captureUnknownField(node, logNumber, dirty);
    } else {
        captureChildren(node, logNumber, dirty);
    }
}

// Returns whether the field isn't dirty any more.
bool NodeCapture::captureField(NxField& field, const OperationWriter::Place& place, DirtyField& dirty)
{
    m_journal.reportAgain(field);
    if (std::exchange(dirty.ignored, false))
        m_operations.ignored(place, field.isIgnored());
    if (dirty.rows != nullptr)
        captureRows(static_cast<NxMField&>(field), place, dirty);
    else if (dirty.value && field.isOfType(NxSFImage::getClassTypeId()))
        captureImage(field, place, dirty);
    else if (dirty.value)
        captureText(field, place, dirty);
    return dirty.rows == nullptr && !dirty.value;
}

void NodeCapture::captureImage(NxField& field, const OperationWriter::Place& place, DirtyField& dirty)
{
    const auto& image = static_cast<const NxSFImage&>(field);
    dirty.value = m_operations.image(place, image, dirty.position, bytesPerPiece);
}

void NodeCapture::captureText(const NxField& field, const OperationWriter::Place& place, DirtyField& dirty)
{
    const bool isFirst = dirty.position == 0;
    std::string text;
    dirty.value = field.writeText(text, dirty.position, valuesPerPiece);
    m_operations.value(place, partsOf(isFirst, !dirty.value), text);
}

void NodeCapture::captureRows(const NxMField& list, const OperationWriter::Place& place, DirtyField& dirty)
{
    DirtyRows& rows = *dirty.rows;
    if (rows.isWhole())
        rows.setCount(static_cast<std::size_t>(list.getNum()));
    if (!rows.isEmpty()) {
        const std::size_t rowBytes = list.plainRowBytes();
        if (rowBytes > 0) {
            m_operations.plainRows(place, list, rows.take(bytesPerPiece / rowBytes));
        } else {
            const DirtyRows::Part next = rows.next();
            std::vector<VbString> texts;
            std::size_t bytes = 0;
            while (texts.size() < std::min(next.count, textsPerPiece) && bytes < bytesPerPiece) {
                const auto row = static_cast<int>(next.start + texts.size());
                list.get1(row, texts.emplace_back());
                bytes += texts.back().view().size();
            }
            m_operations.textRows(place, texts, rows.take(texts.size()));
        }
    }
    if (rows.isEmpty())
        dirty.rows.reset();
}

void NodeCapture::captureUnknownField(const NxNode& node, std::uint64_t number, DirtyNode& dirty)
{
    const auto& fields = node.getUnknownFields();
    const NxFieldContainer::UnknownField& field = fields[dirty.nextUnknownField];
    const std::string_view part = std::string_view(field.text).substr(dirty.unknownPosition, bytesPerPiece);
    const bool isFirst = dirty.unknownPosition == 0;
    dirty.unknownPosition += part.size();
    const bool isLast = dirty.unknownPosition == field.text.size();
    m_operations.unknownField(number, partsOf(isFirst, isLast), field.ignored, field.name, part);
    if (!isLast)
        return;
    dirty.unknownPosition = 0;
    ++dirty.nextUnknownField;
    dirty.hasUnknownFields = dirty.nextUnknownField < fields.size();
}

void NodeCapture::captureChildren(const NxNode& node, std::uint64_t number, DirtyNode& dirty)
{
    if (!dirty.children->isEmpty()) {
        const DirtyRows::Part part = dirty.children->take(childrenPerPiece);
        std::vector<std::uint64_t> inserted;
        for (NxNode* const child : node.getChildren().subspan(part.start, part.count)) {
            const std::size_t childNumber = *m_journal.number(*child);
            if (m_numbers.state(childNumber) == LogNumbers::State::Unknown) {
                m_operations.node(*child);
                m_numbers.add(childNumber, LogNumbers::State::Waiting);
                m_waiting.push_back(childNumber);
            }
            inserted.push_back(m_numbers.number(childNumber));
        }
        m_operations.children(number, part.logged, part.stale, inserted);
    }
    if (dirty.children->isEmpty())
        dirty.children.reset();
}

} // namespace meridane
