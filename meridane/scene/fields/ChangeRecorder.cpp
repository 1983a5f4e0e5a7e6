#include "meridane/scene/fields/ChangeRecorder.h"

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

} // namespace meridane
