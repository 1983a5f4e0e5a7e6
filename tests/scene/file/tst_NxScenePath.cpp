#include "scene/SceneText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

class TestNxScenePath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = SceneText::read(SceneText::file("Transform \"robot\" {\n"
                                                  "  Transform \"arm\" { Material { } Mesh { } Material { } }\n"
                                                  "  Transform \"leg\" { }\n"
                                                  "  Transform \"leg\" { }\n"
                                                  "  Material \"red / blue\" { }\n"
                                                  "  Material \"quote \\\" line\\n\" { }\n"
                                                  "  Material \"left-arm_2 +a:b\" { }\n"
                                                  "  Material \"Größe\" { }\n"
                                                  "  Material \"Mesh[0]\" { }\n"
                                                  "  Material \"a.b\" { }\n"
                                                  "  Mesh { }\n"
                                                  "}\n"
                                                  "use \"leg\"\n"
                                                  "Widget \"w\" as \"w\" { unknown = 1 }\n"
                                                  "Widget { }\n"));
        QVERIFY(m_scene);
    }

    void thePathOfEveryNodeAndFieldLeadsBack()
    {
        int count = 0;
        std::vector<NxNode*> way;
        checkBelow(m_scene.get(), way, count);
        QCOMPARE(count, 17);
    }

    void pathsAreWrittenShortly_data()
    {
        QTest::addColumn<QByteArray>("path");
        for (const char* path : {"/", "/robot", "/robot/arm", "/robot/arm/Material[0]", "/robot/arm/Mesh[0]",
                 "/robot/arm/Material[1]", "/robot/Transform[1]", "/robot/Transform[2]", "/robot/\"red / blue\"",
                 "/robot/\"quote \\\" line\\n\"", "/robot/left-arm_2 +a:b", "/robot/Größe", "/robot/\"Mesh[0]\"",
                 "/robot/\"a.b\"", "/robot/Mesh[0]", "/leg", "/w", "/Widget[1]", "/robot.translation",
                 "/robot/arm/Material[1].shininess", "/robot/\"a.b\".diffuseColor"})
            QTest::newRow(path) << QByteArray(path);
    }

    void pathsAreWrittenShortly()
    {
        QFETCH(QByteArray, path);
        const NxScenePath::Target target = NxScenePath::find(m_scene.get(), path.toStdString());
        QCOMPARE(target.error, std::string());
        const std::string text = target.field == nullptr
            ? NxScenePath::toText(m_scene.get(), target.nodes)
            : NxScenePath::toText(m_scene.get(), target.nodes, target.field);
        QCOMPARE(QByteArray::fromStdString(text), path);
    }

    void aUniqueNameMayStandInQuotesAndAClassWithItsIndex()
    {
        NxNode* const arm = NxScenePath::find(m_scene.get(), "/robot/arm").node();
        QVERIFY(arm != nullptr);
        QCOMPARE(NxScenePath::find(m_scene.get(), "/\"robot\"/\"arm\"").node(), arm);
        QCOMPARE(NxScenePath::find(m_scene.get(), "/Transform[0]/Transform[0]").node(), arm);
        QCOMPARE(NxScenePath::find(m_scene.get(), "/robot/Transform[00]").node(), arm);
    }

    void theSceneItselfHasNoNode()
    {
        const NxScenePath::Target target = NxScenePath::find(m_scene.get(), "/");
        QVERIFY(target.error.empty());
        QVERIFY(target.nodes.empty());
        QVERIFY(target.node() == nullptr);
        QVERIFY(target.field == nullptr);
    }

    void theNodesOfTheWayAreHandedOut()
    {
        const NxScenePath::Target target = NxScenePath::find(m_scene.get(), "/robot/arm/Mesh[0].indices");
        QCOMPARE(target.nodes.size(), std::size_t{3});
        QCOMPARE(target.nodes[0], m_scene->getChild(0));
        QCOMPARE(target.node()->getClassName(), "Mesh");
        QCOMPARE(target.field, target.node()->getField("indices"));
    }

    void wrongPathsAreRefusedWithTheReason_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("error");
        const auto row
            = [](const char* path, const char* error) { QTest::newRow(path) << QByteArray(path) << QByteArray(error); };
        row("", "'' isn't a path: expected '/' and the name of a node");
        row("robot", "'robot' isn't a path: expected '/' and the name of a node");
        row("//robot", "'/': expected the name of a node behind it");
        row("/robot/", "'/robot/': expected the name of a node behind it");
        row("/.translation", "'/': expected the name of a node behind it");
        row("/nobody", "'/nobody': there is no child of that name");
        row("/robot/arm/hand/finger", "'/robot/arm/hand': there is no child of that name");
        row("/robot/leg", "'/robot/leg': the name isn't unique, expected Class[index]");
        row("/robot/Mesh", "'/robot/Mesh': there is no child of that name");
        row("/robot/Mesh[1]", "'/robot/Mesh[1]': there are 1 children of class Mesh");
        row("/robot/Lamp[0]", "'/robot/Lamp[0]': there are 0 children of class Lamp");
        row("/robot/Mesh[", "'/robot/Mesh': expected an index and \"]\" behind \"[\"");
        row("/robot/Mesh[1", "'/robot/Mesh': expected an index and \"]\" behind \"[\"");
        row("/robot/Mesh[-1]", "'/robot/Mesh': expected an index and \"]\" behind \"[\"");
        row("/robot/Mesh[x]", "'/robot/Mesh': expected an index and \"]\" behind \"[\"");
        row("/robot/Mesh[99999999999]", "'/robot/Mesh': expected an index and \"]\" behind \"[\"");
        row("/robot/Mesh[0]x", "'/robot/Mesh[0]': expected '/' or '.' behind it");
        row("/robot/\"red", "'/robot/': expected a text with a closing quote");
        row("/robot/\"\"", "'/robot/\"\"': expected the name of a node between the quotes");
        row("/robot/\"red / blue\"x", "'/robot/\"red / blue\"': expected '/' or '.' behind it");
        row("/robot.", "'/robot' has no field ''");
        row("/robot.shininess", "'/robot' has no field 'shininess'");
        row("/robot.translation.x", "'/robot' has no field 'translation.x'");
        row("/w.unknown", "'/w' has no field 'unknown'");
        row("/robot/arm/Material[0]/deeper", "'/robot/arm/Material[0]/deeper': there is no child of that name");
    }

    void wrongPathsAreRefusedWithTheReason()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, error);
        const NxScenePath::Target target = NxScenePath::find(m_scene.get(), path.toStdString());
        QCOMPARE(QByteArray::fromStdString(target.error), error);
        QVERIFY(target.nodes.empty());
        QVERIFY(target.field == nullptr);
    }

private:
    void checkBelow(NxNode* parent, std::vector<NxNode*>& way, int& count)
    {
        for (NxNode* child : parent->getChildren()) {
            way.push_back(child);
            ++count;
            const std::string text = NxScenePath::toText(m_scene.get(), way);
            const NxScenePath::Target target = NxScenePath::find(m_scene.get(), text);
            QCOMPARE(target.error, std::string());
            QVERIFY2(target.nodes == way, text.c_str());
            for (NxField* field : child->getFields()) {
                const std::string fieldText = NxScenePath::toText(m_scene.get(), way, field);
                const NxScenePath::Target fieldTarget = NxScenePath::find(m_scene.get(), fieldText);
                QVERIFY2(fieldTarget.nodes == way && fieldTarget.field == field, fieldText.c_str());
            }
            checkBelow(child, way, count);
            way.pop_back();
        }
    }

    NxRef<NxGroup> m_scene;
};

QTEST_APPLESS_MAIN(TestNxScenePath)
#include "tst_NxScenePath.moc"
