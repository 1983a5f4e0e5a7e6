#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/places/detail/Problems.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <functional>
#include <limits>

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

using Damage = std::function<void(NxMesh&)>;

} // namespace

/// What can't be drawn is left out and reported once.
class TestSceneProblems : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDamagedMeshIsReportedOnce_data()
    {
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QColor>("lower"); // the triangle of the first three indices
        QTest::addColumn<QColor>("upper");
        const auto row = [](const char* name, const Damage& damage, const char* message, const QColor& lower,
                             const QColor& upper) {
            QTest::newRow(name) << damage << QString::fromUtf8(message) << lower << upper;
        };
        row(
            "no positions", [](NxMesh& mesh) { mesh.positions.deleteValues(0, -1); }, "it has no positions to draw",
            black, black);
        row(
            "an index beyond the last", [](NxMesh& mesh) { mesh.indices.set1Value(4, 4); },
            "1 of 6 indices are out of range, from 0 to 3; what they belong to isn't drawn", red, black);
        row(
            "negative indices",
            [](NxMesh& mesh) {
                mesh.indices.set1Value(0, -1);
                mesh.indices.set1Value(1, std::numeric_limits<int>::min());
            },
            "2 of 6 indices are out of range, from 0 to 3; what they belong to isn't drawn", black, red);
        row(
            "an index left over",
            [](NxMesh& mesh) {
                mesh.indices.setValues({0, 1, 2, 0, 2, 3, 1});
            },
            "the number of its indices, 7, isn't a multiple of 3; the last ones aren't drawn", red, red);
        row(
            "two indices", [](NxMesh& mesh) { mesh.indices.deleteValues(2, -1); },
            "the number of its indices, 2, isn't a multiple of 3; the last ones aren't drawn", black, black);
        row(
            "positions left over", [](NxMesh& mesh) { mesh.indices.deleteValues(0, -1); },
            "the number of its positions, 4, isn't a multiple of 3; the last ones aren't drawn", red, black);
        row(
            "a position that is no number",
            [](NxMesh& mesh) { mesh.positions.set1Value(3, VbVec3f(0, notANumber, 0)); },
            "1 of 4 positions are no finite numbers; what they belong to isn't drawn", red, black);
        row(
            "an infinite position", [](NxMesh& mesh) { mesh.positions.set1Value(1, VbVec3f(inf, 0, 0)); },
            "1 of 4 positions are no finite numbers; what they belong to isn't drawn", black, red);
        row(
            "normals for some", [](NxMesh& mesh) { mesh.normals.deleteValues(0, 1); },
            "3 normals for 4 positions; drawn as if it had none", red, red);
        row(
            "colours for some", [](NxMesh& mesh) { mesh.colors.setValues(std::vector<VbVec4f>(2)); },
            "2 colours for 4 positions; drawn as if it had none", red, red);
        row(
            "texture coordinates for some", [](NxMesh& mesh) { mesh.textureCoordinates.deleteValues(0, 1); },
            "3 texture coordinates for 4 positions; drawn as if it had none", red, red);
        row(
            "a primitive that doesn't exist", [](NxMesh& mesh) { mesh.primitive.setValue(99); }, "", red, red);
        row(
            "normals that are none", [](NxMesh& mesh) { mesh.normals.setValues(std::vector<VbVec3f>(4)); }, "", red,
            red);
    }

    void aDamagedMeshIsReportedOnce()
    {
        QFETCH(Damage, damage);
        QFETCH(QString, message);
        QFETCH(QColor, lower);
        QFETCH(QColor, upper);
        const QStringList expected
            = message.isEmpty() ? QStringList() : QStringList(QStringLiteral("Mesh 'part': ") + message);
        const auto mesh = rectangle(-1, -1, 1, 1);
        mesh->setName(VbString("part"));
        const auto scene = groupOf({plain(1, 0, 0).get(), mesh.get()});
        damage(*mesh);
        QCOMPARE(messagesOf(*scene), expected);
        COMPARE_PIXEL(m_picture, 0.5, -0.5, lower);
        COMPARE_PIXEL(m_picture, -0.5, 0.5, upper);

        // The same for a mesh that is damaged while it is drawn.
        const auto sound = rectangle(-1, -1, 1, 1);
        sound->setName(VbString("part"));
        const auto other = groupOf({plain(1, 0, 0).get(), sound.get()});
        QCOMPARE(messagesOf(*other), QStringList());
        damage(*sound);
        m_picture = m_bench.draw();
        QCOMPARE(m_bench.takeMessages(), expected);
        COMPARE_PIXEL(m_picture, 0.5, -0.5, lower);
        COMPARE_PIXEL(m_picture, -0.5, 0.5, upper);
        m_bench.drawing().setScene(nullptr);
    }

    void whatIsMendedAndBreaksAgainIsReportedAgain()
    {
        const auto mesh = rectangle(-1, -1, 1, 1);
        mesh->indices.set1Value(0, 9);
        QCOMPARE(messagesOf(*mesh).size(), 1);
        mesh->indices.set1Value(0, 8);
        (void)m_bench.draw();
        QCOMPARE(m_bench.takeMessages().size(), 0);
        mesh->indices.set1Value(0, 0);
        (void)m_bench.draw();
        QCOMPARE(m_bench.takeMessages().size(), 0);
        mesh->indices.set1Value(0, 9);
        (void)m_bench.draw();
        QCOMPARE(m_bench.takeMessages().size(), 1);
        m_bench.drawing().setScene(nullptr);
    }

    void aMeshInManyPlacesIsReportedOnce()
    {
        const auto mesh = make<NxMesh>();
        const auto scene = groupOf({groupOf({mesh.get(), mesh.get()}).get(), mesh.get()});
        QCOMPARE(messagesOf(*scene), QStringList{QStringLiteral("Mesh: it has no positions to draw")});
    }

    void manyDamagedMeshesDontFloodTheMessages()
    {
        const auto scene = make<NxGroup>();
        for (int i = 0; i < 1000; ++i)
            scene->addChild(new NxMesh);
        const QStringList messages = messagesOf(*scene);
        QCOMPARE(messages.size(), meridane::Problems::maxReports + 1);
        QCOMPARE(messages.last(),
            QStringLiteral("Mesh: it has no positions to draw; more nodes of the same problem aren't reported"));
    }

    void namesInMessagesAreShortAndNoMarkup()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->setName(VbString(QByteArray("<table>").repeated(5000).toStdString()));
        scene->addChild(mesh.get());
        const QStringList messages = messagesOf(*scene);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.front().size() < 200, qPrintable(messages.front()));
        QVERIFY2(messages.front().contains(QStringLiteral("Mesh '<\u2060table>")), qPrintable(messages.front()));
    }

    void aDegenerateTransformIsReportedOnce_data()
    {
        QTest::addColumn<VbMatrix>("matrix");
        QTest::newRow("nothing") << VbMatrix(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
        QTest::newRow("flat") << VbMatrix(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        QTest::newRow("a point") << VbMatrix(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
        QTest::newRow("no number") << VbMatrix(notANumber, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
        QTest::newRow("infinite") << VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, inf, 0, 0, 1);
        QTest::newRow("flattened by its last column") << VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0);
    }

    void aDegenerateTransformIsReportedOnce()
    {
        QFETCH(VbMatrix, matrix);
        const auto transform = make<NxMatrixTransform>();
        transform->matrix.setValue(matrix);
        transform->addChild(ball(0.2F).get());
        transform->addChild(new NxPointLight);
        transform->addChild(rectangle(-1, -1, 1, 1).get());
        const auto scene = groupOf({transform.get(), plain(0, 1, 0).get(), rectangle(0.5F, -1, 1, 1).get()});
        QCOMPARE(messagesOf(*scene),
            QStringList{QStringLiteral(
                "MatrixTransform: its matrix can't be inverted; what it places is flat or can't be drawn")});
        COMPARE_PIXEL(m_picture, 0.75, 0.5, green);
        transform->matrix.setValue(VbMatrix());
        (void)m_bench.draw();
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void aTextureWithoutAnImageIsReportedOnce_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isLoaded");
        QTest::addColumn<QList<int>>("image"); // width, height, components and bytes
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << QString() << false << QList<int>{0, 0, 0, 0}
                                 << QStringLiteral(
                                        "it has neither an image nor an image file; surfaces are drawn without it");
        QTest::newRow("a file that isn't there") << QStringLiteral("a.png") << false << QList<int>{0, 0, 0, 0}
                                                 << QStringLiteral("its image file 'a.png' can't be loaded");
        QTest::newRow("too few bytes")
            << QStringLiteral("a.png") << true << QList<int>{2, 2, 3, 11}
            << QStringLiteral("its image of 2 by 2 pixels with 3 components comes with 11 bytes; it isn't drawn");
        QTest::newRow("too many components")
            << QStringLiteral("a.png") << true << QList<int>{1, 1, 5, 5}
            << QStringLiteral("its image of 1 by 1 pixels with 5 components comes with 5 bytes; it isn't drawn");
        QTest::newRow("a negative size")
            << QStringLiteral("a.png") << true << QList<int>{-1, -1, 1, 1}
            << QStringLiteral("its image of -1 by -1 pixels with 1 components comes with 1 bytes; it isn't drawn");
    }

    void aTextureWithoutAnImageIsReportedOnce()
    {
        QFETCH(QString, path);
        QFETCH(bool, isLoaded);
        QFETCH(QList<int>, image);
        QFETCH(QString, message);
        m_bench.drawing().setImageLoader([&](const std::string&, NxImage& loaded, std::string&) {
            loaded = {image[0], image[1], image[2], std::vector<unsigned char>(static_cast<std::size_t>(image[3]))};
            return isLoaded ? NxImageState::Loaded : NxImageState::Failed;
        });
        const auto texture = make<NxTexture>();
        texture->filePath.setValue(VbString(path.toStdString()));
        const auto scene = groupOf({texture.get(), plain(0, 0, 1).get(), rectangle(-1, -1, 1, 1).get()});
        QCOMPARE(messagesOf(*scene), QStringList(QStringLiteral("Texture: ") + message));
        COMPARE_PIXEL(m_picture, 0, 0, blue);
        m_bench.drawing().setScene(nullptr);
        m_bench.drawing().setImageLoader({});
    }

private:
    /// The messages of two pictures of a scene.
    QStringList messagesOf(NxNode& scene)
    {
        m_bench.drawing().setScene(&scene);
        m_picture = m_bench.draw();
        (void)m_bench.draw();
        return m_bench.takeMessages();
    }

    DrawingBench m_bench;
    QImage m_picture;
};

QTEST_APPLESS_MAIN(TestSceneProblems)
#include "tst_SceneProblems.moc"
