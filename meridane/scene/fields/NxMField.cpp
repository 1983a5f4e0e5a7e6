#include "meridane/scene/fields/NxMField.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/text/TextReader.h"

#include <limits>

namespace {

constinit int maximumNum = std::numeric_limits<int>::max();

} // namespace

NxType NxMField::getClassTypeId()
{
    static const NxType type = NxType::registerClass("MField", NxField::getClassTypeId(), nullptr);
    return type;
}

int NxMField::getMaximumNum() noexcept
{
    return maximumNum;
}

void NxMField::setMaximumNum(int count) noexcept
{
    maximumNum = count;
}

bool NxMField::canHave(std::size_t count) noexcept
{
    return count <= static_cast<std::size_t>(maximumNum);
}

bool NxMField::set1(int index, const VbString& text)
{
    meridane::TextReader reader(text.view());
    if (index < 0 || index >= getNum())
        return false;
    if (!meridane::withinMemory(text.view().size(), [this, index, &reader] { return assign1Text(index, reader); }))
        return false;
    touch();
    return true;
}

bool NxMField::set1(int index, const char* text)
{
    return set1(index, VbString(text));
}

void NxMField::valueChanged(int /*start*/, int /*count*/, int /*resized*/)
{
    touch();
}
