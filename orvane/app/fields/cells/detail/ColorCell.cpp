#include "orvane/app/fields/cells/detail/ColorCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/ColorPopup.h"
#include "orvane/app/fields/popups/Swatch.h"

#include "meridane/scene/components/FieldComponents.h"

#include <QPainter>

#include <algorithm>
#include <array>

using meridane::FieldComponents;
using orvane::ColorNumbers;

namespace {

ColorNumbers colorOf(const NxField& field)
{
    const FieldComponents* const components = FieldComponents::of(field);
    ColorNumbers color{0, 0, 0, 1};
    for (int i = 0; i < components->count(); ++i)
        color[static_cast<std::size_t>(i)] = components->get(field, 0, i);
    return color;
}

bool isSameColor(const ColorNumbers& left, const ColorNumbers& right)
{
    return std::equal(left.begin(), left.end(), right.begin(),
        [](double one, double other) { return static_cast<float>(one) == static_cast<float>(other); });
}

bool setColor(NxField& field, const ColorNumbers& color)
{
    const FieldComponents* const components = FieldComponents::of(field);
    return components->setRow(field, 0, std::span(color).first(static_cast<std::size_t>(components->count())));
}

QRect swatchArea(const QRect& area)
{
    return {area.left(), area.top(), std::min(area.height() * 3 / 2, area.width()), area.height()};
}

QRect besideSwatch(const QRect& area)
{
    return area.adjusted(swatchArea(area).width() + area.height() / 4, 0, 0, 0);
}

} // namespace

void ColorCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const QRect swatch = swatchArea(cell.area).adjusted(0, 2, 0, -2);
    if (cell.isMixed) {
        painter.setPen(QPen(orvane::look::quietColor(cell.text, cell.background), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(swatch.adjusted(0, 0, -1, -1));
    } else {
        orvane::paintSwatch(painter, swatch, colorOf(fields.first()), cell.palette);
    }
    CellPaint numbers = cell;
    numbers.area = besideSwatch(cell.area);
    NumberCell::paint(painter, numbers, fields);
}

int ColorCell::parts(const NxField& field, const CellServices& services) const
{
    return 1 + NumberCell::parts(field, services);
}

QRect ColorCell::partArea(const QRect& area, const NxField& field, int part, const CellServices& services) const
{
    return part == 0 ? swatchArea(area) : NumberCell::partArea(besideSwatch(area), field, part - 1, services);
}

int ColorCell::scrubbedComponent(const NxField& /*field*/, int part, const CellServices& /*services*/) const
{
    return part - 1;
}

CellEditor* ColorCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxField>(edit);
    if (field == nullptr)
        return nullptr;
    if (edit.part > 0)
        return createNumberEditor(edit, edit.part - 1, parent);
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new ColorPopup(FieldComponents::of(*field)->count() == 4, editor);
    popup->setColor(colorOf(*field));
    editor->setPopup(popup, [popup](const NxField& shown) {
        // What the popup has written itself would otherwise count as the colour from before.
        if (!isSameColor(colorOf(shown), popup->color()))
            popup->setColor(colorOf(shown));
    });
    QObject::connect(popup, &ColorPopup::colorChanged, editor, [editor](const ColorNumbers& color) {
        editor->write([&color](NxField& each) { return setColor(each, color); });
    });
    return editor;
}
