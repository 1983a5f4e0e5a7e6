#include "meridane/scene/fields/ChangeRecorder.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

namespace meridane {

constinit ChangeRecorder* ChangeRecorder::s_attached = nullptr;

ChangeRecorder* ChangeRecorder::of(const NxFieldContainer* node)
{
    if (s_attached == nullptr || node == nullptr || !s_attached->follows(*node))
        return nullptr;
    s_attached->makeRoom();
    return s_attached;
}

std::uint32_t ChangeRecorder::numberOf(const NxFieldContainer& node) noexcept
{
    return node.m_recorderNumber;
}

void ChangeRecorder::setNumber(NxFieldContainer& node, std::uint32_t number) noexcept
{
    node.m_recorderNumber = number & 0x7FFFFFFFU;
}

ChangeRecorder::Marks ChangeRecorder::marksOf(const NxField& field) noexcept
{
    return {field.m_isRecorded, field.m_isIgnoredRecorded, false};
}

ChangeRecorder::Marks ChangeRecorder::marksOf(const NxFieldContainer& node) noexcept
{
    return {false, false, node.m_isNameRecorded != 0};
}

void ChangeRecorder::removeMarks(NxField& field) noexcept
{
    field.m_isRecorded = false;
    field.m_isIgnoredRecorded = false;
}

void ChangeRecorder::removeMarks(NxFieldContainer& node) noexcept
{
    node.m_isNameRecorded = 0;
}

} // namespace meridane
