#include "orvane/extender/detail/CommandBytes.h"

#include "meridane/scene/fields/NxMField.h"

#include <algorithm>

namespace {

// The memory of a command without its texts.
constexpr std::size_t bytesPerCommand = 64;
constexpr std::size_t bytesPerText = 48;
// A value of four bytes has up to sixteen characters with its separator; others have fewer for each byte.
constexpr std::size_t textBytesPerValueByte = 4;

} // namespace

CommandBytes::CommandBytes(NxField* field)
    : m_field(field)
    , m_rows(rows(1))
    , m_rowBytes(field != nullptr && m_rows > 0 ? field->valueBytes() / static_cast<std::size_t>(m_rows) : 0)
{
}

std::size_t CommandBytes::afterExecution() const
{
    const int removedRows = std::max(0, m_rows - rows(m_rows));
    const auto texts = 2 + static_cast<std::size_t>(removedRows);
    return bytesPerCommand + texts * (bytesPerText + textBytesPerValueByte * m_rowBytes);
}

int CommandBytes::rows(int withoutList) const
{
    const auto* list = dynamic_cast<const NxMField*>(m_field.getAttachedField());
    return list != nullptr ? list->getNum() : withoutList;
}
