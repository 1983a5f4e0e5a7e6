#include "scene/RandomScene.h"
#include "scene/SceneText.h"

#include "meridane/base/Files.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QTest>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

NxRef<NxGroup> sceneOf(std::initializer_list<NxNode*> nodes)
{
    NxRef<NxGroup> scene(new NxGroup);
    for (NxNode* node : nodes)
        scene->addChild(node);
    return scene;
}

} // namespace

class TestNxSceneWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptySceneIsItsFirstLine()
    {
        QCOMPARE(NxSceneWriter::toText(NxRef<NxGroup>(new NxGroup).get()), std::string("#mrd 1.0\n"));
    }

    void filePathsAreWrittenAsTheMapHasThem()
    {
        const std::string text = "#mrd 1.0\n\nTexture \"wood\" {\n    ignored filePath = \"a\\\"b.png\"\n}\n";
        NxSceneReader reader(text, "test");
        QVERIFY(reader.run() == NxSceneReader::State::Done);
        const NxRef<NxGroup> scene = reader.takeScene();
        NxSceneWriter writer(scene.get());
        writer.setPathMap([](std::string_view path) { return "\"x/" + std::string(path); });
        std::string written;
        while (writer.step(written, 1ms)) { }
        QCOMPARE(written, "#mrd 1.0\n\nTexture \"wood\" {\n    ignored filePath = \"\\\"x/a\\\"b.png\"\n}\n");
        // The scene is as it was.
        QCOMPARE(NxSceneWriter::toText(scene.get()), text);
    }

    void theExamplesAreWrittenAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("robot") << QByteArray(EXAMPLES_FOLDER "/robot.mrd");
        QTest::newRow("gallery") << QByteArray(EXAMPLES_FOLDER "/gallery.mrd");
    }

    void theExamplesAreWrittenAsTheyStand()
    {
        QFETCH(QByteArray, file);
        std::string text;
        QVERIFY(!meridane::readFile(file.toStdString(), text));
        QVERIFY2(SceneText::read(text), SceneText::failure(text).text().c_str());
        QVERIFY(SceneText::rewrite(text) == text);
    }

    void theExampleOfTheManualIsAScene()
    {
        std::string manual;
        QVERIFY(!meridane::readFile(DOCS_FOLDER "/scene-format.md", manual));
        const std::size_t start = manual.find("#mrd 1.0");
        const std::string text = manual.substr(start, manual.find("```", start) - start);
        const auto scene = SceneText::read(text);
        QVERIFY2(scene, SceneText::failure(text).text().c_str());
        QCOMPARE(scene->getNumChildren(), 3);
        const auto& tile = dynamic_cast<NxGroup&>(*scene->getChild(1));
        QCOMPARE(dynamic_cast<NxGroup&>(*scene->getChild(2)).getChild(0), tile.getChild(0));
    }

    void theGalleryExampleHasAValueInEveryField()
    {
        std::string text;
        QVERIFY(!meridane::readFile(EXAMPLES_FOLDER "/gallery.mrd", text));
        const auto scene = SceneText::read(text);
        QVERIFY(scene);
        for (const NxField* field : dynamic_cast<NxFieldGallery&>(*scene->getChild(0)).getFields())
            QVERIFY2(!field->isDefault(), field->getContainer()->getFieldName(field).getString());
        for (const NxField* field : dynamic_cast<NxFieldGallery&>(*scene->getChild(1)).getFields())
            QVERIFY2(field->isDefault(), field->getContainer()->getFieldName(field).getString());
    }

    void theGalleryHasEveryFieldClassOnce()
    {
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        std::vector<NxType> classes;
        for (NxField* field : gallery->getFields()) {
            classes.push_back(field->getTypeId());
            QString name = QString::fromLatin1(gallery->getFieldName(field).getString());
            name.replace(0, 2, name.left(2).toUpper());
            QCOMPARE(name, QString::fromLatin1(field->getTypeId().getName().getString()));
        }
        for (const NxType& type : NxType::getAllDerivedFrom(NxField::getClassTypeId())) {
            if (type.getName() == VbName("Field") || type.getName() == VbName("SField")
                || type.getName() == VbName("MField"))
                continue;
            QVERIFY2(std::count(classes.begin(), classes.end(), type) == 1, type.getName().getString());
        }
    }

    void everyNodeClassSurvives()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        for (const NxType& type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
            if (!type.canCreateInstance())
                continue;
            auto* const node = static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr)));
            scene->addChild(node);
            for (NxField* field : node->getFields())
                field->setIgnored(1);
        }
        QVERIFY(scene->getNumChildren() >= 15);
        const std::string text = NxSceneWriter::toText(scene.get());
        const auto read = SceneText::read(text);
        QVERIFY2(read, SceneText::failure(text).text().c_str());
        QCOMPARE(findDifference(*scene, *read), std::string());
        QCOMPARE(NxSceneWriter::toText(read.get()), text);
    }

    void randomScenesSurviveToTheByte()
    {
        for (unsigned int seed = 0; seed < 400; ++seed) {
            const NxRef<NxGroup> scene = makeRandomScene(seed);
            const std::string text = NxSceneWriter::toText(scene.get());
            const auto read = SceneText::read(text);
            QVERIFY2(read, (SceneText::failure(text).text() + '\n' + text).c_str());
            QVERIFY2(findDifference(*scene, *read).empty(), (findDifference(*scene, *read) + '\n' + text).c_str());
            QCOMPARE(NxSceneWriter::toText(read.get()), text);
        }
    }

    void fieldsAtTheirDefaultAreNotWrittenUnlessIgnored()
    {
        auto* const material = new NxMaterial;
        const auto scene = sceneOf({material});
        QCOMPARE(NxSceneWriter::toText(scene.get()), std::string("#mrd 1.0\n\nMaterial {\n}\n"));
        material->shininess.setIgnored(1);
        material->transparency.setValue(0.25F);
        QCOMPARE(NxSceneWriter::toText(scene.get()),
            std::string("#mrd 1.0\n\nMaterial {\n    ignored shininess = 0.2\n    transparency = 0.25\n}\n"));
        material->shininess.setIgnored(0);
        material->transparency.setValue(0);
        QCOMPARE(NxSceneWriter::toText(scene.get()), std::string("#mrd 1.0\n\nMaterial {\n}\n"));
    }

    void aNegativeZeroIsNoDefault()
    {
        auto* const material = new NxMaterial;
        const auto scene = sceneOf({material});
        material->transparency.setValue(-0.F);
        QCOMPARE(NxSceneWriter::toText(scene.get()), std::string("#mrd 1.0\n\nMaterial {\n    transparency = -0\n}\n"));
    }

    void theSceneItselfIsNotWritten()
    {
        const NxRef<NxTransform> scene(new NxTransform);
        scene->setName("scene");
        scene->translation.setValue(1, 2, 3);
        scene->addUnknownField({"unknown", "1", false});
        scene->addChild(new NxMaterial);
        QCOMPARE(NxSceneWriter::toText(scene.get()), std::string("#mrd 1.0\n\nMaterial {\n}\n"));
        QCOMPARE(scene->getRefCount(), 1);
    }

    void nodesThatStandTwiceAreWrittenOnce_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("unique name") << QByteArray("\nMaterial \"m\" {\n}\n\nuse \"m\"\n");
        QTest::newRow("no name") << QByteArray("\nMaterial as \"#1\" {\n}\n\nuse \"#1\"\n");
        QTest::newRow("name of an earlier node")
            << QByteArray("\nGroup \"m\" {\n}\n\nMaterial \"m\" as \"#1\" {\n}\n\nuse \"#1\"\n");
        QTest::newRow("name of a later node")
            << QByteArray("\nMaterial \"m\" as \"#1\" {\n}\n\nuse \"#1\"\n\nGroup \"m\" {\n}\n");
        QTest::newRow("name of an enclosing node")
            << QByteArray("\nMaterial \"m\" as \"#1\" {\n}\n\nGroup \"m\" {\n    use \"#1\"\n}\n");
        QTest::newRow("two of one name") << QByteArray("\nMaterial \"m\" as \"#1\" {\n}\n\nuse \"#1\"\n\n"
                                                       "Material \"m\" as \"#2\" {\n}\n\nuse \"#2\"\n\nuse \"#1\"\n");
        QTest::newRow("names that look like labels") << QByteArray(
            "\nGroup \"#1\" {\n}\n\nMaterial as \"#2\" {\n}\n\nuse \"#2\"\n\nGroup \"#3\" {\n}\n\nuse \"#3\"\n");
        QTest::newRow("awkward name") << QByteArray("\nMaterial \"a\\\"b\\n\" {\n}\n\nuse \"a\\\"b\\n\"\n");
        QTest::newRow("group with content") << QByteArray("\nGroup \"g\" {\n    Material \"m\" {\n        shininess = "
                                                          "1\n    }\n    use \"m\"\n}\n\nuse \"g\"\n\nuse \"m\"\n");
        QTest::newRow("unknown node") << QByteArray("\nWidget as \"#1\" {\n    a = 1\n}\n\nuse \"#1\"\n");
    }

    void nodesThatStandTwiceAreWrittenOnce()
    {
        QFETCH(QByteArray, text);
        const std::string file = SceneText::file(text.toStdString());
        QVERIFY2(SceneText::read(file), SceneText::failure(file).text().c_str());
        QCOMPARE(SceneText::rewrite(file), file);
    }

    void referencesFromOutsideTheSceneDontCount()
    {
        const NxRef<NxMaterial> material(new NxMaterial);
        const NxRef<NxGroup> other = sceneOf({material.get()});
        const NxRef<NxGroup> scene = sceneOf({material.get()});
        QCOMPARE(NxSceneWriter::toText(scene.get()), std::string("#mrd 1.0\n\nMaterial {\n}\n"));
    }

    void unknownFieldsFollowTheKnownOnesToTheByte()
    {
        const std::string text
            = SceneText::file("\nMaterial {\n    shininess = 1\n    second = [ 1,\n  # comment ]\n\t2 ]\n"
                              "    ignored first = \"\\x }\"  |  y\n    Z = 0x1p+3 ,,\n}\n");
        QCOMPARE(SceneText::rewrite(text), text);
    }

    void longListsAreWrappedInsideBrackets()
    {
        auto* const mesh = new NxMesh;
        auto* const group = new NxGroup;
        group->addChild(mesh);
        std::vector<int> indices(1000);
        for (std::size_t i = 0; i < indices.size(); ++i)
            indices[i] = static_cast<int>(i * i);
        mesh->indices.setValues(indices);
        const auto scene = sceneOf({group});
        const std::string text = NxSceneWriter::toText(scene.get());
        const QStringList lines = QString::fromStdString(text).split(u'\n');
        QVERIFY(lines.size() > 60);
        QCOMPARE(lines[4],
            QStringLiteral("        indices = [0, 1, 4, 9, 16, 25, 36, 49, 64, 81, 100, 121, 144, 169, 196, 225, "
                           "256, 289, 324,"));
        QVERIFY(lines[5].startsWith(QStringLiteral("            361, 400, ")));
        for (const QString& line : lines)
            QVERIFY2(line.size() <= 110, qPrintable(line));
        QCOMPARE(SceneText::rewrite(text), text);
    }

    void textsInListsAreNotBroken()
    {
        auto* const gallery = new NxFieldGallery;
        const VbString value("a, \"b\", \\\\, [c], d ");
        gallery->mfString.setValues(std::vector<VbString>(50, value));
        gallery->sfString.setValue(VbString(std::string_view(std::string(100, ',') + " [, , \", ")));
        const auto scene = sceneOf({gallery});
        const std::string text = NxSceneWriter::toText(scene.get());
        const auto read = SceneText::read(text);
        QVERIFY(read);
        QCOMPARE(findDifference(*scene, *read), std::string());
    }

    void smallBudgetsGiveTheSameTextInManySteps()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        for (unsigned int seed = 0; seed < 20; ++seed)
            scene->addChild(makeRandomScene(seed).get());
        auto* const mesh = new NxMesh;
        mesh->positions.setValues(std::vector<VbVec3f>(100000, VbVec3f(1, 2, 3)));
        scene->addChild(mesh);
        NxSceneWriter writer(scene.get());
        std::string text;
        std::string part;
        int steps = 0;
        double progress = 0;
        while (writer.step(part, 0us)) {
            text += std::exchange(part, {});
            ++steps;
            QVERIFY(writer.progress() >= progress && writer.progress() <= 1);
            progress = writer.progress();
        }
        text += part;
        QCOMPARE(writer.progress(), 1.0);
        QVERIFY(steps > 20);
        QVERIFY(text == NxSceneWriter::toText(scene.get()));
        QVERIFY(!writer.step(part, 1s));
    }

    void whatCannotBeReadAgainIsNotWritten()
    {
        NxRef<NxGroup> deep(new NxGroup);
        for (int i = 0; i < NxSceneReader::maxDepth; ++i)
            deep = sceneOf({deep.get()});
        const std::string text = NxSceneWriter::toText(deep.get());
        QVERIFY(SceneText::read(text));
        deep = sceneOf({deep.get()});
        QCOMPARE(failureOf(deep), std::string("nodes are nested 513 levels deep, a scene file holds at most 512"));
        QVERIFY(NxSceneWriter::toText(deep.get()).empty());
        const auto named = sceneOf({new NxMaterial});
        named->getChild(0)->setName(VbString(std::string_view(std::string(65534, 'n'))));
        QCOMPARE(failureOf(named), std::string());
        QVERIFY(SceneText::read(NxSceneWriter::toText(named.get())));
        named->getChild(0)->setName(VbString(std::string_view(std::string(65534, '"'))));
        QCOMPARE(failureOf(named), std::string("the name of a node has more than 65536 bytes"));
    }

private:
    static std::string failureOf(const NxRef<NxGroup>& scene)
    {
        NxSceneWriter writer(scene.get());
        std::string text;
        while (writer.step(text, 1s)) { }
        return writer.failure();
    }
};

QTEST_APPLESS_MAIN(TestNxSceneWriter)
#include "tst_NxSceneWriter.moc"
