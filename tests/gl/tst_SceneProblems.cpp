#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/gl/gpu/detail/GLProgram.h"
#include "meridane/gl/places/detail/PlacedScene.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <functional>
#include <limits>
#include <string_view>

namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

using Damage = std::function<void(NxMesh&)>;

class TestSceneProblems : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDamagedMeshIsReportedOnce_data();
    void aDamagedMeshIsReportedOnce();
    void whatIsMendedAndBreaksAgainIsReportedAgain();
    void aMeshInManyPlacesIsReportedOnce();
    void manyDamagedMeshesDontFloodTheMessages();
    void namesInMessagesAreShortAndNoMarkup();
    void aDegenerateTransformIsReportedOnce_data();
    void aDegenerateTransformIsReportedOnce();
    void aTextureWithoutAnImageIsReportedOnce_data();
    void aTextureWithoutAnImageIsReportedOnce();
    void anImageThatIsTooLargeIsMadeSmaller();
    void tooManyLightsAreReportedOnce();
    void aMillionNodesWithoutAMeshAreNoProblem();
    void nestedGroupsAreNoProblem();
    void placesWithoutEndAreLeftOut();
    void strangeNumbersInLooksAndLightsAreNoProblem();
    void strangeViewpointsAndSizesAreNoProblem_data();
    void strangeViewpointsAndSizesAreNoProblem();
    void errorsOfOthersAreReportedOnce();
    void brokenShadersAreReported();
    void aContextWithoutAFunctionIsRefused();
    void anOldContextIsRefused();

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

void TestSceneProblems::aDamagedMeshIsReportedOnce_data()
{
    QTest::addColumn<Damage>("damage");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QColor>("lower"); // the triangle of the first three indices
    QTest::addColumn<QColor>("upper");
    const auto row
        = [](const char* name, const Damage& damage, const char* message, const QColor& lower, const QColor& upper) {
              QTest::newRow(name) << damage << QString::fromUtf8(message) << lower << upper;
          };
    row(
        "no positions", [](NxMesh& mesh) { mesh.positions.deleteValues(0, -1); }, "it has no positions to draw", black,
        black);
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
        "the number of its indices, 7, is no multiple of 3; the last ones aren't drawn", red, red);
    row(
        "two indices", [](NxMesh& mesh) { mesh.indices.deleteValues(2, -1); },
        "the number of its indices, 2, is no multiple of 3; the last ones aren't drawn", black, black);
    row(
        "positions left over", [](NxMesh& mesh) { mesh.indices.deleteValues(0, -1); },
        "the number of its positions, 4, is no multiple of 3; the last ones aren't drawn", red, black);
    row(
        "a position that is no number", [](NxMesh& mesh) { mesh.positions.set1Value(3, VbVec3f(0, nan, 0)); },
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
        "normals that are none", [](NxMesh& mesh) { mesh.normals.setValues(std::vector<VbVec3f>(4)); }, "", red, red);
}

void TestSceneProblems::aDamagedMeshIsReportedOnce()
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

void TestSceneProblems::whatIsMendedAndBreaksAgainIsReportedAgain()
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

void TestSceneProblems::aMeshInManyPlacesIsReportedOnce()
{
    const auto mesh = make<NxMesh>();
    const auto scene = groupOf({groupOf({mesh.get(), mesh.get()}).get(), mesh.get()});
    QCOMPARE(messagesOf(*scene), QStringList{QStringLiteral("Mesh: it has no positions to draw")});
}

void TestSceneProblems::manyDamagedMeshesDontFloodTheMessages()
{
    const auto scene = make<NxGroup>();
    for (int i = 0; i < 1000; ++i)
        scene->addChild(new NxMesh);
    const QStringList messages = messagesOf(*scene);
    QCOMPARE(messages.size(), meridane::Problems::mostReports + 1);
    QCOMPARE(messages.last(),
        QStringLiteral("Mesh: it has no positions to draw; more nodes of the same problem aren't reported"));
}

