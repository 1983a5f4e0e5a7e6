#pragma once

#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/SingleField.h"
#include "meridane/scene/fields/detail/FieldRecords.h"
#include "meridane/scene/text/detail/ValueBits.h"

#include <type_traits>
#include <utility>

namespace meridane {

template <typename Value, typename Format>
bool SingleField<Value, Format>::isSame(const NxField& other) const
{
    return isOfSameClass(other) && isSameValue(m_value, static_cast<const SingleField&>(other).m_value);
}

template <typename Value, typename Format>
bool SingleField<Value, Format>::copyFrom(const NxField& other)
{
    if (!isOfSameClass(other))
        return false;
    const Value& value = static_cast<const SingleField&>(other).m_value;
    const bool fits = withinMemory(bytesOfValue(value), [&] {
        recordValue();
        m_value = value;
        return true;
    });
    if (fits)
        touch();
    return fits;
}

template <typename Value, typename Format>
std::size_t SingleField<Value, Format>::valueBytes() const
{
    return bytesOfValue(m_value);
}

template <typename Value, typename Format>
NxField::Progress SingleField<Value, Format>::readText(TextReader& reader, bool /*first*/, std::size_t /*budget*/)
{
    const std::size_t start = reader.position();
    const bool isRead = m_format.read(reader, m_value);
    if (!reader.isInterrupted())
        return isRead ? Progress::Done : Progress::Failed;
    reader.goBack(start);
    return Progress::More;
}

template <typename Value, typename Format>
bool SingleField<Value, Format>::writeText(std::string& text, std::size_t& position, std::size_t budget) const
{
    if constexpr (std::is_same_v<Value, VbString>)
        return writeValuePart(text, m_value, position, textBytesOf(budget));
    m_format.write(text, m_value);
    return false;
}

template <typename Value, typename Format>
bool SingleField<Value, Format>::assignText(TextReader& reader)
{
    Value value{};
    if (!m_format.readWhole(reader, value))
        return false;
    recordValue();
    m_value = std::move(value);
    return true;
}

template <typename Value, typename Format>
std::unique_ptr<ChangeRecord> SingleField<Value, Format>::recordOfValue()
{
    return std::make_unique<ValueRecord<Value>>(*this, m_value, m_value);
}

} // namespace meridane
