#include "orvane/app/fields/popups/ImagePopup.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/look/Look.h"
#include "orvane/extender/ImageSample.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Translucent parts are seen over checks. A small image is enlarged by whole numbers, so that its pixels are seen.
QPixmap shownPixmap(const QImage& image, int side)
{
    const int factor = std::max(1, side / 2 / std::max(image.width(), image.height()));
    QPixmap pixmap(image.size() * factor);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), Qt::white);
    constexpr int check = 8;
    for (int top = 0; top < pixmap.height(); top += check) {
        for (int left = top / check % 2 * check; left < pixmap.width(); left += 2 * check)
            painter.fillRect(left, top, check, check, Qt::lightGray);
    }
    painter.drawImage(pixmap.rect(), image);
    return pixmap;
}

} // namespace

ImagePopup::ImagePopup(const NxSFImage& image, bool canPaste, QWidget* parent)
    : PopupFrame(parent)
{
    setObjectName(QStringLiteral("imagePopup"));
    const QString description = orvane::imageDescription(image);
    setAccessibleName(description);
    auto* const layout = new QVBoxLayout(this);
    const int unit = orvane::look::unit(fontMetrics());
    layout->setContentsMargins(unit, unit, unit, unit);
    layout->setSpacing(unit);
    const qreal ratio = devicePixelRatioF();
    const int side = static_cast<int>(largestSide * ratio);
    const QImage sample = orvane::sampledImage(image, {side, side});
    if (!sample.isNull()) {
        QPixmap pixmap = shownPixmap(sample, side);
        pixmap.setDevicePixelRatio(ratio);
        auto* const picture = new QLabel(this);
        picture->setObjectName(QStringLiteral("picture"));
        picture->setPixmap(pixmap);
        picture->setAlignment(Qt::AlignCenter);
        layout->addWidget(picture);
    }
    auto* const text = new QLabel(description, this);
    text->setTextFormat(Qt::PlainText);
    layout->addWidget(text);
    buildButtons(canPaste, !sample.isNull());
}

void ImagePopup::buildButtons(bool canPaste, bool canClear)
{
    auto* const line = new QHBoxLayout;
    line->setSpacing(orvane::look::unit(fontMetrics()));
    const auto add = [&](const QString& title, const char* name, Wish wish, const QString& tip, bool isEnabled) {
        auto* const button = new QPushButton(title, this);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(orvane::plainToolTip(tip));
        button->setEnabled(isEnabled);
        button->setAutoDefault(true); // Return presses the one with the focus
        line->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, wish] {
            finish(true);
            Q_EMIT wished(wish);
        });
        return button;
    };
    QPushButton* const choose = add(tr("Choose &File…"), "chooseImage", Wish::ChooseFile,
        tr("Replaces the image by that of a file. A file can also be dropped on the row."), true);
    add(tr("&Paste"), "pasteImage", Wish::Paste,
        canPaste ? tr("Replaces the image by the one on the clipboard.") : tr("The clipboard has no image."), canPaste);
    add(tr("&Clear"), "clearImage", Wish::Clear,
        canClear ? tr("Empties the image.") : tr("The image is empty already."), canClear);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    choose->setFocus();
}

void ImagePopup::mousePressEvent(QMouseEvent* /*event*/)
{
    finish(true);
}
