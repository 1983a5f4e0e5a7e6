#include "meridane/query/detail/FieldTexts.h"

#include "meridane/base/values/Unicode.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFString.h"

#include <algorithm>

namespace meridane {
namespace {

constexpr std::size_t mostBytes = 4096;
constexpr std::size_t numbersAtOnce = 256; // which are about as many bytes
constexpr int mostRows = 1000;

bool isOf(const NxField& field, NxType type)
{
    return field.isOfType(type);
}

std::string textOfRow(const NxMField& list, int row)
{
    if (isOf(list, NxMFString::getClassTypeId()))
        return std::string(static_cast<const NxMFString&>(list)[row].view());
    if (isOf(list, NxMFName::getClassTypeId()))
        return latin1ToUtf8(static_cast<const NxMFName&>(list)[row].getString());
    VbString text;
    list.get1(row, text);
    return std::string(text.view());
}

} // namespace

std::string beginningOfValue(const NxField& field)
{
    if (isOf(field, NxSFString::getClassTypeId()))
        return std::string(static_cast<const NxSFString&>(field).getValue().view().substr(0, mostBytes));
    if (isOf(field, NxSFName::getClassTypeId()))
        return latin1ToUtf8(
            std::string_view(static_cast<const NxSFName&>(field).getValue().getString()).substr(0, mostBytes));
    std::string text;
    std::size_t position = 0;
    static_cast<void>(field.writeText(text, position, numbersAtOnce));
    return text;
}

bool anyValueText(const NxField& field, const std::function<bool(std::string_view)>& test)
{
    if (!isOf(field, NxMField::getClassTypeId()))
        return test(beginningOfValue(field));
    const auto& list = static_cast<const NxMField&>(field);
    const int rows = std::min(list.getNum(), mostRows);
    for (int row = 0; row < rows; ++row) {
        if (test(textOfRow(list, row)))
            return true;
    }
    return false;
}

} // namespace meridane
