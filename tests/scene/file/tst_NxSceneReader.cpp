#include "scene/SceneText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

/// A node class that the toolkit doesn't have.
class Rivet : public NxNode {
    NX_NODE(Rivet)

public:
    NxSFFloat radius{this, "radius", 0.5F};
    NxMFVec3f holes{this, "holes"};

protected:
    ~Rivet() override = default;
};

NX_NODE_SOURCE(Rivet, NxNode, "Rivet")

NxNode* onlyNode(const NxRef<NxGroup>& scene)
{
    return scene && scene->getNumChildren() == 1 ? scene->getChild(0) : nullptr;
}

template <typename Node>
Node* onlyNodeAs(const NxRef<NxGroup>& scene)
{
    return dynamic_cast<Node*>(onlyNode(scene));
}

} // namespace

class TestNxSceneReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsClassNameFieldsAndChildren()
    {
        const auto scene = SceneText::read(SceneText::file("Transform \"arm\" {\n"
                                                           "    translation = 1 2.5 -3\n"
                                                           "    ignored rotation = 0 1 0 0.5\n"
                                                           "    Material { shininess = 1 }\n"
                                                           "}\n"));
        auto* const arm = onlyNodeAs<NxTransform>(scene);
        QVERIFY(arm != nullptr);
        QCOMPARE(arm->getName().toUtf8(), "arm");
        QVERIFY(arm->translation.getValue() == VbVec3f(1, 2.5F, -3));
        QVERIFY(!arm->translation.isIgnored());
        QVERIFY(arm->rotation.isIgnored());
        QCOMPARE(arm->rotation.getValue().getAngle(), 0.5F);
        QCOMPARE(arm->getNumChildren(), 1);
        QCOMPARE(dynamic_cast<NxMaterial&>(*arm->getChild(0)).shininess.getValue(), 1.F);
    }

    void readsManyLayoutsAsTheSameScene_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("one line") << QByteArray(
            "#mrd 1.0\nGroup \"a\" { Material { shininess = 1; transparency = 1 } }");
        QTest::newRow("separators") << QByteArray(
            "#mrd 1.0\n;;Group \"a\" {;Material{shininess=1;transparency=1;};};;");
        QTest::newRow("one token a line")
            << QByteArray("#mrd 1.0\nGroup\n\"a\"\n{\nMaterial\n{\nshininess\n= 1\ntransparency = 1\n}\n}\n");
        QTest::newRow("comments") << QByteArray(
            "#mrd 1.0 \n# one {\nGroup#two\n\"a\"#three }\n{Material{shininess = 1# four\n"
            "# five\ntransparency = 1 # six ; }\n}#\n}# end");
        QTest::newRow("tabs and carriage returns") << QByteArray(
            "#mrd 1.0\r\n\tGroup \"a\" {\r\n\tMaterial {\r\n\tshininess\t=\t1\r\n\ttransparency = 1\r\n}\r\n}\r\n");
        QTest::newRow("byte order mark") << QByteArray(
            "\xEF\xBB\xBF#mrd 1.0\nGroup \"a\" { Material { shininess = 1; transparency = 1 } }");
        QTest::newRow("unneeded label") << QByteArray(
            "#mrd 1.0\nGroup \"a\" as \"b\" { Material as \"c\" { shininess = 1; transparency = 1 } }");
        QTest::newRow("other order") << QByteArray(
            "#mrd 1.0\nGroup \"a\" { Material { transparency = 1; shininess = 1 } }");
    }

    void readsManyLayoutsAsTheSameScene()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(SceneText::rewrite(text.toStdString()),
            std::string("#mrd 1.0\n\nGroup \"a\" {\n    Material {\n        shininess = 1\n        transparency = 1\n  "
                        "  }\n}\n"));
    }

    void anEmptySceneIsAScene()
    {
        for (const char* text : {"#mrd 1.0", "#mrd 1.0\n", "#mrd 1.0\r\n\n# nothing"}) {
            const auto scene = SceneText::read(text);
            QVERIFY2(scene, text);
            QCOMPARE(scene->getNumChildren(), 0);
            QVERIFY(scene->getName().isEmpty());
        }
    }

    void wordsOfTheGrammarCanBeFieldNames()
    {
        const auto scene
            = SceneText::read(SceneText::file("Group { use = 1\nas = 2\nignored = 3\nignored ignored_ = 4 }"));
        QVERIFY(scene);
        const auto& fields = scene->getChild(0)->getUnknownFields();
        QCOMPARE(fields.size(), std::size_t{4});
        QCOMPARE(fields[0].name, std::string("use"));
        QCOMPARE(fields[2].name, std::string("ignored"));
        QVERIFY(!fields[2].ignored);
        QVERIFY(fields[3].ignored);
    }

    void readsNodeClassesOfAnApplication()
    {
        const auto scene = SceneText::read(SceneText::file("Rivet { radius = 2; holes = [1 2 3, 4 5 6] }"));
        auto* const rivet = onlyNodeAs<Rivet>(scene);
        QVERIFY(rivet != nullptr);
        QCOMPARE(rivet->radius.getValue(), 2.F);
        QCOMPARE(rivet->holes.getNum(), 2);
    }

    void aClassThatIsTakenOutOfUseIsUnknown()
    {
        const NxType type
            = NxType::registerClass("Washer", NxNode::getClassTypeId(), &meridane::createNode<NxMaterial>);
        QVERIFY(onlyNodeAs<NxMaterial>(SceneText::read(SceneText::file("Washer { }"))) != nullptr);
        NxType::unregisterClass(type);
        QVERIFY(onlyNodeAs<NxUnknownNode>(SceneText::read(SceneText::file("Washer { }"))) != nullptr);
    }

    void keepsUnknownClassesAndFields()
    {
        const auto scene
            = SceneText::read(SceneText::file("Widget \"w\" { size = 1 2 # comment\n"
                                              " ignored list = [1, \"]\", # ] no end\n  [2]] ; Group { } }"));
        auto* const widget = onlyNodeAs<NxUnknownNode>(scene);
        QVERIFY(widget != nullptr);
        QCOMPARE(widget->getClassName(), "Widget");
        QCOMPARE(widget->getNumChildren(), 1);
        const auto& fields = widget->getUnknownFields();
        QCOMPARE(fields.size(), std::size_t{2});
        QCOMPARE(fields[0].text, std::string("1 2"));
        QVERIFY(!fields[0].ignored);
        QCOMPARE(fields[1].text, std::string("[1, \"]\", # ] no end\n  [2]]"));
        QVERIFY(fields[1].ignored);
    }

    void abstractClassesAndOtherTypesAreUnknownNodes()
    {
        for (const char* name : {"Light", "Camera", "Node", "SFFloat", "FieldContainer", "UnknownNode"}) {
            const auto scene = SceneText::read(SceneText::file(std::string(name) + " { on = true }"));
            auto* const node = onlyNodeAs<NxUnknownNode>(scene);
            QVERIFY2(node != nullptr, name);
            QCOMPARE(node->getClassName(), name);
            QCOMPARE(node->getUnknownFields().size(), std::size_t{1});
        }
    }

    void useStandsForTheLastNodeOfThatNameOrLabel()
    {
        const auto scene = SceneText::read(SceneText::file("Material \"a\" { }\nMaterial \"a\" { }\nuse \"a\"\n"
                                                           "Material as \"b\" { }\nMesh \"b\" { }\nuse \"b\"\n"
                                                           "Group \"a\" { use \"a\" }"));
        QVERIFY(scene);
        QCOMPARE(scene->getNumChildren(), 7);
        QCOMPARE(scene->getChild(2), scene->getChild(1));
        QCOMPARE(scene->getChild(1)->getRefCount(), 3);
        QCOMPARE(scene->getChild(5), scene->getChild(4));
        QCOMPARE(dynamic_cast<NxGroup&>(*scene->getChild(6)).getChild(0), scene->getChild(1));
    }

    void anythingCanStandInAName()
    {
        const std::string name("a\"b\\c\nd\te\0f# {}[];\xC3\xA9\xF0\x9F\xA4\x96", 24);
        const NxRef<NxGroup> scene(new NxGroup);
        scene->addChild(new NxMaterial);
        scene->getChild(0)->setName(VbString(std::string_view(name)));
        const std::string text = NxSceneWriter::toText(scene.get());
        const auto read = SceneText::read(text);
        QVERIFY(read);
        QCOMPARE(std::string(read->getChild(0)->getName().view()), name);
        QCOMPARE(NxSceneWriter::toText(read.get()), text);
    }

    void smallBudgetsGiveTheSameSceneInManySteps()
    {
        std::string statements = "Mesh \"a\" { positions = [";
        for (int i = 0; i < 50000; ++i)
            statements += std::to_string(i) + " 0 0.5, ";
        statements += "1 2 3]; unknown = [" + std::string(500000, ' ') + "1]\n}\n";
        for (int i = 0; i < 5000; ++i)
            statements += "Material \"m" + std::to_string(i) + "\" { }\nuse \"m" + std::to_string(i / 2) + "\"\n";
        const std::string text = SceneText::file(statements);
        NxSceneReader reader(text, "test.mrd");
        int steps = 0;
        double progress = 0;
        while (reader.step(0us) == NxSceneReader::State::Working) {
            ++steps;
            QVERIFY(reader.progress() >= progress);
            progress = reader.progress();
            QVERIFY(!reader.takeScene());
        }
        QCOMPARE(reader.state(), NxSceneReader::State::Done);
        QCOMPARE(reader.progress(), 1.0);
        QVERIFY2(steps > 100, qPrintable(QString::number(steps)));
        const NxRef<NxGroup> scene = reader.takeScene();
        QVERIFY(scene);
        QVERIFY(!reader.takeScene());
        QCOMPARE(NxSceneWriter::toText(scene.get()), SceneText::rewrite(text));
    }

    void readingNotifiesNobody()
    {
        int calls = 0;
        NxNodeSensor sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &calls);
        const auto first = SceneText::read(SceneText::file("Group { Material { shininess = 1 } }"));
        sensor.attach(first->getChild(0));
        const auto second = SceneText::read(SceneText::file("Group { Material { shininess = 1 } }"));
        QVERIFY(second);
        QVERIFY(!sensor.isScheduled());
        QCOMPARE(calls, 0);
    }

    void nestingUpToTheLimitIsRead()
    {
        std::string statements;
        for (int i = 0; i < NxSceneReader::maxDepth; ++i)
            statements += "Group {";
        statements += std::string(NxSceneReader::maxDepth, '}');
        QVERIFY(SceneText::read(SceneText::file(statements)));
    }

    void manyNodesOfUnknownKindsAreRead()
    {
        constexpr int count = 10'000;
        std::string statements = "Group {\n";
        for (int i = 0; i < count; ++i)
            statements += "unknown" + std::to_string(i) + " = " + std::to_string(i) + '\n';
        statements += "}\n";
        for (int i = 0; i < count; ++i)
            statements += "Class" + std::to_string(i) + " as \"a\" { }\n";
        const auto scene = SceneText::read(SceneText::file(statements));
        QVERIFY(scene);
        QCOMPARE(scene->getNumChildren(), count + 1);
        QCOMPARE(scene->getChild(0)->getUnknownFields().size(), static_cast<std::size_t>(count));
    }
};

QTEST_APPLESS_MAIN(TestNxSceneReader)
#include "tst_NxSceneReader.moc"
