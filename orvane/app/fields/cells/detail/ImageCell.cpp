#include "orvane/app/fields/cells/detail/ImageCell.h"

#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/ImageReplacement.h"
#include "orvane/app/fields/editors/ImageThumbnails.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/popups/ImagePopup.h"
#include "orvane/extender/ImageSample.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

namespace {

void chooseFile(const CellEdit& edit, QWidget* window)
{
    auto* const dialog = new QFileDialog(window, QCoreApplication::translate("ImageCell", "Choose an Image"));
    dialog->setObjectName(QStringLiteral("imageDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(
        {QCoreApplication::translate("ImageCell", "Images (*.png *.jpg *.jpeg *.bmp *.gif *.tga *.tif *.tiff *.webp)"),
            QCoreApplication::translate("ImageCell", "All files (*)")});
    dialog->setDirectory(edit.services->folder());
    QObject::connect(dialog, &QFileDialog::fileSelected, edit.services, [edit](const QString& fileName) {
        if (edit.index.isValid())
            edit.services->images().load(edit.index, fileName);
    });
    dialog->open();
}

void grant(ImagePopup::Wish wish, const CellEdit& edit, QWidget* window)
{
    switch (wish) {
    case ImagePopup::Wish::ChooseFile:
        return chooseFile(edit, window);
    case ImagePopup::Wish::Paste:
        if (const QMimeData* const data = QGuiApplication::clipboard()->mimeData(); data != nullptr)
            edit.services->images().paste(edit.index, *data);
        return;
    case ImagePopup::Wish::Clear:
        return edit.services->images().clear(edit.index);
    }
}

} // namespace

void ImageCell::dropFile(const CellEdit& edit, const QString& fileName) const
{
    edit.services->images().load(edit.index, fileName);
}

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
    const QMimeData* const clipboard = QGuiApplication::clipboard()->mimeData();
    auto* const popup
        = new ImagePopup(*field, clipboard != nullptr && ImageReplacement::isPastable(*clipboard), editor);
    editor->setPopup(popup, [](const NxField& /*shown*/) {});
    QObject::connect(popup, &ImagePopup::wished, edit.services,
        [edit, window = QPointer<QWidget>(parent->window())](ImagePopup::Wish wish) {
            if (edit.index.isValid() && window != nullptr)
                grant(wish, edit, window);
        });
    return editor;
}
