// Orbiting 10,000,000 triangles in a view without a GPU: how long a picture takes while the view moves, and how far its
// silhouette is from the one with full detail.

#include "Figure.h"
#include "Timing.h"
#include "view/BallScenes.h"

#include "orvane/app/view/ViewDrawing.h"
#include "orvane/app/view/ViewPictures.h"

#include "meridane/gl/geometry/NxViewpoint.h"

#include <QGuiApplication>
#include <QImage>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr QSize size(1280, 800);
constexpr int pictures = 61;
constexpr int turnPictures = 30; // to settle before
constexpr double most = 33; // milliseconds

NxDrawingStyle style()
{
    NxDrawingStyle style;
    style.grid = false;
    style.axes = false;
    style.backgroundTop = style.backgroundBottom = VbColor(1, 0, 1);
    return style;
}

QImage silhouetteOf(const QImage& picture)
{
    const QImage scaled = picture.scaled(size).convertToFormat(QImage::Format_RGB32);
    QImage mask(size, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            mask.scanLine(y)[x] = scaled.pixel(x, y) == qRgb(255, 0, 255) ? 0 : 255;
    }
    return mask;
}

/// Whether the masks have the same value somewhere within `radius` pixels.
bool agreeNear(const QImage& mask, const QImage& other, const QPoint& place, int radius)
{
    const uchar wanted = mask.constScanLine(place.y())[place.x()];
    const QRect near = QRect(place - QPoint(radius, radius), place + QPoint(radius, radius)).intersected(mask.rect());
    for (int y = near.top(); y <= near.bottom(); ++y) {
        for (int x = near.left(); x <= near.right(); ++x) {
            if (other.constScanLine(y)[x] == wanted)
                return true;
        }
    }
    return false;
}

/// The greatest distance of a pixel of one silhouette from those of the other, either way.
int distanceOf(const QImage& mask, const QImage& other)
{
    int radius = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            while (radius < size.height()
                && !(agreeNear(mask, other, {x, y}, radius) && agreeNear(other, mask, {x, y}, radius)))
                ++radius;
        }
    }
    return radius;
}

void orbit(const std::string& name, NxGroup* scene)
{
    constexpr double milliseconds = 1e3;
    ViewDrawing drawing;
    drawing.setStyle(style());
    drawing.setScene(scene, QString());
    if (!drawing.start()) {
        std::fprintf(stderr, "%s\n", qPrintable(drawing.problem()));
        std::exit(EXIT_FAILURE);
    }
    ViewPictures view(drawing);
    NxViewpoint viewpoint;
    viewpoint.lookAlong(VbVec3f(-1, -1, -1), VbVec3f(0, 1, 0));
    const NxBounds bounds = drawing.bounds();
    viewpoint.frame(bounds.min, bounds.max, static_cast<float>(size.width()) / static_cast<float>(size.height()));
    const auto draw = [&] { return view.draw(viewpoint, size, 1); };
    static_cast<void>(draw());
    const double full = milliseconds * bench::seconds([&] { static_cast<void>(drawing.draw(viewpoint, size, 1)); });
    const double reduction = milliseconds * bench::seconds([&] {
        while (drawing.isReducing())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
    std::vector<double> times;
    QImage moving;
    for (int i = -turnPictures; i < pictures; ++i) {
        viewpoint.orbit(0.03F, 0.004F);
        const double time = milliseconds * bench::seconds([&] { moving = draw(); });
        QCoreApplication::processEvents();
        if (i >= 0)
            times.push_back(time);
    }
    const int distance = distanceOf(silhouetteOf(moving), silhouetteOf(drawing.draw(viewpoint, size, 1)));
    bench::report({name + ": picture while orbiting", "ms", bench::median(times), 0, most});
    bench::report({name + ": distance of the silhouette", "pixels", static_cast<double>(distance), 0, 4});
    bench::report({name + ": picture with full detail", "ms", full, 0, 0});
    bench::report({name + ": until the meshes are reduced", "ms", reduction, 0, 0});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    orbit("10,000,000 triangles in one mesh", bench::oneLargeBall().get());
    orbit("10,000,000 triangles in 1,000 meshes", bench::manyBalls().get());
    orbit("10,000,000 triangles in 1,000 instances", bench::ballInstances().get());
    return 0;
}
