#include "meridane/scene/recovery/detail/OperationWriter.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/nodes/NxUnknownNode.h"
#include "meridane/scene/recovery/detail/ByteWriter.h"
#include "meridane/scene/recovery/detail/ClassFingerprint.h"

#include <algorithm>

namespace meridane {

using RecoveryFormat::Operation;

void OperationWriter::begin(Operation operation)
{
    ByteWriter(m_bytes).byte(static_cast<std::uint8_t>(operation));
}

void OperationWriter::begin(Operation operation, const Place& place)
{
    begin(operation);
    ByteWriter writer(m_bytes);
    writer.number(place.node);
    writer.number(static_cast<std::uint64_t>(place.field));
}

void OperationWriter::node(NxNode& node)
{
    const std::uint64_t nodeClass = classOf(node);
    begin(Operation::Node);
    ByteWriter(m_bytes).number(nodeClass);
}

std::uint64_t OperationWriter::classOf(NxNode& node)
{
    const std::uint64_t next = m_classes.size() + m_unknownClasses.size();
    const bool isUnknown = node.isOfType(NxUnknownNode::getClassTypeId());
    NxFieldData* const data = node.getFieldData();
    if (isUnknown) {
        const auto [place, isNew] = m_unknownClasses.try_emplace(node.getClassName(), next);
        if (!isNew)
            return place->second;
    } else {
        const auto [place, isNew] = m_classes.try_emplace(data, next);
        if (!isNew)
            return place->second;
    }
    begin(Operation::Class);
    ByteWriter writer(m_bytes);
    writer.byte(
        static_cast<std::uint8_t>(isUnknown ? RecoveryFormat::ClassKind::Unknown : RecoveryFormat::ClassKind::Known));
    writer.text(node.getClassName());
    describeFields(*data);
    return next;
}

void OperationWriter::describeFields(const NxFieldData& data)
{
    ByteWriter writer(m_bytes);
    writer.number(static_cast<std::uint64_t>(data.getNumFields()));
    for (int i = 0; i < data.getNumFields(); ++i) {
        const NxField& field = *data.getDefault(i);
        writer.text(data.getFieldName(i).getString());
        writer.text(field.getTypeId().getName().getString());
        writer.wideNumber(hashOfDefault(field));
    }
}

void OperationWriter::name(std::uint64_t node, std::string_view name)
{
    begin(Operation::Name);
    ByteWriter writer(m_bytes);
    writer.number(node);
    writer.text(name);
}

void OperationWriter::ignored(const Place& place, bool isIgnored)
{
    begin(Operation::Ignored, place);
    ByteWriter(m_bytes).byte(isIgnored ? 1 : 0);
}

void OperationWriter::value(const Place& place, std::uint8_t parts, std::string_view text)
{
    begin(Operation::Value, place);
    ByteWriter writer(m_bytes);
    writer.byte(parts);
    writer.text(text);
}

bool OperationWriter::image(const Place& place, const NxSFImage& image, std::size_t& position, std::size_t count)
{
    VbVec2s size;
    int components = 0;
    const unsigned char* const pixels = image.getValue(size, components);
    const std::size_t all
        = static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]) * static_cast<std::size_t>(components);
    const std::size_t written = std::min(count, all - position);
    begin(Operation::Image, place);
    ByteWriter writer(m_bytes);
    const bool isFirst = position == 0;
    const bool isLast = position + written == all;
    writer.byte(
        static_cast<std::uint8_t>((isFirst ? RecoveryFormat::firstPart : 0) | (isLast ? RecoveryFormat::lastPart : 0)));
    if (isFirst) {
        for (const int number : {int{size[0]}, int{size[1]}, components})
            writer.number(static_cast<std::uint64_t>(number));
    }
    const std::string_view bytes(reinterpret_cast<const char*>(pixels), all);
    writer.text(bytes.substr(position, written));
    position += written;
    return !isLast;
}

void OperationWriter::plainRows(const Place& place, const NxMField& list, const DirtyRows::Part& part)
{
    begin(Operation::PlainRows, place);
    ByteWriter writer(m_bytes);
    writer.number(part.logged);
    writer.number(part.stale);
    writer.number(part.count * list.plainRowBytes());
    list.appendPlainRows(m_bytes, static_cast<int>(part.start), static_cast<int>(part.count));
}

void OperationWriter::textRows(const Place& place, std::span<const VbString> texts, const DirtyRows::Part& part)
{
    begin(Operation::TextRows, place);
    ByteWriter writer(m_bytes);
    writer.number(part.logged);
    writer.number(part.stale);
    writer.number(texts.size());
    for (const VbString& text : texts)
        writer.text(text.view());
}

void OperationWriter::children(
    std::uint64_t node, std::size_t start, std::size_t removed, std::span<const std::uint64_t> inserted)
{
    begin(Operation::Children);
    ByteWriter writer(m_bytes);
    writer.number(node);
    writer.number(start);
    writer.number(removed);
    writer.number(inserted.size());
    for (const std::uint64_t child : inserted)
        writer.number(child);
}

void OperationWriter::unknownField(
    std::uint64_t node, std::uint8_t parts, bool isIgnored, std::string_view name, std::string_view text)
{
    begin(Operation::UnknownField);
    ByteWriter writer(m_bytes);
    writer.number(node);
    writer.byte(parts);
    if ((parts & RecoveryFormat::firstPart) != 0) {
        writer.byte(isIgnored ? 1 : 0);
        writer.text(name);
    }
    writer.text(text);
}

void OperationWriter::moveTo(std::string& bytes)
{
    if (bytes.empty())
        bytes.swap(m_bytes);
    else
        bytes += m_bytes;
    m_bytes.clear();
}

} // namespace meridane
