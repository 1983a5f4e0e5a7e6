#include "orvane/app/fields/cells/CellRegistry.h"

#include "orvane/app/fields/cells/detail/ChoiceCell.h"
#include "orvane/app/fields/cells/detail/ColorCell.h"
#include "orvane/app/fields/cells/detail/FlagCell.h"
#include "orvane/app/fields/cells/detail/ImageCell.h"
#include "orvane/app/fields/cells/detail/LineCell.h"
#include "orvane/app/fields/cells/detail/MaskCell.h"
#include "orvane/app/fields/cells/detail/MatrixCell.h"
#include "orvane/app/fields/cells/detail/NumberCell.h"
#include "orvane/app/fields/cells/detail/PathCell.h"
#include "orvane/app/fields/cells/detail/RotationCell.h"
#include "orvane/app/fields/cells/detail/TextCell.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <algorithm>

const CellRegistry& CellRegistry::instance()
{
    static const CellRegistry registry;
    return registry;
}

CellRegistry::CellRegistry()
{
    add(std::make_unique<LineCell>(), {NxSField::getClassTypeId()});
    add(std::make_unique<FlagCell>(), {NxSFBool::getClassTypeId()});
    add(std::make_unique<ChoiceCell>(), {NxSFEnum::getClassTypeId()});
    add(std::make_unique<MaskCell>(), {NxSFBitMask::getClassTypeId()});
    add(std::make_unique<NumberCell>(),
        {NxSFFloat::getClassTypeId(), NxSFDouble::getClassTypeId(), NxSFTime::getClassTypeId(),
            NxSFShort::getClassTypeId(), NxSFUShort::getClassTypeId(), NxSFInt32::getClassTypeId(),
            NxSFUInt32::getClassTypeId(), NxSFVec2f::getClassTypeId(), NxSFVec3f::getClassTypeId(),
            NxSFVec4f::getClassTypeId(), NxSFVec2s::getClassTypeId(), NxSFVec3s::getClassTypeId(),
            NxSFVec2i32::getClassTypeId(), NxSFBox2f::getClassTypeId(), NxSFBox3s::getClassTypeId(),
            NxSFPlane::getClassTypeId()});
    add(std::make_unique<ColorCell>(), {NxSFColor::getClassTypeId(), NxSFColorRGBA::getClassTypeId()});
    add(std::make_unique<RotationCell>(), {NxSFRotation::getClassTypeId()});
    add(std::make_unique<MatrixCell>(), {NxSFMatrix::getClassTypeId()});
    add(std::make_unique<TextCell>(), {NxSFString::getClassTypeId()});
    m_textCell = m_entries.back().second;
    add(std::make_unique<ImageCell>(), {NxSFImage::getClassTypeId()});
    add(std::make_unique<PathCell>(), {NxSFFilePathString::getClassTypeId()});
    m_pathCell = m_entries.back().second;
}

void CellRegistry::add(std::unique_ptr<const ValueCell> cell, std::initializer_list<NxType> types)
{
    for (const NxType type : types)
        m_entries.emplace_back(type, cell.get());
    m_cells.push_back(std::move(cell));
}

const ValueCell& CellRegistry::cellOf(NxType type) const
{
    const auto known = std::ranges::find(m_found, type, &std::pair<NxType, const ValueCell*>::first);
    if (known != m_found.end())
        return *known->second;
    const auto* best = &m_entries.front();
    for (const auto& entry : m_entries) {
        if (type.isDerivedFrom(entry.first) && entry.first.isDerivedFrom(best->first))
            best = &entry;
    }
    m_found.emplace_back(type, best->second);
    return *best->second;
}

const ValueCell& CellRegistry::cellOf(const NxField& field) const
{
    const ValueCell& cell = cellOf(field.getTypeId());
    return &cell == m_textCell && meridane::factsOf(field).isFile ? *m_pathCell : cell;
}
