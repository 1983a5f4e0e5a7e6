#include "scene/SceneText.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/file/NxScenePathNamer.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

namespace {

/// So many siblings that the namer remembers what it saw of them.
constexpr int many = 2000;
constexpr std::chrono::hours plenty(1);

std::string siblingText(int number)
{
    switch (number % 5) {
    case 0:
        return "Material { }\n";
    case 1:
        return "Mesh { }\n";
    case 2:
        return "Material \"part " + std::to_string(number) + "\" { }\n";
    case 3:
        return "Mesh \"pair " + std::to_string(number / 10) + "\" { }\n";
    default:
        return "Widget" + std::to_string(number % 3) + " { }\n";
    }
}

} // namespace

class TestNxScenePathNamer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        std::string text = "Transform \"few\" { Mesh { }\n Mesh \"a\" { } }\nTransform \"many\" {\n";
        for (int i = 0; i < many; ++i)
            text += siblingText(i);
        m_scene = SceneText::read(SceneText::file(text + "}\n"));
        QVERIFY(m_scene);
        m_group = dynamic_cast<NxGroup*>(m_scene->getChild(1));
        QVERIFY(m_group != nullptr);
        QCOMPARE(m_group->getNumChildren(), many);
    }

    void everyNodeIsNamedAsByItsPath()
    {
        NxScenePathNamer namer;
        checkAll(namer);
    }

    void theSceneAndFieldsAreNamedToo()
    {
        NxScenePathNamer namer;
        QCOMPARE(namer.name(*m_scene, {}, nullptr, plenty), std::string("/"));
        const std::vector<int> places{1, 2};
        NxField* const field = m_group->getChild(2)->getField("shininess");
        QCOMPARE(namer.name(*m_scene, places, field, plenty), std::string("/many/part 2.shininess"));
    }

    void aSpentBudgetGivesNothingUntilAllSiblingsWereSeen()
    {
        NxScenePathNamer namer;
        const std::vector<int> few{0, 1};
        QCOMPARE(namer.name(*m_scene, few, nullptr, std::chrono::seconds(0)), std::string("/few/a"));
        const std::vector<int> places{1, many - 3};
        std::optional<std::string> name = namer.name(*m_scene, places, nullptr, std::chrono::seconds(0));
        QVERIFY(!name);
        int calls = 1;
        for (; !name && calls < many; ++calls)
            name = namer.name(*m_scene, places, nullptr, std::chrono::seconds(0));
        QCOMPARE(name, "/many/part " + std::to_string(many - 3));
        QVERIFY(calls > 2);
        // From then on it knows them.
        QVERIFY(namer.name(*m_scene, std::vector<int>{1, 0}, nullptr, std::chrono::seconds(0)));
    }

    void changesOfNamesAndListsAreSeen()
    {
        NxScenePathNamer namer;
        checkAll(namer);
        m_group->getChild(2)->setName("part 7");
        checkAll(namer);
        m_group->getChild(7)->setName("");
        checkAll(namer);
        QVERIFY(m_group->insertChild(new NxMaterial, 1));
        checkAll(namer);
        QVERIFY(m_group->removeChild(3));
        checkAll(namer);
        m_group->removeAllChildren();
        checkAll(namer);
    }

    void aGroupInThePlaceOfADeadOneIsNamedAnew()
    {
        NxScenePathNamer namer;
        checkAll(namer);
        init();
        m_group->getChild(2)->setName("part 7");
        checkAll(namer);
    }

private:
    void checkAll(NxScenePathNamer& namer)
    {
        for (int top = 0; top < m_scene->getNumChildren(); ++top) {
            NxNode* const parent = m_scene->getChild(top);
            const auto children = parent->getChildren();
            for (std::size_t i = 0; i < children.size(); ++i) {
                const std::vector<int> places{top, static_cast<int>(i)};
                const std::vector<NxNode*> nodes{parent, children[i]};
                QCOMPARE(namer.name(*m_scene, places, nullptr, plenty), NxScenePath::toText(m_scene.get(), nodes));
            }
        }
    }

    NxRef<NxGroup> m_scene;
    NxGroup* m_group = nullptr;
};

QTEST_APPLESS_MAIN(TestNxScenePathNamer)
#include "tst_NxScenePathNamer.moc"
