#include "view/Silhouettes.h"

#include <QPoint>
#include <QRect>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace bench {
namespace {

constexpr uchar edge = 128;

uchar valueAt(const QImage& mask, const QPoint& place)
{
    return mask.constScanLine(place.y())[place.x()];
}

bool agree(uchar value, uchar other)
{
    return value == other || value == edge || other == edge;
}

QRect around(const QPoint& place, int radius, const QImage& mask)
{
    return QRect(place - QPoint(radius, radius), place + QPoint(radius, radius)).intersected(mask.rect());
}

/// Whether the other mask has the value of this one within `radius` pixels.
bool agreesNear(const QImage& mask, const QImage& other, const QPoint& place, int radius)
{
    const uchar wanted = valueAt(mask, place);
    const QRect near = around(place, radius, mask);
    for (int y = near.top(); y <= near.bottom(); ++y) {
        const uchar* const line = other.constScanLine(y);
        if (std::any_of(
                line + near.left(), line + near.right() + 1, [wanted](uchar value) { return agree(value, wanted); }))
            return true;
    }
    return false;
}

/// Takes the region with that pixel out of the differences.
std::vector<QPoint> takeRegion(QImage& differences, const QPoint& first)
{
    std::vector<QPoint> region{first};
    differences.scanLine(first.y())[first.x()] = 0;
    for (std::size_t i = 0; i < region.size(); ++i) {
        const QRect near = around(region[i], 1, differences);
        for (int y = near.top(); y <= near.bottom(); ++y) {
            for (int x = near.left(); x <= near.right(); ++x) {
                if (std::exchange(differences.scanLine(y)[x], uchar{0}) != 0)
                    region.emplace_back(x, y);
            }
        }
    }
    return region;
}

int differenceOfRegion(const std::vector<QPoint>& region, const QImage& mask, const QImage& other)
{
    QRect box(region.front(), region.front());
    for (const QPoint& place : region)
        box |= QRect(place, place);
    const int most = std::max(box.width(), box.height());
    int radius = 0;
    for (const QPoint& place : region) {
        while (radius < most && !(agreesNear(mask, other, place, radius) && agreesNear(other, mask, place, radius)))
            ++radius;
    }
    return radius;
}

} // namespace

QImage silhouetteOf(const QImage& picture, QRgb background)
{
    const QImage colors = picture.convertToFormat(QImage::Format_RGB32);
    QImage mask(picture.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x)
            mask.scanLine(y)[x] = colors.pixel(x, y) == background ? 0 : 255;
    }
    return mask;
}

QImage smoothSilhouetteOf(const QImage& picture, QRgb background)
{
    const QImage colors = picture.convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> pixels;
    for (int y = 0; y < colors.height(); ++y) {
        for (int x = 0; x < colors.width(); ++x)
            ++pixels[colors.pixel(x, y)];
    }
    pixels.erase(background);
    const auto isRarer = [](const auto& one, const auto& other) { return one.second < other.second; };
    const auto inside = std::max_element(pixels.begin(), pixels.end(), isRarer);
    QImage mask = silhouetteOf(colors, background);
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            if (valueAt(mask, {x, y}) != 0 && colors.pixel(x, y) != inside->first)
                mask.scanLine(y)[x] = edge;
        }
    }
    return mask;
}

int differenceOf(const QImage& silhouette, const QImage& other)
{
    QImage differences(silhouette.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < differences.height(); ++y) {
        for (int x = 0; x < differences.width(); ++x)
            differences.scanLine(y)[x] = agree(valueAt(silhouette, {x, y}), valueAt(other, {x, y})) ? 0 : 255;
    }
    int most = 0;
    for (int y = 0; y < differences.height(); ++y) {
        for (int x = 0; x < differences.width(); ++x) {
            if (valueAt(differences, {x, y}) != 0)
                most = std::max(most, differenceOfRegion(takeRegion(differences, {x, y}), silhouette, other));
        }
    }
    return most;
}

} // namespace bench
