#include "app/view/SceneViewCase.h"

#include "orvane/app/view/ViewColors.h"
#include "orvane/app/view/picture/PictureFile.h"
#include "orvane/app/view/picture/ScenePicture.h"

#include "meridane/scene/nodes/NxMaterial.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

/// Pictures of the scene alone, of any size.
class TestScenePicture : public SceneViewCase {
    Q_OBJECT

private:
    /// How many pixels are on another side of the silhouette than in the other picture, which is so often as large.
    static int differences(const QImage& picture, const QImage& larger, int factor)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor there = larger.pixelColor(x * factor + factor / 2, y * factor + factor / 2);
                count += (picture.pixelColor(x, y).alpha() > 127) != (there.alpha() > 127) ? 1 : 0;
            }
        }
        return count;
    }
    [[nodiscard]] static QImage drawn(const orvane::Result<QImage>& result)
    {
        return result ? result.value() : QImage();
    }

private Q_SLOTS:
    void init() { showSquares(); }
    void cleanup() { endView(); }

    /// The view draws over its background; the picture has the same shapes and colours without it.
    void showsWhatTheViewShows_data()
    {
        QTest::addColumn<NxViewpoint::Projection>("projection");
        QTest::newRow("perspective") << NxViewpoint::PERSPECTIVE;
        QTest::newRow("orthographic") << NxViewpoint::ORTHOGRAPHIC;
    }
    void showsWhatTheViewShows()
    {
        QFETCH(const NxViewpoint::Projection, projection);
        m_view->setProjection(projection);
        m_view->lookFromCorner();
        m_view->setProjection(projection);
        const QImage view = picture();
        ScenePicture scene(m_scene.get(), QString(), {});
        const QImage picture = drawn(scene.draw(m_view->viewpoint(), view.size(), Qt::transparent));
        QCOMPARE(picture.size(), view.size());
        int edges = 0;
        for (int y = 0; y < view.height(); ++y) {
            for (int x = 0; x < view.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                const QColor there = view.pixelColor(x, y);
                const bool isSquare = ViewScenes::isLike(there, Qt::red) || ViewScenes::isLike(there, Qt::green);
                if (isSquare && pixel.alpha() == 255)
                    QVERIFY(ViewScenes::isLike(pixel, there));
                edges += isSquare != (pixel.alpha() > 230) ? 1 : 0;
            }
        }
        QVERIFY(ViewScenes::count(view, Qt::red) > 3000);
        QVERIFY2(edges < 60, qPrintable(QString::number(edges)));
        QCOMPARE(picture.pixelColor(2, 2).alpha(), 0);
    }

    void aLargePictureHasNoSeams()
    {
        const NxViewpoint& viewpoint = m_view->viewpoint();
        ScenePicture scene(m_scene.get(), QString(), {});
        const QImage small = drawn(scene.draw(viewpoint, QSize(700, 230), Qt::transparent));
        const QImage large = drawn(scene.draw(viewpoint, QSize(2100, 690), Qt::transparent));
        QCOMPARE(large.size(), QSize(2100, 690));
        const int count = differences(small, large, 3);
        QVERIFY2(count < 40, qPrintable(QString::number(count)));
        // Zoomed in to one square, so that the border of the parts is inside it.
        NxViewpoint close = viewpoint;
        close.position = VbVec3d(2, 0, 0.1);
        const QImage inside = drawn(scene.draw(close, QSize(2100, 100), Qt::transparent));
        QCOMPARE(ViewScenes::count(inside, Qt::green), 2100 * 100);
    }

    void theBackgroundIsOneColorOrNone()
    {
        ScenePicture scene(m_scene.get(), QString(), {});
        const QImage blue = drawn(scene.draw(m_view->viewpoint(), QSize(300, 200), QColor(10, 20, 200)));
        QVERIFY(!blue.hasAlphaChannel());
        QCOMPARE(blue.pixelColor(1, 1), QColor(10, 20, 200));
        QCOMPARE(blue.pixelColor(298, 198), QColor(10, 20, 200));
        QVERIFY(ViewScenes::count(blue, Qt::red) > 1000);
    }

    void whatIsHalfTransparentIsSoInThePicture()
    {
        auto* const material = dynamic_cast<NxMaterial*>(child(1, 0));
        material->transparency.setValue(0.5F);
        ScenePicture scene(m_scene.get(), QString(), {});
        const QImage picture = drawn(scene.draw(m_view->viewpoint(), QSize(600, 400), Qt::transparent));
        const QColor red = picture.pixelColor(at(-2, 0));
        QVERIFY2(std::abs(red.alpha() - 128) <= 3, qPrintable(QString::number(red.alpha())));
        QVERIFY(red.red() > 240 && red.green() < 10);
        QCOMPARE(picture.pixelColor(at(2, 0)), QColor(Qt::green));
    }

    void framesAllOfTheScene()
    {
        ScenePicture scene(m_scene.get(), QString(), {});
        const QSize size(200, 400);
        const auto viewpoint = scene.framed(size);
        QVERIFY(viewpoint);
        QCOMPARE(viewpoint.value().viewDirection(), orvane::firstViewpoint().viewDirection());
        const QImage picture = drawn(scene.draw(viewpoint.value(), size, Qt::white));
        QVERIFY(ViewScenes::count(picture, Qt::red) > 500 && ViewScenes::count(picture, Qt::green) > 500);
        for (int y = 0; y < size.height(); ++y)
            QVERIFY(picture.pixelColor(0, y) == QColor(Qt::white) && picture.pixelColor(199, y) == QColor(Qt::white));
    }

    void givesUpWhenItIsAskedTo()
    {
        ScenePicture scene(m_scene.get(), QString(), {});
        const auto result
            = scene.draw(m_view->viewpoint(), QSize(100, 100), Qt::white, [](double /*share*/) { return false; });
        QVERIFY(!result);
        QVERIFY(result.error().isEmpty());
    }

    void saysWhyThereIsNoPicture()
    {
        qputenv("ORVANE_VIEW", "0");
        ScenePicture scene(m_scene.get(), QString(), {});
        QVERIFY(scene.framed(QSize(10, 10)).error().contains(QStringLiteral("ORVANE_VIEW")));
        QVERIFY(scene.draw(NxViewpoint(), QSize(10, 10), Qt::white).error().contains(QStringLiteral("ORVANE_VIEW")));
    }

    void sizesHaveLimits()
    {
        QVERIFY(ScenePicture::isUsableSize(QSize(16384, 16384)));
        QVERIFY(ScenePicture::isUsableSize(QSize(32767, 1)));
        QVERIFY(!ScenePicture::isUsableSize(QSize(32768, 1)));
        QVERIFY(!ScenePicture::isUsableSize(QSize(16385, 16384)));
        QVERIFY(!ScenePicture::isUsableSize(QSize(0, 100)));
        QVERIFY(ScenePicture::sizeLimits().contains(QStringLiteral("32767")));
    }

    void aPictureKeepsItsTransparencyInItsFile()
    {
        const QTemporaryDir folder;
        QImage picture(2, 1, QImage::Format_ARGB32);
        picture.setPixelColor(0, 0, QColor(10, 20, 30, 40));
        picture.setPixelColor(1, 0, QColor(0, 0, 0, 0));
        const QString fileName = folder.filePath(QStringLiteral("a.png"));
        QVERIFY(orvane::canBeTransparent(fileName));
        QVERIFY(orvane::writePicture(picture, fileName));
        QCOMPARE(QImage(fileName).pixelColor(0, 0), QColor(10, 20, 30, 40));
        QVERIFY(!orvane::canBeTransparent(QStringLiteral("a.jpg")));
        QVERIFY(!orvane::writePicture(picture, folder.filePath(QStringLiteral("no/a.png"))));
    }
};

QTEST_MAIN(TestScenePicture)
#include "tst_ScenePicture.moc"
