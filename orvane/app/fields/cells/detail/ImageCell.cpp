#include "orvane/app/fields/cells/detail/ImageCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/ImageThumbnails.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/ImagePopup.h"
#include "orvane/app/fields/popups/ImageSample.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <QPainter>

void ImageCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    if (cell.isMixed)
        return orvane::paintMixed(painter, cell, cell.area);
    const auto& field = static_cast<const NxSFImage&>(fields.first());
    const QRect place(cell.area.left(), cell.area.top(), cell.area.height(), cell.area.height());
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap& thumbnail = cell.services->thumbnails().thumbnail(field, qRound(place.width() * ratio));
    QRect rest = cell.area;
    if (!thumbnail.isNull()) {
        const QSize size = (QSizeF(thumbnail.size()) / ratio).toSize();
        const QPoint corner(
            place.left() + (place.width() - size.width()) / 2, place.top() + (place.height() - size.height()) / 2);
        painter.drawPixmap(QRect(corner, size), thumbnail);
        rest.setLeft(place.right() + place.width() / 4);
    }
    orvane::paintText(painter, cell, rest, orvane::imageDescription(field));
}

CellEditor* ImageCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxSFImage>(edit);
    if (field == nullptr)
        return nullptr;
    auto* const editor = new PopupEditor(edit, parent);
    editor->setPopup(new ImagePopup(*field, editor), [](const NxField& /*shown*/) {});
    return editor;
}
