#include "orvane/app/fields/cells/detail/RotationCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/editors/NumberEditor.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/RotationPopup.h"
#include "orvane/app/fields/popups/ShownNumber.h"

#include "meridane/gl/geometry/MatrixParts.h"
#include "meridane/scene/fields/single/NxSFRotation.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace {

constexpr int angle = 3; // the component

const VbRotation& rotationOf(const NxField& field)
{
    return static_cast<const NxSFRotation&>(field).getValue();
}

// The number of components that are shown.
int columns(const CellServices& services)
{
    return services.isEulerShown() ? 3 : 4;
}

QString withDegreeSign(double degrees)
{
    return orvane::roundedText(degrees, 3) + u'°';
}

FieldNumber eulerNumber(const NxField& field, int axis)
{
    const auto place = static_cast<std::size_t>(axis);
    FieldNumber number;
    number.get = [place](const NxField& each) { return meridane::toEuler(rotationOf(each))[place]; };
    number.set = [place](NxField& each, double degrees) {
        meridane::EulerDegrees euler = meridane::toEuler(rotationOf(each));
        euler[place] = degrees;
        static_cast<NxSFRotation&>(each).setValue(meridane::fromEuler(euler));
        return true;
    };
    number.text = [get = number.get](const NxField& each) { return orvane::roundedText(get(each), 3); };
    number.limits.step = 1;
    number.name = QCoreApplication::translate("RotationCell", "%1, degrees about %2")
                      .arg(orvane::accessibleNameOf(field, -1), orvane::letterOf(field, axis));
    return number;
}

} // namespace

void RotationCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    CellPaint numbers = cell;
    numbers.area = orvane::besideOpenMark(cell.area);
    orvane::paintOpenMark(painter, cell);
    const NxField& field = fields.first();
    const bool isEuler = cell.services->isEulerShown();
    const meridane::EulerDegrees euler = isEuler ? meridane::toEuler(rotationOf(field)) : meridane::EulerDegrees{};
    const int count = columns(*cell.services);
    for (int column = 0; column < count; ++column) {
        orvane::PaintedNumber number{orvane::letterOf(field, column), orvane::tintOf(field, column), {}};
        // Euler degrees depend on all components.
        const bool isMixed = cell.isMixed && (isEuler || orvane::isComponentMixed(fields, column));
        if (!isMixed && isEuler) {
            number.text = withDegreeSign(euler[static_cast<std::size_t>(column)]);
        } else if (!isMixed) {
            number.text = orvane::componentText(field, column);
            if (column == angle)
                number.range
                    = orvane::NumberLimits::of(field, angle).rangeOf(static_cast<double>(rotationOf(field).getAngle()));
        }
        orvane::paintNumber(painter, cell, orvane::columnOf(numbers.area, count, column), number);
    }
}

int RotationCell::parts(const NxField& /*field*/, const CellServices& services) const
{
    return columns(services) + 1;
}

QRect RotationCell::partArea(const QRect& area, const NxField& /*field*/, int part, const CellServices& services) const
{
    const int count = columns(services);
    return part == count ? orvane::openMarkArea(area) : orvane::columnOf(orvane::besideOpenMark(area), count, part);
}

int RotationCell::scrubbedComponent(const NxField& /*field*/, int part, const CellServices& services) const
{
    return part < columns(services) ? part : -1;
}

ScrubbedNumber RotationCell::scrubbedNumber(const NxField& field, int part, const CellServices& services) const
{
    if (!services.isEulerShown())
        return NumberCell::scrubbedNumber(field, part, services);
    const FieldNumber number = eulerNumber(field, part);
    // From the angles at the beginning: those of the present rotation may be others for the same rotation.
    const auto moverOf = [axis = static_cast<std::size_t>(part)](const NxField& first) -> FieldWriter::Mover {
        return [axis, start = meridane::toEuler(rotationOf(first))](NxField& moved, double delta) {
            meridane::EulerDegrees degrees = start;
            degrees[axis] += delta;
            static_cast<NxSFRotation&>(moved).setValue(meridane::fromEuler(degrees));
        };
    };
    return {number.get(field), number.limits, moverOf};
}

std::optional<FieldNumber> RotationCell::number(const NxField& field, int part, const CellServices& services) const
{
    if (services.isEulerShown() && part < columns(services))
        return eulerNumber(field, part);
    return NumberCell::number(field, part, services);
}

QString RotationCell::toolTip(const FieldSet& fields, const CellServices& /*services*/) const
{
    return meridane::isNormal(rotationOf(fields.first()))
        ? QString()
        : QCoreApplication::translate(
            "RotationCell", "The axis doesn't have the length 1, which changes nothing about the rotation.");
}

CellEditor* RotationCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxSFRotation>(edit);
    if (field == nullptr)
        return nullptr;
    CellServices* const services = edit.services;
    if (const std::optional<FieldNumber> shown = number(*field, edit.part, *services))
        return new NumberEditor(edit, *shown, parent);
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new RotationPopup(editor);
    popup->setRotation(field->getValue());
    popup->setEulerShown(services->isEulerShown());
    editor->setPopup(popup, [popup](const NxField& shown) {
        if (rotationOf(shown) != popup->rotation())
            popup->setRotation(rotationOf(shown));
    });
    QObject::connect(popup, &RotationPopup::rotationChanged, editor, [editor](const VbRotation& rotation) {
        editor->write([&rotation](NxField& each) {
            static_cast<NxSFRotation&>(each).setValue(rotation);
            return true;
        });
    });
    QObject::connect(popup, &RotationPopup::eulerShownChanged, services, &CellServices::setEulerShown);
    return editor;
}
