#include "import/PackedBytes.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>

using orvane::PackedScene;

namespace {

// Numbers that texts and comparisons like to change.
template <typename Value>
std::vector<Value> oddNumbers()
{
    using Limits = std::numeric_limits<float>;
    std::vector<Value> values = numbers<Value>(PackedScene::shortestList);
    const float oddNan = std::bit_cast<float>(std::uint32_t{0xffc12345});
    const std::vector<float> odd{-0.0F, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), oddNan,
        Limits::signaling_NaN(), Limits::denorm_min(), Limits::max(), Limits::lowest()};
    for (std::size_t index = 0; index < odd.size(); ++index) {
        // By its bytes, so that no register makes another NaN of it.
        std::memcpy(&values[index][0], &odd[index], sizeof(float));
    }
    return values;
}

} // namespace

/// Scenes packed and unpacked again.
class TestPackedScene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyListComesBackToTheBit_data()
    {
        QTest::addColumn<QByteArray>("field");
        for (const char* field :
            {"mfVec3f", "mfColor", "mfVec2f", "mfVec4f", "mfColorRGBA", "mfInt32", "mfVec3f and mfInt32"})
            QTest::newRow(field) << QByteArray(field);
    }

    void everyListComesBackToTheBit()
    {
        QFETCH(QByteArray, field);
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxFieldGallery> gallery = new NxFieldGallery;
        const NxRef<NxFieldGallery> original = new NxFieldGallery;
        scene->addChild(gallery.get());
        for (const NxRef<NxFieldGallery>& node : {gallery, original}) {
            if (field.startsWith("mfVec3f"))
                node->mfVec3f.setValues(oddNumbers<VbVec3f>());
            if (field == "mfColor")
                node->mfColor.setValues(oddNumbers<VbVec3f>());
            if (field == "mfVec2f")
                node->mfVec2f.setValues(oddNumbers<VbVec2f>());
            if (field == "mfVec4f")
                node->mfVec4f.setValues(oddNumbers<VbVec4f>());
            if (field == "mfColorRGBA")
                node->mfColorRGBA.setValues(oddNumbers<VbVec4f>());
            if (field.endsWith("mfInt32")) {
                std::vector<int> values(PackedScene::shortestList, -1);
                values[1] = std::numeric_limits<int>::min();
                values[2] = std::numeric_limits<int>::max();
                node->mfInt32.setValues(std::move(values));
            }
        }
        const std::string bytes = pack(*scene);
        for (const QByteArray& name : field.split(' ')) {
            if (name.startsWith("mf"))
                QVERIFY(bytes.find(" 0 " + name.toStdString() + "\n") != std::string::npos);
        }
        std::string failure;
        const NxRef<NxGroup> result = unpack(bytes, failure);
        QVERIFY2(result, failure.c_str());
        QCOMPARE(result->getNumChildren(), 1);
        auto* node = dynamic_cast<NxFieldGallery*>(result->getChild(0));
        QVERIFY(node != nullptr);
        const std::vector<NxField*> fields = node->getFields();
        const std::vector<NxField*> originals = original->getFields();
        for (std::size_t index = 0; index < fields.size(); ++index)
            QVERIFY2(fields[index]->isSame(*originals[index]), node->getFieldName(fields[index]).getString());
    }

    void everyImageComesBackToTheByte_data()
    {
        QTest::addColumn<VbVec2s>("size");
        QTest::addColumn<int>("components");
        for (int components = 1; components <= 4; ++components)
            QTest::addRow("%d components", components) << VbVec2s(17, 9) << components;
        QTest::newRow("a column") << VbVec2s(1, 32767) << 3;
        QTest::newRow("a row") << VbVec2s(32767, 1) << 4;
    }

    void everyImageComesBackToTheByte()
    {
        QFETCH(VbVec2s, size);
        QFETCH(int, components);
        std::vector<unsigned char> bytes(static_cast<std::size_t>(size[0] * size[1] * components));
        for (std::size_t index = 0; index < bytes.size(); ++index)
            bytes[index] = static_cast<unsigned char>(index * 7);
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxTexture> texture = new NxTexture;
        const NxRef<NxTexture> original = new NxTexture;
        scene->addChild(texture.get());
        texture->image.setValue(size, components, bytes.data());
        original->image.setValue(size, components, bytes.data());
        const std::string packed = pack(*scene);
        QVERIFY(packed.size() < bytes.size() + 200);
        QVERIFY(texture->image.isDefault());
        std::string failure;
        const NxRef<NxGroup> result = unpack(packed, failure);
        QVERIFY2(result, failure.c_str());
        const auto* node = dynamic_cast<NxTexture*>(result->getChild(0));
        QVERIFY(node != nullptr);
        QVERIFY(node->image.isSame(original->image));
    }

    void smallImagesStayInTheText()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxTexture> texture = new NxTexture;
        scene->addChild(texture.get());
        texture->image.setValue(VbVec2s(9, 7), 1, std::vector<unsigned char>(63, 'x'));
        const std::string text = NxSceneWriter::toText(scene.get());
        QVERIFY(pack(*scene).ends_with("text " + std::to_string(text.size()) + "\n" + text));
    }

    void longListsLeaveTheText()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxMesh> mesh = new NxMesh;
        scene->addChild(mesh.get());
        mesh->positions.setValues(numbers<VbVec3f>(PackedScene::shortestList));
        const std::string bytes = pack(*scene);
        QCOMPARE(mesh->positions.getNum(), 0);
        const std::string text = NxSceneWriter::toText(scene.get());
        QVERIFY(bytes.find("\ntext " + std::to_string(text.size()) + "\n" + text + "list 768 0 positions\n")
            != std::string::npos);
    }

    void shortListsStayInTheText()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxMesh> mesh = new NxMesh;
        scene->addChild(mesh.get());
        mesh->positions.setValues(numbers<VbVec3f>(PackedScene::shortestList - 1));
        const std::string text = NxSceneWriter::toText(scene.get());
        const std::string bytes = pack(*scene);
        QVERIFY(bytes.ends_with("text " + std::to_string(text.size()) + "\n" + text));
        std::string failure;
        QCOMPARE(NxSceneWriter::toText(unpack(bytes, failure).get()), text);
    }

    void otherListsStayInTheText()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxFieldGallery> gallery = new NxFieldGallery;
        scene->addChild(gallery.get());
        // Their values may not have any bits, or aren't numbers alone.
        gallery->mfEnum.insertSpace(0, PackedScene::shortestList);
        gallery->mfBool.insertSpace(0, PackedScene::shortestList);
        gallery->mfString.insertSpace(0, PackedScene::shortestList);
        gallery->mfRotation.insertSpace(0, PackedScene::shortestList);
        const std::string text = NxSceneWriter::toText(scene.get());
        QVERIFY(pack(*scene).ends_with(text));
    }

    void anIgnoredListStaysIgnored()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxMesh> mesh = new NxMesh;
        scene->addChild(mesh.get());
        mesh->positions.setValues(numbers<VbVec3f>(PackedScene::shortestList));
        mesh->positions.setIgnored(1);
        const std::string text = NxSceneWriter::toText(scene.get());
        std::string failure;
        QCOMPARE(NxSceneWriter::toText(unpack(pack(*scene), failure).get()), text);
    }

    void warningsComeWithTheScene()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        std::vector<std::string> warnings{
            "left out \"é\"", "", "two\nlines", std::string(3999, 'x') + "é", std::string(9000, 'y')};
        warnings.resize(40, "another");
        orvane::PackedParts parts;
        const PackedScene packed(*scene, warnings);
        for (const std::string_view portion : packed.portions())
            parts.take(portion);
        QVERIFY2(parts.isComplete(), parts.failure().c_str());
        QCOMPARE(parts.warnings().size(), PackedScene::mostWarnings);
        QCOMPARE(parts.warnings()[0], warnings[0]);
        QCOMPARE(parts.warnings()[1], std::string());
        QCOMPARE(parts.warnings()[2], std::string("two lines"));
        QCOMPARE(parts.warnings()[3], std::string(3999, 'x'));
        QCOMPARE(parts.warnings()[4], std::string(4000, 'y'));
    }

    void aNoteComesWithTheScene_data()
    {
        QTest::addColumn<bool>("isConverted");
        QTest::newRow("of what was kept") << false;
        QTest::newRow("of what was converted") << true;
    }

    void aNoteComesWithTheScene()
    {
        QFETCH(bool, isConverted);
        const NxRef<NxGroup> scene = new NxGroup;
        orvane::PackedParts parts;
        const PackedScene packed(*scene, {"a"}, {"turned\nround", isConverted});
        for (const std::string_view portion : packed.portions())
            parts.take(portion);
        QVERIFY2(parts.isComplete(), parts.failure().c_str());
        QCOMPARE(parts.note().text, std::string("turned round"));
        QCOMPARE(parts.note().isConverted, isConverted);
        QCOMPARE(parts.warnings(), std::vector<std::string>{"a"});
    }

    void tooManyWarningsAreRefused()
    {
        std::string warnings;
        for (int index = 0; index < 33; ++index)
            warnings += "warning a\n";
        orvane::PackedParts parts;
        parts.take("orvane-scene 2 1000\n" + warnings);
        QVERIFY(parts.isBroken());
        QCOMPARE(parts.failure(), std::string("it has more than 32 warnings"));
    }

    void anEmptySceneIsPacked()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        std::string failure;
        const NxRef<NxGroup> result = unpack(pack(*scene), failure);
        QVERIFY2(result, failure.c_str());
        QCOMPARE(result->getNumChildren(), 0);
    }

    void aNodeInSeveralPlacesKeepsItsLists()
    {
        std::string failure;
        const NxRef<NxGroup> scene
            = sceneOf("#mrd 1.0\nGroup {\n Switch {\n Group as \"g\" {\n Mesh \"m\" {}\n }\n use \"m\" }\n use \"g\"\n"
                      "Transform { Mesh \"last\" {} use \"m\" }\n}\nuse \"m\"\nMesh \"end\" {}\n",
                failure);
        QVERIFY2(scene, failure.c_str());
        // Each gets another number of positions.
        meridane::NodeTraversal nodes(*scene);
        int meshes = 0;
        while (NxNode* node = nodes.next()) {
            if (auto* mesh = dynamic_cast<NxMesh*>(node))
                mesh->positions.setValues(numbers<VbVec3f>(100 + meshes++));
        }
        QCOMPARE(meshes, 3);
        const std::string text = NxSceneWriter::toText(scene.get());
        const NxRef<NxGroup> result = unpack(pack(*scene), failure);
        QVERIFY2(result, failure.c_str());
        QCOMPARE(NxSceneWriter::toText(result.get()), text);
    }

    void nodesOfUnknownClassesAreCounted()
    {
        std::string failure;
        const NxRef<NxGroup> scene
            = sceneOf("#mrd 1.0\nStrange {\n x = 1\n Stranger \"s\" {}\n Mesh \"a\" {} use \"s\"\n}\n"
                      "Mesh \"b\" {}\n",
                failure);
        QVERIFY2(scene, failure.c_str());
        meridane::NodeTraversal nodes(*scene);
        int count = 100;
        while (NxNode* node = nodes.next()) {
            if (auto* mesh = dynamic_cast<NxMesh*>(node))
                mesh->indices.setValues(std::vector<int>(static_cast<std::size_t>(count++), 5));
        }
        const std::string text = NxSceneWriter::toText(scene.get());
        const NxRef<NxGroup> result = unpack(pack(*scene), failure);
        QVERIFY2(result, failure.c_str());
        QCOMPARE(NxSceneWriter::toText(result.get()), text);
    }

    void anySceneComesBack()
    {
        // Many nodes, so that a slice ends among them.
        const NxRef<NxGroup> scene = new NxGroup;
        for (int index = 0; index < 5000; ++index) {
            const NxRef<NxMesh> mesh = new NxMesh;
            if (index % 499 == 0)
                mesh->normals.setValues(numbers<VbVec3f>(64 + index % 7));
            if (index % 998 == 0)
                mesh->colors.setValues(numbers<VbVec4f>(64));
            scene->addChild(mesh.get());
        }
        const std::string text = NxSceneWriter::toText(scene.get());
        std::string failure;
        const NxRef<NxGroup> result = unpack(pack(*scene), failure);
        QVERIFY2(result, failure.c_str());
        QCOMPARE(NxSceneWriter::toText(result.get()), text);
    }

    void aSceneThatCanNotBeToldIsAFailure()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        NxRef<NxGroup> group = scene;
        for (int depth = 0; depth <= NxSceneReader::maxDepth; ++depth) {
            const NxRef<NxGroup> child = new NxGroup;
            group->addChild(child.get());
            group = child;
        }
        const PackedScene packed(*scene);
        QVERIFY(packed.failure().find("levels deep") != std::string::npos);
    }
};

QTEST_GUILESS_MAIN(TestPackedScene)
#include "tst_PackedScene.moc"
