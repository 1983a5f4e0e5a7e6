#include "orvane/app/base/DrawnIcon.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr qreal units = 16;

class DrawnIconEngine final : public QIconEngine {
public:
    explicit DrawnIconEngine(DrawIcon draw)
        : m_draw(std::move(draw))
    {
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        return {side, side};
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        if (side <= 0)
            return {};
        if (const qint64 palette = QGuiApplication::palette().cacheKey(); std::exchange(m_palette, palette) != palette)
            m_pixmaps.clear();
        QPixmap& pixmap = m_pixmaps[{side, mode}];
        if (!pixmap.isNull())
            return pixmap;
        pixmap = QPixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(side / units, side / units);
        m_draw(painter, mode);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPixmap drawn
            = pixmap((QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize(), mode, state);
        painter->drawPixmap(rect, drawn);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIconEngine(m_draw); }

private:
    DrawIcon m_draw;
    QHash<std::pair<int, int>, QPixmap> m_pixmaps; // by size and mode
    qint64 m_palette = 0; // of the application, with which they were drawn
};

} // namespace

QIcon drawnIcon(DrawIcon draw)
{
    return QIcon(new DrawnIconEngine(std::move(draw)));
}

} // namespace orvane
