#include "import/conversion/ReadModels.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <set>
#include <utility>

/// Vertices of small models are joined only if they are equal.
class TestJoiningScale : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positionsStayApart_data()
    {
        QTest::addColumn<float>("size");
        for (const float size : {1e-30F, 1e-6F, 1.5e-5F, 0.01F, 1.0F, 1000.0F})
            QTest::addRow("%g", static_cast<double>(size)) << size;
    }
    void positionsStayApart()
    {
        QFETCH(float, size);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read("model.stl", square(size));
        QVERIFY2(scene, qPrintable(models.message()));
        const NxMesh& mesh = *ReadModels::all<NxMesh>(*scene).front();
        // The corners that two triangles share are one each.
        QCOMPARE(mesh.positions.getNum(), 4);
        QCOMPARE(mesh.indices.getNum(), 6);
        std::set<std::pair<float, float>> found;
        for (const VbVec3f& position : mesh.positions.getValues())
            found.emplace(position[0], position[1]);
        const std::set<std::pair<float, float>> expected{{0, 0}, {size, 0}, {0, size}, {size, size}};
        QVERIFY(found == expected); // to the bit
    }

private:
    static QByteArray square(float size)
    {
        const QByteArray far = QByteArray::number(static_cast<double>(size), 'g', 9);
        const auto facet = [&far](const char* corners) {
            return "facet normal 0 0 1\nouter loop\n" + QByteArray(corners).replace('s', far).replace(';', '\n')
                + "endloop\nendfacet\n";
        };
        return "solid a\n" + facet("vertex 0 0 0;vertex s 0 0;vertex 0 s 0;")
            + facet("vertex s 0 0;vertex s s 0;vertex 0 s 0;") + "endsolid a\n";
    }
};

QTEST_GUILESS_MAIN(TestJoiningScale)
#include "tst_JoiningScale.moc"
