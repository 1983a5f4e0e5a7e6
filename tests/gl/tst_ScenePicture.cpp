#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>

/// Where the nodes of a scene are in the picture, and which of them.
class TestScenePicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void transparentThingsAreMixedFromBackToFront()
    {
        const auto opaque = rectangle(-1, -1, 1, 1, 0);
        const auto middle = rectangle(-1, -1, 0.5F, 1, 0.2F);
        const auto front = rectangle(-1, -1, 0, 1, 0.4F);
        const QImage picture = pictureOf({plain(0, 0, 1, 0.5F).get(), front.get(), plain(0, 1, 0, 0.5F).get(),
            middle.get(), plain(1, 0, 0).get(), opaque.get()});
        COMPARE_PIXEL(picture, -0.5, 0, color(0.25, 0.25, 0.5));
        COMPARE_PIXEL(picture, 0.25, 0, color(0.5, 0.5, 0));
        COMPARE_PIXEL(picture, 0.75, 0, red);
    }

    void perspectiveMakesDistantThingsSmall()
    {
        const auto mesh = rectangle(-0.4F, -0.4F, 0.4F, 0.4F, -5);
        const auto material = plain(1, 1, 1);
        COMPARE_PIXEL(pictureOf({material.get(), mesh.get()}), 0.35, 0, white);
        NxViewpoint viewpoint;
        viewpoint.heightAngle = 2 * std::atan(0.2F); // what is between -1 and 1, at the distance of 5 of the origin
        const QImage picture = pictureOf({material.get(), mesh.get()}, viewpoint);
        COMPARE_PIXEL(picture, 0.15, 0, white);
        COMPARE_PIXEL(picture, 0.25, 0, black);
    }

    void transformsAddUp()
    {
        const auto inner = make<NxTransform>();
        inner->translation.setValue(VbVec3f(0.25F, 0.25F, 0));
        inner->addChild(rectangle(-0.1F, -0.1F, 0.1F, 0.1F).get());
        const auto outer = make<NxTransform>();
        outer->scaleFactor.setValue(VbVec3f(2, 1, 1));
        outer->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), 1.5707963F));
        outer->addChild(inner.get());
        const QImage picture = pictureOf({plain(1, 0, 0).get(), outer.get()});
        COMPARE_PIXEL(picture, -0.25, 0.5, red); // (0.25, 0.25), stretched to (0.5, 0.25), turned to (-0.25, 0.5)
        COMPARE_PIXEL(picture, -0.25, 0.65, red);
        COMPARE_PIXEL(picture, -0.4, 0.5, black);
        COMPARE_PIXEL(picture, 0.25, 0.25, black);
    }

    void aMatrixPlacesItsChildren()
    {
        const auto transform = make<NxMatrixTransform>();
        transform->matrix.setValue(VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0.5F, -0.5F, 0, 1));
        transform->addChild(rectangle(-0.1F, -0.1F, 0.1F, 0.1F).get());
        const QImage picture = pictureOf({plain(1, 0, 0).get(), transform.get()});
        COMPARE_PIXEL(picture, 0.5, -0.5, red);
        COMPARE_PIXEL(picture, 0, 0, black);
    }

    void aSwitchShowsOneChild_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QColor>("left");
        QTest::addColumn<QColor>("right");
        QTest::newRow("none") << int{NxSwitch::NONE} << black << black;
        QTest::newRow("all, the material as well") << int{NxSwitch::ALL} << red << red;
        QTest::newRow("the one on the left") << 1 << white << black;
        QTest::newRow("the one on the right") << 2 << black << white;
        QTest::newRow("beyond the last") << 3 << black << black;
        QTest::newRow("another negative number") << -2 << black << black;
    }

    void aSwitchShowsOneChild()
    {
        QFETCH(int, which);
        QFETCH(QColor, left);
        QFETCH(QColor, right);
        const auto choice = make<NxSwitch>();
        choice->whichChild.setValue(which);
        choice->addChild(plain(1, 0, 0).get());
        choice->addChild(rectangle(-1, -1, 0, 1).get());
        choice->addChild(rectangle(0, -1, 1, 1).get());
        const QImage picture = pictureOf({plain(1, 1, 1).get(), choice.get()});
        COMPARE_PIXEL(picture, -0.5, 0, left);
        COMPARE_PIXEL(picture, 0.5, 0, right);
    }

    void aMaterialEndsWithItsGroup()
    {
        const auto inner
            = groupOf({rectangle(-1, -1, -0.5F, 1).get(), plain(0, 1, 0).get(), rectangle(-0.5F, -1, 0, 1).get()});
        const auto last = rectangle(0.5F, -1, 1, 1);
        const QImage picture = pictureOf(
            {plain(1, 0, 0).get(), inner.get(), rectangle(0, -1, 0.5F, 1).get(), plain(0, 0, 1).get(), last.get()});
        COMPARE_PIXEL(picture, -0.75, 0, red);
        COMPARE_PIXEL(picture, -0.25, 0, green);
        COMPARE_PIXEL(picture, 0.25, 0, red);
        COMPARE_PIXEL(picture, 0.75, 0, blue);
    }

    void ignoredFieldsCountWithTheirDefault()
    {
        const auto material = plain(1, 0, 0, 1);
        material->transparency.setIgnored(1);
        const auto transform = make<NxTransform>();
        transform->translation.setValue(VbVec3f(100, 0, 0));
        transform->translation.setIgnored(1);
        const auto mesh = rectangle(-1, -1, 1, 1);
        mesh->primitive.setValue(NxMesh::POINTS);
        mesh->primitive.setIgnored(1);
        transform->addChild(mesh.get());
        COMPARE_PIXEL(pictureOf({material.get(), transform.get()}), 0, 0, red);
        material->diffuseColor.setIgnored(1);
        COMPARE_PIXEL(pictureOf({material.get(), transform.get()}), 0, 0, color(0.8, 0.8, 0.8));
    }

    void lowComplexityDrawsLessDetail_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("size"); // of the whole picture
        QTest::addColumn<bool>("isWhole");
        QTest::newRow("full") << int{NxComplexity::OBJECT_SPACE} << 1.0F << 2.0F << true;
        QTest::newRow("usual") << int{NxComplexity::OBJECT_SPACE} << 0.5F << 2.0F << true;
        QTest::newRow("low") << int{NxComplexity::OBJECT_SPACE} << 0.1F << 2.0F << false;
        QTest::newRow("least") << int{NxComplexity::OBJECT_SPACE} << 0.0F << 2.0F << false;
        QTest::newRow("large in the picture") << int{NxComplexity::SCREEN_SPACE} << 1.0F << 2.0F << true;
        QTest::newRow("small in the picture") << int{NxComplexity::SCREEN_SPACE} << 1.0F << 10.0F << false;
    }

    void lowComplexityDrawsLessDetail()
    {
        QFETCH(int, type);
        QFETCH(float, value);
        QFETCH(float, size);
        QFETCH(bool, isWhole);
        const auto complexity = make<NxComplexity>();
        complexity->type.setValue(type);
        complexity->value.setValue(value);
        const auto mesh = ball(0.9F, 64);
        NxViewpoint viewpoint = DrawingBench::front();
        viewpoint.height = size;
        const QImage picture = pictureOf({complexity.get(), plain(1, 0, 0).get(), mesh.get()}, viewpoint);
        const auto all = static_cast<std::uint64_t>(mesh->indices.getNum());
        const std::uint64_t drawn = m_bench.counts().drawnCorners;
        QVERIFY(isWhole ? drawn == all : drawn > 0 && drawn < all / 4);
        const QColor middle = pixelAt(picture, 0, 0);
        QVERIFY2(middle.red() > 200, text(middle).constData());
        COMPARE_PIXEL(picture, 1, 1, black);
    }

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = DrawingBench::front())
    {
        return m_bench.pictureOf(nodes, viewpoint);
    }

    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestScenePicture)
#include "tst_ScenePicture.moc"
