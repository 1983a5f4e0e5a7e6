#include "gl/DrawingBench.h"
#include "plugins/nodes/MaterialSphere.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"

#include <cmath>

/// The sphere of a material looks as the view draws a ball of it.
class TestMaterialSphere : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itLooksAsInTheView_data()
    {
        QTest::addColumn<NxRef<NxMaterial>>("material");
        const auto add = [](const char* name) {
            NxRef<NxMaterial> material(new NxMaterial);
            QTest::newRow(name) << material;
            return material;
        };
        add("default");
        const auto shiny = add("with highlights");
        shiny->diffuseColor.setValue(VbColor(0.7F, 0.2F, 0.1F));
        shiny->specularColor.setValue(VbColor(0.6F, 0.6F, 0.6F));
        shiny->shininess.setValue(0.3F);
        const auto glowing = add("that gives off light");
        glowing->emissiveColor.setValue(VbColor(0.1F, 0.4F, 0.1F));
        glowing->ambientColor.setValue(VbColor(1, 0, 0));
        const auto metal = add("metal");
        metal->diffuseColor.setValue(VbColor(1, 0.8F, 0.3F));
        metal->metalness.setValue(1);
        metal->roughness.setValue(0.4F);
        const auto plastic = add("plastic");
        plastic->diffuseColor.setValue(VbColor(0.1F, 0.2F, 0.7F));
        plastic->roughness.setValue(0.3F);
        const auto ignored = add("with an ignored colour");
        ignored->diffuseColor.setValue(VbColor(1, 0, 0));
        ignored->diffuseColor.setIgnored(true);
    }

    void itLooksAsInTheView()
    {
        QFETCH(const NxRef<NxMaterial>, material);
        NxRef<NxDirectionalLight> lamp(new NxDirectionalLight);
        lamp->direction.setValue(VbVec3f(1, -1, -2));
        const QImage expected = m_bench.pictureOf({lamp.get(), material.get(), ball(1, 96).get()});

        nodes::MaterialSphere sphere;
        sphere.setMaterial(*material);
        const QImage picture = sphere.picture(101);
        for (const auto& [x, y] : {std::pair(0.0, 0.0), std::pair(-0.4, 0.4), std::pair(-0.3, 0.2),
                 std::pair(0.5, -0.5), std::pair(0.7, 0.2), std::pair(0.0, -0.8)}) {
            constexpr int tolerance = 8; // the ball has flat sides
            const QColor there = pixelAt(expected, x, y);
            QVERIFY2(isNear(pixelAt(picture, x, y), there, tolerance),
                (text(pixelAt(picture, x, y)) + " instead of " + text(there) + " at " + QByteArray::number(x) + ", "
                    + QByteArray::number(y))
                    .constData());
        }
    }

    void itIsRound()
    {
        nodes::MaterialSphere sphere;
        sphere.setMaterial(*NxRef<NxMaterial>(new NxMaterial));
        const QImage picture = sphere.picture(64);
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(63, 63).alpha(), 0);
        QCOMPARE(picture.pixelColor(32, 32).alpha(), 255);
    }

    void whatIsTranslucentShowsTheGround()
    {
        NxRef<NxMaterial> glass(new NxMaterial);
        glass->transparency.setValue(0.75F);
        nodes::MaterialSphere sphere;
        sphere.setMaterial(*glass);
        QCOMPARE(sphere.picture(64).pixelColor(32, 32).alpha(), 64);
        glass->alphaCutoff.setValue(0.5F);
        sphere.setMaterial(*glass);
        QCOMPARE(sphere.picture(64).pixelColor(32, 32).alpha(), 0);
        glass->transparency.setValue(0.25F);
        sphere.setMaterial(*glass);
        QCOMPARE(sphere.picture(64).pixelColor(32, 32).alpha(), 255);
    }

    void valuesThatMakeNoSenseAreDrawnToo()
    {
        NxRef<NxMaterial> material(new NxMaterial);
        material->diffuseColor.setValue(VbColor(NAN, -1, 1e30F));
        material->shininess.setValue(NAN);
        material->roughness.setValue(-INFINITY);
        material->transparency.setValue(NAN);
        nodes::MaterialSphere sphere;
        sphere.setMaterial(*material);
        const QColor middle = sphere.picture(64).pixelColor(32, 32);
        QCOMPARE(middle.alpha(), 255);
        QVERIFY(middle.blue() > middle.red());
    }

private:
    DrawingBench m_bench;
};

QTEST_MAIN(TestMaterialSphere)
#include "tst_MaterialSphere.moc"
