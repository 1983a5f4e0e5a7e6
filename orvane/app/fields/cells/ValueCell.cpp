#include "orvane/app/fields/cells/ValueCell.h"

#include "meridane/scene/components/FieldComponents.h"

int ValueCell::parts(const NxField& /*field*/, const CellServices& /*services*/) const
{
    return 1;
}

QRect ValueCell::partArea(
    const QRect& area, const NxField& /*field*/, int /*part*/, const CellServices& /*services*/) const
{
    return area;
}

QRect ValueCell::editorArea(
    const QRect& area, const NxField& field, int part, const CellServices& services, const QFont& /*font*/) const
{
    return partArea(area, field, part, services);
}

int ValueCell::partAt(
    const QRect& area, const NxField& field, const QPoint& position, const CellServices& services) const
{
    for (int part = 0; part < parts(field, services); ++part) {
        if (partArea(area, field, part, services).contains(position))
            return part;
    }
    return -1;
}

int ValueCell::scrubbedComponent(const NxField& /*field*/, int /*part*/, const CellServices& /*services*/) const
{
    return -1;
}

ScrubbedNumber ValueCell::scrubbedNumber(const NxField& field, int part, const CellServices& services) const
{
    const int component = scrubbedComponent(field, part, services);
    return {meridane::FieldComponents::of(field)->get(field, 0, component), orvane::NumberLimits::of(field, component),
        FieldWriter::componentMover(field, component)};
}

std::optional<FieldNumber> ValueCell::number(
    const NxField& /*field*/, int /*part*/, const CellServices& /*services*/) const
{
    return std::nullopt;
}

bool ValueCell::click(const CellEdit& /*edit*/, const QRect& /*area*/, const QPoint& /*position*/) const
{
    return false;
}

void ValueCell::dropFile(const CellEdit& /*edit*/, const QString& /*fileName*/) const { }

QString ValueCell::toolTip(const FieldSet& /*fields*/, const CellServices& /*services*/) const
{
    return {};
}
