// Orbiting 10,000,000 triangles in a view without a GPU: how long a picture takes while the view moves, and how far its
// silhouette is from the one with full detail.

#include "Figure.h"
#include "Timing.h"
#include "view/BallScenes.h"
#include "view/Silhouettes.h"

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

/// By how many pixels the silhouette of a picture is off.
int silhouetteError(const QImage& picture, ViewDrawing& drawing, const NxViewpoint& viewpoint)
{
    constexpr QRgb background = qRgb(255, 0, 255);
    NxDrawingStyle even = style();
    even.shading = NxDrawingStyle::UNLIT;
    drawing.setStyle(even);
    const QImage full = drawing.draw(viewpoint, size, 1);
    drawing.setStyle(style());
    return bench::differenceOf(
        bench::silhouetteOf(picture.scaled(size), background), bench::smoothSilhouetteOf(full, background));
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
    const int difference = silhouetteError(moving, drawing, viewpoint);
    bench::report({name + ": picture while orbiting", "ms", bench::median(times), 0, most});
    bench::report({name + ": difference of the silhouette", "pixels", static_cast<double>(difference), 0, 4});
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
