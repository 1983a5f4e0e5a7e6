#include "orvane/app/welcome/RecentDelegate.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/welcome/RecentModel.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

namespace {

namespace look = orvane::look;

// In units of the look.
constexpr int pictureWidth = 34; // so that three fit beside each other in a window of the usual size
constexpr int pictureHeight = 20;
constexpr double missingOpacity = 0.35;

bool isSelected(const QStyleOptionViewItem& option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

QColor background(const QStyleOptionViewItem& option)
{
    const QPalette::ColorGroup group = look::groupOf(option);
    return option.palette.color(group, isSelected(option) ? QPalette::Highlight : QPalette::Base);
}

QColor foreground(const QStyleOptionViewItem& option)
{
    const QPalette::ColorGroup group = look::groupOf(option);
    return option.palette.color(group, isSelected(option) ? QPalette::HighlightedText : QPalette::Text);
}

/// The part of a tile without its margins.
QRect innerRect(const QStyleOptionViewItem& option)
{
    const int margin = 2 * look::unit(option.fontMetrics);
    return option.rect.adjusted(margin, margin, -margin, -margin);
}

/// A pin in a circle, so that it is seen on any picture.
void paintPin(QPainter& painter, const QRectF& place, const QColor& color, const QColor& ground)
{
    painter.save();
    painter.setPen(QPen(color, 1));
    painter.setBrush(ground);
    painter.drawEllipse(place);
    painter.translate(place.topLeft());
    painter.scale(place.width() / 16, place.height() / 16);
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(color);
    QPainterPath head;
    head.addRoundedRect(QRectF(6, 3.5, 4, 4.5), 1, 1);
    painter.drawPath(head);
    painter.drawLine(QPointF(4.8, 9), QPointF(11.2, 9));
    painter.drawLine(QPointF(8, 9), QPointF(8, 12.8));
    painter.restore();
}

} // namespace

QSize RecentDelegate::tileSize(const QFontMetrics& font)
{
    const int unit = look::unit(font);
    return {(pictureWidth + 4) * unit, (pictureHeight + 6) * unit + 3 * font.lineSpacing()};
}

QSize RecentDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return tileSize(option.fontMetrics);
}

void RecentDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const int unit = look::unit(item.fontMetrics);
    const QColor ground = background(item);
    const bool hasFocus = item.state.testFlag(QStyle::State_HasFocus);
    const bool isHovered = item.state.testFlag(QStyle::State_MouseOver);
    const QColor frame = hasFocus ? foreground(item)
        : isHovered               ? item.palette.color(QPalette::Highlight)
                                  : look::mixed(ground, foreground(item), 0.2);
    const QRectF tile = QRectF(item.rect).adjusted(unit / 2.0, unit / 2.0, -unit / 2.0, -unit / 2.0);
    painter->setPen(QPen(frame, hasFocus ? 2 : 1));
    painter->setBrush(ground);
    painter->drawRoundedRect(tile, unit, unit);

    const QRect inner = innerRect(item);
    const QRect picture(inner.topLeft(), QSize(inner.width(), pictureHeight * unit));
    paintPicture(*painter, picture, item, index);
    paintTexts(*painter, inner.adjusted(0, picture.height() + unit, 0, 0), item, index);
    painter->restore();
}

void RecentDelegate::paintPicture(
    QPainter& painter, const QRect& place, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isMissing = index.data(RecentModel::StateRole).toInt() == static_cast<int>(FileState::Kind::Missing);
    painter.save();
    if (isMissing)
        painter.setOpacity(missingOpacity);
    const auto picture = index.data(Qt::DecorationRole).value<QImage>();
    if (picture.isNull()) {
        const int side = place.height() / 2;
        static const QIcon icon(QStringLiteral(":/orvane/icons/orvane.svg"));
        icon.paint(&painter, QRect(place.center() - QPoint(side / 2, side / 2), QSize(side, side)));
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        // Fills the place; what is too much is cut off at the sides or above and below.
        const QSizeF part = QSizeF(place.size()).scaled(QSizeF(picture.size()), Qt::KeepAspectRatio);
        QRectF source(QPointF(), part);
        source.moveCenter(QRectF(picture.rect()).center());
        painter.drawImage(QRectF(place), picture, source);
    }
    painter.restore();
    if (index.data(RecentModel::PinnedRole).toBool()) {
        const int side = look::iconSize(option.fontMetrics) + look::unit(option.fontMetrics);
        paintPin(painter, QRectF(place.right() - side, place.top(), side, side),
            option.palette.color(look::groupOf(option), QPalette::Text),
            option.palette.color(look::groupOf(option), QPalette::Base));
    }
}

void RecentDelegate::paintTexts(
    QPainter& painter, const QRect& place, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QColor ground = background(option);
    const QColor text = foreground(option);
    const QColor quiet = look::quietColor(text, ground);
    const auto kind = static_cast<FileState::Kind>(index.data(RecentModel::StateRole).toInt());
    const bool isWrong = kind == FileState::Kind::Missing || kind == FileState::Kind::NoAnswer;
    const QFontMetrics& font = option.fontMetrics;
    QRect line(place.topLeft(), QSize(place.width(), font.lineSpacing()));
    const auto draw = [&](const QString& shown, Qt::TextElideMode elide, const QColor& color) {
        painter.setPen(color);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
            font.elidedText(shown, elide, line.width()));
        line.translate(0, font.lineSpacing());
    };
    painter.setFont(option.font);
    draw(index.data(Qt::DisplayRole).toString(), Qt::ElideMiddle, text);
    draw(index.data(RecentModel::FolderRole).toString(), Qt::ElideLeft, quiet);
    draw(index.data(RecentModel::StateTextRole).toString(), Qt::ElideRight,
        isWrong ? look::textColor(look::Tint::Warning, ground) : quiet);
}