void TestSceneProblems::namesInMessagesAreShortAndNoMarkup()
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

void TestSceneProblems::aDegenerateTransformIsReportedOnce_data()
{
    QTest::addColumn<VbMatrix>("matrix");
    QTest::newRow("nothing") << VbMatrix(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    QTest::newRow("flat") << VbMatrix(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
    QTest::newRow("a point") << VbMatrix(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
    QTest::newRow("no number") << VbMatrix(nan, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
    QTest::newRow("infinite") << VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, inf, 0, 0, 1);
    QTest::newRow("flattened by its last column") << VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0);
}

void TestSceneProblems::aDegenerateTransformIsReportedOnce()
{
    QFETCH(VbMatrix, matrix);
    const auto transform = make<NxMatrixTransform>();
    transform->matrix.setValue(matrix);
    transform->addChild(ball(0.2F).get());
    transform->addChild(new NxPointLight);
    transform->addChild(rectangle(-1, -1, 1, 1).get());
    const auto scene = groupOf({transform.get(), plain(0, 1, 0).get(), rectangle(0.5F, -1, 1, 1).get()});
    QCOMPARE(messagesOf(*scene),
        QStringList{
            QStringLiteral("MatrixTransform: its matrix can't be inverted; what it places is flat or can't be drawn")});
    COMPARE_PIXEL(m_picture, 0.75, 0.5, green);
    transform->matrix.setValue(VbMatrix());
    (void)m_bench.draw();
    QCOMPARE(m_bench.takeMessages(), QStringList());
}

void TestSceneProblems::aTextureWithoutAnImageIsReportedOnce_data()
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

void TestSceneProblems::aTextureWithoutAnImageIsReportedOnce()
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

void TestSceneProblems::anImageThatIsTooLargeIsMadeSmaller()
{
    constexpr int width = 32768;
    m_bench.drawing().setImageLoader([](const std::string&, NxImage& image, std::string&) {
        image = {width, 2, 1, std::vector<unsigned char>(std::size_t{width} * 2, 255)};
        std::fill_n(image.bytes.begin(), width / 2, 0); // black at the lower left
        return NxImageState::Loaded;
    });
    int most = 0;
    m_bench.gl().GetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
    const auto texture = make<NxTexture>();
    texture->filePath.setValue(VbString("long.png"));
    const auto nearestPixels = make<NxComplexity>();
    nearestPixels->textureQuality.setValue(0.1F);
    const auto scene
        = groupOf({nearestPixels.get(), texture.get(), plain(0, 0, 1).get(), rectangle(-1, -1, 1, 1).get()});
    const QStringList messages = messagesOf(*scene);
    COMPARE_PIXEL(m_picture, -0.5, -0.6, black);
    COMPARE_PIXEL(m_picture, 0.5, -0.6, blue);
    COMPARE_PIXEL(m_picture, -0.5, 0.6, blue);
    if (most < width) {
        QCOMPARE(messages,
            QStringList(
                QStringLiteral("Texture: its image of 32768 by 2 pixels is drawn smaller; the card takes %1 a side")
                    .arg(most)));
        QCOMPARE(m_bench.counts().textureBytes, static_cast<std::uint64_t>(2 * most));
    } else {
        QCOMPARE(messages, QStringList());
    }
    m_bench.drawing().setScene(nullptr);
    m_bench.drawing().setImageLoader({});
}

void TestSceneProblems::tooManyLightsAreReportedOnce()
{
    const auto scene = make<NxGroup>();
    for (int i = 0; i < 33; ++i) {
        const auto light = make<NxPointLight>();
        light->intensity.setValue(1.0F / 32);
        scene->addChild(light.get());
    }
    scene->addChild(plain(1, 1, 1).get());
    scene->addChild(rectangle(-0.05F, -0.05F, 0.05F, 0.05F).get());
    QCOMPARE(messagesOf(*scene),
        QStringList{QStringLiteral("PointLight: more than 32 lights shine on what follows; this one is left out")});
    COMPARE_PIXEL(m_picture, 0, 0, white);
}

void TestSceneProblems::aMillionNodesWithoutAMeshAreNoProblem()
{
    const auto scene = make<NxGroup>();
    for (int i = 0; i < 1000; ++i) {
        const auto group = make<NxGroup>();
        for (int j = 0; j < 1000; ++j)
            group->addChild(j % 2 == 0 ? static_cast<NxNode*>(new NxGroup) : new NxMaterial);
        scene->addChild(group.get());
    }
    QCOMPARE(messagesOf(*scene), QStringList());
    QVERIFY(m_bench.drawing().getBounds().isEmpty());
    COMPARE_PIXEL(m_picture, 0, 0, black);
    m_bench.drawing().setScene(nullptr);
}

void TestSceneProblems::nestedGroupsAreNoProblem()
{
    NxRef<NxGroup> scene = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
    const NxRef<NxGroup> innermost = scene;
    for (int depth = 0; depth < 100'000; ++depth)
        scene = groupOf({scene.get()});
    QCOMPARE(messagesOf(*scene), QStringList());
    COMPARE_PIXEL(m_picture, 0, 0, red);
    innermost->insertChild(plain(0, 1, 0).get(), 1);
    COMPARE_PIXEL(m_bench.draw(), 0, 0, green);
    m_bench.drawing().setScene(nullptr);
}

void TestSceneProblems::placesWithoutEndAreLeftOut()
{
    // Each group holds the one below twice: 2 to the 40 places.
    NxRef<NxGroup> scene = groupOf({make<NxMesh>().get()});
    for (int depth = 0; depth < 40; ++depth)
        scene = groupOf({scene.get(), scene.get()});
    const QStringList messages = messagesOf(*scene);
    QCOMPARE(messages.size(), 2);
    QVERIFY(messages.contains(
        QStringLiteral("The scene has more than 4000000 places of groups and meshes; the others aren't drawn")));
    m_bench.drawing().setScene(nullptr);
}

void TestSceneProblems::strangeNumbersInLooksAndLightsAreNoProblem()
{
    const auto material = plain(nan, 5, -1);
    material->shininess.setValue(nan);
    material->specularColor.setValue(VbColor(inf, -inf, nan));
    material->transparency.setValue(nan);
    const auto light = make<NxPointLight>();
    light->location.setValue(VbVec3f(nan, inf, 0));
    light->attenuation.setValue(VbVec3f(-1, nan, 0));
    light->intensity.setValue(inf);
    light->color.setValue(VbColor(nan, nan, nan));
    const auto other = make<NxTransform>();
    other->rotation.setValue(VbRotation(VbVec3f(0, 0, 0), 1));
    other->addChild(rectangle(-1, -1, 0, 1).get());
    const auto scene = groupOf({material.get(), rectangle(0, -1, 1, 1).get(), light.get(), other.get()});
    QCOMPARE(messagesOf(*scene), QStringList());
    const QColor lit = pixelAt(m_picture, 0.5, 0);
    QVERIFY2(lit.green() == 255 && lit.blue() == 0, text(lit).constData());
    COMPARE_PIXEL(m_picture, -0.5, 0, black);
}

void TestSceneProblems::strangeViewpointsAndSizesAreNoProblem_data()
{
    QTest::addColumn<VbVec3f>("position");
    QTest::addColumn<float>("distance");
    QTest::addColumn<float>("angle");
    QTest::newRow("inside") << VbVec3f() << 1.0F << 0.8F;
    QTest::newRow("turned away") << VbVec3f(0, 0, -5) << 1.0F << 0.8F;
    QTest::newRow("far away") << VbVec3f(0, 0, 1e30F) << 1e30F << 0.8F;
    QTest::newRow("nowhere") << VbVec3f(nan, nan, nan) << nan << nan;
    QTest::newRow("no angle") << VbVec3f(0, 0, 5) << 5.0F << 0.0F;
    QTest::newRow("all angles") << VbVec3f(0, 0, 5) << -5.0F << 7.0F;
}

void TestSceneProblems::strangeViewpointsAndSizesAreNoProblem()
{
    QFETCH(VbVec3f, position);
    QFETCH(float, distance);
    QFETCH(float, angle);
    const auto scene = groupOf({ball(0.5F).get(), plain(1, 0, 0, 0.5F).get(), rectangle(-1, -1, 1, 1).get()});
    m_bench.drawing().setScene(scene.get());
    m_bench.drawing().setSelectedNode(scene.get());
    m_bench.restyle([](NxDrawingStyle& style) { style.grid = style.axes = style.boundingBoxes = true; });
    NxViewpoint viewpoint;
    viewpoint.position = position;
    viewpoint.focalDistance = distance;
    viewpoint.heightAngle = angle;
    (void)m_bench.draw(viewpoint);
    viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
    (void)m_bench.draw(viewpoint, 1, 1);
    m_bench.drawing().draw(viewpoint, 0, 10, 1);
    m_bench.drawing().draw(viewpoint, -1, -1, nan);
    m_bench.restyle([](NxDrawingStyle& style) { style.grid = style.axes = style.boundingBoxes = false; });
    m_bench.drawing().setScene(nullptr);
    QCOMPARE(m_bench.takeMessages(), QStringList());
}

void TestSceneProblems::errorsOfOthersAreReportedOnce()
{
    m_bench.drawing().setScene(nullptr);
    for (int i = 0; i < 3; ++i) {
        m_bench.gl().Enable(GL_INVALID_ENUM);
        (void)m_bench.draw();
    }
    QCOMPARE(
        m_bench.takeMessages(), QStringList{QStringLiteral("Drawing the scene: OpenGL error 0x0500, invalid enum")});
}

void TestSceneProblems::brokenShadersAreReported()
{
    const meridane::GLProgram uncompiled(m_bench.gl(), "a test", "void main() {}", "void main() { nonsense; }");
    QVERIFY(!uncompiled.isUsable());
    QStringList messages = m_bench.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages[0].startsWith(QStringLiteral("Compiling the shaders for a test failed: "))
            && messages[0].contains(QStringLiteral("nonsense")),
        messages[0].toUtf8().constData());
    const meridane::GLProgram unlinked(m_bench.gl(), "a test", "void missing(); void main() { missing(); }",
        "out vec4 color; void main() { color = vec4(1.0); }");
    QVERIFY(!unlinked.isUsable());
    messages = m_bench.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages[0].startsWith(QStringLiteral("Linking the shaders for a test failed: ")),
        messages[0].toUtf8().constData());
}

void TestSceneProblems::aContextWithoutAFunctionIsRefused()
{
    NxGLFunctions functions;
    QVERIFY(!functions.getError().empty());
    QVERIFY(!functions.load([](const char* name) -> void* {
        return std::string_view(name) == "glDrawArrays" ? nullptr : NxOffscreenContext::getProcAddress(name);
    }));
    QCOMPARE(functions.getError(), std::string("the OpenGL function glDrawArrays is missing"));
}

void TestSceneProblems::anOldContextIsRefused()
{
    NxGLFunctions functions;
    QVERIFY(!functions.load([](const char* name) -> void* {
        if (std::string_view(name) != "glGetIntegerv")
            return NxOffscreenContext::getProcAddress(name);
        const PFNGLGETINTEGERVPROC version
            = [](GLenum what, GLint* value) { *value = what == GL_MAJOR_VERSION ? 3 : 2; };
        return reinterpret_cast<void*>(version);
    }));
    QVERIFY2(QByteArray::fromStdString(functions.getError()).startsWith("OpenGL 3.3 is needed, this is "),
        functions.getError().c_str());
    QVERIFY(functions.load(&NxOffscreenContext::getProcAddress));
    QCOMPARE(functions.getError(), std::string());
}

} // namespace

QTEST_APPLESS_MAIN(TestSceneProblems)
#include "tst_SceneProblems.moc"
