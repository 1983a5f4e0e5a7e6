#include "import/Collada.h"
#include "import/Fbx.h"
#include "import/conversion/ReadModels.h"
#include "import/conversion/WorldMeshes.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

/// The unit and the up axis that a file states. Each model is a triangle with corners at 0, x and y.
class TestSpaceConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFileDecides_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("space"); // that is asked for; empty for the default
        QTest::addColumn<QList<float>>("corner"); // where the second and the third one are
        QTest::addColumn<QList<float>>("otherCorner");
        QTest::addColumn<QString>("note");
        const QByteArray zUp = fbx::space("2", "1", "-1", "0", "2.54");
        const QByteArray metres = fbx::space("1", "2", "1", "0", "100");
        const QByteArray centimetres = fbx::space("1", "2", "1", "0", "1");
        const auto row = [](const char* name, const QByteArray& settings, const char* space, const QList<float>& corner,
                             const QList<float>& otherCorner, const char* note) {
            QTest::newRow(name) << settings << QByteArray(space) << corner << otherCorner << QString::fromUtf8(note);
        };
        row("as scenes are", metres, "", {1, 0, 0}, {0, 1, 0}, "");
        row("centimetres", centimetres, "", {0.01F, 0, 0}, {0, 0.01F, 0},
            "The file is in units of 1 cm with y upwards; it was scaled to metres.");
        row("centimetres, kept", centimetres, "keep", {1, 0, 0}, {0, 1, 0},
            "The file is in units of 1 cm with y upwards; that was kept.");
        row("centimetres, turned only", centimetres, "axes", {1, 0, 0}, {0, 1, 0},
            "The file is in units of 1 cm with y upwards; that was kept.");
        row("z upwards in inches", zUp, "", {0.0254F, 0, 0}, {0, 0, -0.0254F},
            "The file is in units of 2.54 cm with z upwards; it was turned and scaled to metres, y upwards.");
        row("z upwards in inches, turned only", zUp, "axes", {1, 0, 0}, {0, 0, -1},
            "The file is in units of 2.54 cm with z upwards; it was turned, y upwards.");
        row("z upwards in inches, kept", zUp, "keep", {1, 0, 0}, {0, 1, 0},
            "The file is in units of 2.54 cm with z upwards; that was kept.");
        row("x upwards in metres", fbx::space("0", "2", "1", "1", "100"), "", {0, 1, 0}, {1, 0, 0},
            "The file is in metres with x upwards; it was turned, y upwards.");
        row("two axes the same", fbx::space("1", "1", "1", "0", "100"), "", {1, 0, 0}, {0, 1, 0}, "");
    }

    void theFileDecides()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, space);
        QFETCH(QList<float>, corner);
        QFETCH(QList<float>, otherCorner);
        QFETCH(QString, note);
        ReadModels models;
        const QStringList arguments{QStringLiteral("--space"), QString::fromUtf8(space)};
        const NxRef<NxGroup> scene = models.read(
            "model.fbx", fbx::model({{"part", {}}}, settings), space.isEmpty() ? QStringList() : arguments);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.note(), note);
        const std::vector<aiVector3D> corners = placedCorners(*scene);
        QCOMPARE(corners.size(), std::size_t(3));
        QVERIFY(corners[1].Equal(aiVector3D(corner[0], corner[1], corner[2]), 1e-6F));
        QVERIFY(corners[2].Equal(aiVector3D(otherCorner[0], otherCorner[1], otherCorner[2]), 1e-6F));
        // What was done can be undone: it is a node of its own.
        const bool isChanged = note.contains(QStringLiteral("it was"));
        QCOMPARE(ReadModels::all<NxTransform>(*scene).size(), std::size_t(isChanged ? 2 : 1));
    }

    void colladaIsConvertedByItsReader()
    {
        ReadModels models;
        QByteArray model = collada::model({"<diffuse><color>1 0 0 1</color></diffuse>"});
        model.replace("<up_axis>Y_UP</up_axis>", "<unit meter='0.01' name='cm'/><up_axis>Z_UP</up_axis>");
        const NxRef<NxGroup> scene = models.read("model.dae", model);
        QVERIFY2(scene, qPrintable(models.message()));
        QCOMPARE(models.note(), QString());
        QVERIFY(placedCorners(*scene)[2].Equal(aiVector3D(0, 0, -0.01F), 1e-6F));
    }
};

QTEST_GUILESS_MAIN(TestSpaceConversion)
#include "tst_SpaceConversion.moc"
