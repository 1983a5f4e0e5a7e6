#include "orvane/app/fields/cells/detail/FlagCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/ToggleEditor.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"

#include "meridane/scene/fields/single/NxSFBool.h"

#include <QPainter>

namespace {

bool isOn(const NxField& field)
{
    return static_cast<const NxSFBool&>(field).getValue() != 0;
}

void toggleFlags(const CellServices& services, const FieldSet& fields, QWidget* widget)
{
    const orvane::Result<> result = services.writer().toggle(fields);
    if (!result && widget != nullptr)
        InputMessage::showFor(widget, result.error());
}

// Many styles draw a box that can't be seen on a dark or a selected row.
void paintBox(QPainter& painter, const QRect& place, const CellPaint& cell, Qt::CheckState state)
{
    const qreal unit = place.width() / 16.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(orvane::look::quietColor(cell.text, cell.background), unit));
    painter.drawRoundedRect(QRectF(place).adjusted(2 * unit, 2 * unit, -2 * unit, -2 * unit), 2 * unit, 2 * unit);
    painter.setPen(QPen(cell.text, 2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(place.topLeft());
    if (state == Qt::Checked)
        painter.drawPolyline(QPolygonF{{5 * unit, 8.5 * unit}, {7 * unit, 11 * unit}, {11 * unit, 5.5 * unit}});
    else if (state == Qt::PartiallyChecked)
        painter.drawLine(QPointF(5 * unit, 8 * unit), QPointF(11 * unit, 8 * unit));
    painter.translate(-place.topLeft());
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void FlagCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const bool on = isOn(fields.first());
    paintBox(painter, orvane::markArea(cell), cell,
        cell.isMixed ? Qt::PartiallyChecked
            : on     ? Qt::Checked
                     : Qt::Unchecked);
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, orvane::besideMark(cell));
    else
        orvane::paintText(
            painter, cell, orvane::besideMark(cell), on ? QStringLiteral("true") : QStringLiteral("false"));
}

bool FlagCell::click(const CellEdit& edit, const QRect& area, const QPoint& position) const
{
    const FieldSet fields = orvane::fieldsOf(edit.index);
    // The box is as wide as a line is high.
    if (!fields.isEmpty() && position.x() < area.left() + area.height())
        toggleFlags(*edit.services, fields, nullptr);
    return true;
}

CellEditor* FlagCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const CellServices& services = *edit.services;
    return new ToggleEditor(
        edit, [&services, parent](const FieldSet& fields) { toggleFlags(services, fields, parent); }, parent);
}
