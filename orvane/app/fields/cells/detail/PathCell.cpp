#include "orvane/app/fields/cells/detail/PathCell.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PathChecks.h"
#include "orvane/app/fields/editors/PathEditor.h"
#include "orvane/app/fields/editors/QuotedForm.h"
#include "orvane/app/fields/popups/PathEdit.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include "meridane/scene/fields/single/NxSFString.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

QString pathOf(const NxField& field)
{
    return orvane::toQString(static_cast<const NxSFString&>(field).getValue());
}

bool isMissing(const QString& path, const CellServices& services)
{
    return !path.isEmpty()
        && services.paths().stateOf(orvane::namedFile(path, services.folder())) == PathChecks::State::Missing;
}

// A triangle with an exclamation mark.
void paintWarning(QPainter& painter, const QRectF& area, const QColor& color, const QColor& background)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QRectF inside = area.adjusted(area.width() / 8, area.height() / 8, -area.width() / 8, -area.height() / 8);
    painter.drawPolygon(QPolygonF{{inside.center().x(), inside.top()}, inside.bottomRight(), inside.bottomLeft()});
    painter.setBrush(background);
    const qreal unit = inside.height() / 10;
    painter.drawRect(QRectF(inside.center().x() - unit / 2, inside.top() + 3.5 * unit, unit, 3 * unit));
    painter.drawRect(QRectF(inside.center().x() - unit / 2, inside.top() + 7.5 * unit, unit, unit));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void PathCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    if (cell.isMixed)
        return orvane::paintMixed(painter, cell, cell.area);
    const QString path = pathOf(fields.first());
    if (!isMissing(path, *cell.services)) {
        orvane::paintText(painter, cell, cell.area, orvane::oneLine(path));
        return;
    }
    const QColor color = orvane::tintOn(orvane::look::Tint::Warning, cell.background);
    paintWarning(painter, orvane::markArea(cell), color, cell.background);
    orvane::paintText(painter, cell, orvane::besideMark(cell), orvane::oneLine(path), color);
}

void PathCell::dropFile(const CellEdit& edit, const QString& fileName) const
{
    const FieldSet fields = orvane::fieldsOf(edit.index);
    const QString path = orvane::pathOfFile(fileName, edit.services->folder());
    if (!fields.isEmpty())
        (void)edit.services->writer().setText(fields, orvane::quotedForm(path)); // fails only for lack of memory
}

QString PathCell::toolTip(const FieldSet& fields, const CellServices& services) const
{
    const QString path = pathOf(fields.first());
    return isMissing(path, services) ? QCoreApplication::translate("PathCell", "There is no file %1.")
                                           .arg(orvane::namedFile(path, services.folder()))
                                     : QString();
}

CellEditor* PathCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    return orvane::fieldOf<NxSFString>(edit) != nullptr ? new PathEditor(edit, parent) : nullptr;
}
