#include "orvane/app/fields/cells/detail/FlagCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/ToggleEditor.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"

#include "meridane/scene/fields/single/NxSFBool.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace {

bool isOn(const NxField& field)
{
    return static_cast<const NxSFBool&>(field).getValue() != 0;
}

// Values that differ become true.
void toggleFlags(const CellServices& services, const FieldSet& fields, QWidget* widget)
{
    const bool on = fields.isMixed() || !isOn(fields.first());
    const orvane::Result<> result = services.writer().change(fields, [on](NxField& field) {
        static_cast<NxSFBool&>(field).setValue(on);
        return true;
    });
    if (!result && widget != nullptr)
        InputMessage::showFor(widget, result.error());
}

} // namespace

void FlagCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const bool on = isOn(fields.first());
    QStyleOptionViewItem option;
    option.initFrom(cell.view);
    option.palette = cell.palette;
    option.rect = orvane::markArea(cell);
    option.state = cell.isEnabled ? QStyle::State_Enabled : QStyle::State_None;
    option.state |= cell.isMixed ? QStyle::State_NoChange : on ? QStyle::State_On : QStyle::State_Off;
    cell.view->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, &painter, cell.view);
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
