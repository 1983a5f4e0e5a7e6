#include "orvane/app/fields/cells/detail/NumberCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/editors/NumberEditor.h"

#include "meridane/scene/components/FieldComponents.h"

#include <QFontMetrics>

using meridane::FieldComponents;
using orvane::NumberLimits;

QRect orvane::columnOf(const QRect& area, int count, int column)
{
    const int left = area.width() * column / count;
    const int right = area.width() * (column + 1) / count;
    return {area.left() + left, area.top(), right - left, area.height()};
}

void orvane::paintNumber(QPainter& painter, const CellPaint& cell, const QRect& area, const PaintedNumber& number)
{
    const int unit = look::unit(QFontMetrics(cell.font));
    QRect rest = area.adjusted(0, 0, -unit, 0);
    if (!number.letter.isEmpty()) {
        const QColor color = tintOn(number.tint, cell.background);
        rest.setLeft(rest.left() + paintText(painter, letterFont(cell.font), rest, number.letter, color) + unit);
        if (rest.width() < unit)
            return; // nothing of the number would be seen, and an ellipsis would cover the next letter
    }
    if (number.text.isEmpty())
        return paintMixed(painter, cell, rest);
    QColor color = cell.text;
    if (number.range != NumberLimits::Range::Usual) {
        color = tintOn(
            number.range == NumberLimits::Range::Unusual ? look::Tint::Warning : look::Tint::Error, cell.background);
    }
    paintText(painter, cell, rest, number.text, color);
}

void NumberCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const NxField& field = fields.first();
    const FieldComponents* const components = FieldComponents::of(field);
    const int count = components->count();
    const NumberLimits limits = orvane::NumberLimits::of(field, 0);
    for (int component = 0; component < count; ++component) {
        orvane::PaintedNumber number{orvane::letterOf(field, component), orvane::tintOf(field, component), {}};
        if (!cell.isMixed || !orvane::isComponentMixed(fields, component)) {
            const double value = components->get(field, 0, component);
            number.text = orvane::componentText(field, component);
            number.range = limits.rangeOf(value);
        }
        orvane::paintNumber(painter, cell, orvane::columnOf(cell.area, count, component), number);
    }
}

int NumberCell::parts(const NxField& field, const CellServices& /*services*/) const
{
    return FieldComponents::of(field)->count();
}

QRect NumberCell::partArea(const QRect& area, const NxField& field, int part, const CellServices& /*services*/) const
{
    return orvane::columnOf(area, FieldComponents::of(field)->count(), part);
}

// The letter stays in sight.
QRect NumberCell::editorArea(
    const QRect& area, const NxField& field, int part, const CellServices& services, const QFont& font) const
{
    const QRect whole = partArea(area, field, part, services);
    const int component = scrubbedComponent(field, part, services);
    const QString letter = component >= 0 ? orvane::letterOf(field, component) : QString();
    if (letter.isEmpty())
        return whole;
    return whole.adjusted(QFontMetrics(orvane::letterFont(font)).horizontalAdvance(letter), 0, 0, 0);
}

int NumberCell::scrubbedComponent(const NxField& /*field*/, int part, const CellServices& /*services*/) const
{
    return part;
}

std::optional<FieldNumber> NumberCell::number(const NxField& field, int part, const CellServices& services) const
{
    const int component = scrubbedComponent(field, part, services);
    return component >= 0 ? std::optional(orvane::fieldNumber(field, component)) : std::nullopt;
}

CellEditor* NumberCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    return createNumberEditor(edit, edit.part, parent);
}

CellEditor* NumberCell::createNumberEditor(const CellEdit& edit, int component, QWidget* parent)
{
    const auto* const field = orvane::fieldOf<NxField>(edit);
    if (field == nullptr)
        return nullptr;
    return new NumberEditor(edit, orvane::fieldNumber(*field, component), parent);
}
