#include "gl/ScenePairCase.h"

#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSwitch.h"

/// Every change of a scene is in the next picture.
class TestSceneChanges : public ScenePairCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { drawPair(); }
    void cleanup() { endDrawing(); }

    void everyEditIsFollowed_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QColor>("left");
        QTest::addColumn<QColor>("middle");
        const auto row = [](const char* name, const Edit& edit, const QColor& left, const QColor& middle = black) {
            QTest::newRow(name) << edit << left << middle;
        };
        row(
            "diffuse colour", [](ScenePair& pair) { pair.leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); },
            blue);
        row(
            "emissive colour", [](ScenePair& pair) { pair.leftMaterial->emissiveColor.setValue(VbColor(0, 1, 0)); },
            color(1, 1, 0));
        row(
            "ambient colour", [](ScenePair& pair) { pair.leftMaterial->ambientColor.setValue(VbColor(0, 0, 1)); },
            color(1, 0, 0.2));
        row(
            "specular colour", [](ScenePair& pair) { pair.leftMaterial->specularColor.setValue(VbColor(0, 0, 1)); },
            color(1, 0, 1));
        row(
            "transparency", [](ScenePair& pair) { pair.leftMaterial->transparency.setValue(0.5F); }, color(0.5, 0, 0));
        row(
            "ignored", [](ScenePair& pair) { pair.leftMaterial->diffuseColor.setIgnored(1); }, color(0.8, 0.8, 0.8));
        row(
            "translation", [](ScenePair& pair) { pair.left->translation.setValue(VbVec3f(0, 0, 0)); }, black, red);
        row(
            "scale", [](ScenePair& pair) { pair.left->scaleFactor.setValue(VbVec3f(2, 1, 1)); }, red, red);
        row(
            "rotation", [](ScenePair& pair) { pair.left->rotation.setValue(VbRotation(VbVec3f(0, 1, 0), 1.5707963F)); },
            black);
        row(
            "centre and rotation",
            [](ScenePair& pair) {
                pair.left->center.setValue(VbVec3f(0.5F, 0, 0));
                pair.left->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), 3.1415927F));
            },
            black); // goes to the right, behind the other
        row(
            "positions",
            [](ScenePair& pair) {
                pair.leftMesh->positions.setValues(
                    {{0.3F, -0.3F, 0}, {0.7F, -0.3F, 0}, {0.7F, 0.3F, 0}, {0.3F, 0.3F, 0}});
            },
            black, red);
        row(
            "normals",
            [](ScenePair& pair) { pair.leftMesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0.8F, 0, 0.6F))); },
            color(0.6, 0, 0));
        row(
            "no normals", [](ScenePair& pair) { pair.leftMesh->normals.deleteValues(0, -1); }, red);
        row(
            "indices",
            [](ScenePair& pair) {
                pair.leftMesh->indices.setValues({0, 1, 1});
            },
            black);
        row(
            "primitive", [](ScenePair& pair) { pair.leftMesh->primitive.setValue(NxMesh::POINTS); }, black);
        row(
            "colours", [](ScenePair& pair) { pair.leftMesh->colors.setValues({VbVec4f(0, 0, 1, 1)}); }, blue);
        row(
            "a texture ahead", [](ScenePair& pair) { pair.left->insertChild(fourPixels().get(), 0); },
            color(0.5, 0, 0));
        row(
            "a switch instead",
            [](ScenePair& pair) {
                const NxRef<NxSwitch> choice = new NxSwitch;
                choice->addChild(pair.leftMesh.get());
                pair.left->removeChild(1);
                pair.left->addChild(choice.get());
            },
            black);
        row(
            "a light ahead",
            [](ScenePair& pair) {
                const NxRef<NxDirectionalLight> light = new NxDirectionalLight;
                light->intensity.setValue(0.5F);
                pair.scene->insertChild(light.get(), 0);
            },
            color(0.5, 0, 0));
        row(
            "a bounding box",
            [](ScenePair& pair) {
                const NxRef<NxComplexity> complexity = new NxComplexity;
                complexity->type.setValue(NxComplexity::BOUNDING_BOX);
                pair.left->insertChild(complexity.get(), 0);
            },
            black);
    }

    void everyEditIsFollowed()
    {
        QFETCH(Edit, edit);
        QFETCH(QColor, left);
        QFETCH(QColor, middle);
        edit(*m_pair);
        m_picture = m_bench->draw();
        COMPARE_PIXEL(m_picture, -0.5, 0, left, 4);
        COMPARE_PIXEL(m_picture, 0, 0, middle, 4);
    }

    void childrenComeAndGo()
    {
        const auto light = make<NxPointLight>();
        const auto choice = make<NxSwitch>();
        choice->addChild(light.get());
        choice->addChild(plain(0, 0, 1).get());
        m_pair->scene->insertChild(choice.get(), 0);
        (void)m_bench->draw();
        // In the scene's own group, light and material hold for all that follows.
        m_pair->left->removeChild(0);
        m_pair->scene->insertChild(plain(0, 0, 1).get(), 0);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
        m_pair->scene->insertChild(light.get(), 0);
        light->location.setValue(VbVec3f(-0.5F, 0, 10));
        light->color.setValue(VbColor(0, 0, 0.5F));
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, color(0, 0, 0.5));
        light->intensity.setValue(0.5F);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, color(0, 0, 0.25));
        m_pair->scene->removeAllChildren();
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
        QCOMPARE(m_bench->counts().bufferBytes, 0U);
        m_pair->scene->addChild(m_pair->right.get());
        COMPARE_PIXEL(m_bench->draw(), 0.5, 0, green);
    }

    void anUndoneRemovalIsDrawnAgain()
    {
        m_pair->scene->removeChild(0);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
        m_pair->leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); // while it isn't in the scene
        m_pair->scene->insertChild(m_pair->left.get(), 0);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
    }

    void nodesDieBeforeTheQueueTells()
    {
        m_pair->left = nullptr;
        m_pair->leftMaterial = nullptr;
        m_pair->leftMesh = nullptr;
        m_pair->scene->removeChild(0);
        // Nobody processes the queue: a picture shows what is there.
        COMPARE_PIXEL(m_bench->drawUntold(), -0.5, 0, black);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
    }

    void aNodeAtTheAddressOfADeadOneIsFollowed()
    {
        m_pair->leftMaterial = nullptr;
        for (int i = 0; i < 10; ++i) {
            m_pair->left->removeChild(0);
            const auto material = plain(0, 0, 1);
            m_pair->left->insertChild(material.get(), 0);
            COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
            material->diffuseColor.setValue(VbColor(0, 1, 0));
            COMPARE_PIXEL(m_bench->draw(), -0.5, 0, green);
        }
    }

    void aSharedGroupIsFollowedInAllPlaces()
    {
        const auto shared = groupOf({plain(0, 0, 1).get(), m_pair->leftMesh.get()});
        m_pair->left->removeAllChildren();
        m_pair->right->removeAllChildren();
        m_pair->left->addChild(shared.get());
        m_pair->right->addChild(shared.get());
        m_picture = m_bench->draw();
        COMPARE_PIXEL(m_picture, -0.5, 0, blue);
        COMPARE_PIXEL(m_picture, 0.5, 0, blue);
        shared->insertChild(plain(0, 1, 0).get(), 1);
        m_picture = m_bench->draw();
        COMPARE_PIXEL(m_picture, -0.5, 0, green);
        COMPARE_PIXEL(m_picture, 0.5, 0, green);
    }

    void theHookIsCalledOnceAPicture()
    {
        int calls = 0;
        m_bench->drawing().setChangeHook([&calls] { ++calls; });
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 0);
        m_pair->leftMaterial->shininess.setValue(0.5F);
        m_pair->left->translation.setValue(VbVec3f());
        QCOMPARE(calls, 0); // nothing happens inside the call that changes a field
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 1);
        m_pair->leftMesh->positions.touch();
        NxDelayQueue::getDefault().process();
        m_bench->drawing().setSelectedNode(m_pair->left.get());
        QCOMPARE(calls, 1);
        (void)m_bench->draw();
        m_bench->restyle([](NxDrawingStyle& style) { style.grid = true; });
        QCOMPARE(calls, 2);
        m_bench->restyle([](NxDrawingStyle& style) { style.grid = true; });
        QCOMPARE(calls, 2);
        m_bench->drawing().setChangeHook({});
    }

    void boundsFollow()
    {
        const auto expected = [](float left, float right) {
            NxBounds bounds;
            bounds.include(VbVec3f(left, -0.3F, 0));
            bounds.include(VbVec3f(right, 0.3F, 0.1F));
            return bounds;
        };
        NxSceneDrawing& drawing = m_bench->drawing();
        QVERIFY(drawing.bounds() == expected(-0.8F, 0.8F));
        m_pair->left->translation.setValue(VbVec3f(-1.5F, 0, 0));
        NxDelayQueue::getDefault().process();
        QVERIFY(drawing.bounds() == expected(-1.8F, 0.8F));
        QCOMPARE(drawing.bounds(m_pair->left.get()).max[0], -1.2F);
        QCOMPARE(drawing.bounds(m_pair->rightMesh.get()).min[0], 0.2F);
        QVERIFY(drawing.bounds(m_pair->leftMaterial.get()).isEmpty());
        QVERIFY(drawing.bounds(m_pair->scene.get()) == drawing.bounds());
        drawing.setScene(nullptr);
        QVERIFY(drawing.bounds().isEmpty());
    }

    void theSelectionFollowsTheStructure()
    {
        m_bench->restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(0, 0, 1);
            style.outlineWidth = 4;
        });
        m_bench->drawing().setSelectedNode(m_pair->left.get());
        COMPARE_PIXEL(m_bench->draw(), -0.16, 0, blue);
        m_pair->left->addChild(rectangle(0.5F, 0.5F, 0.7F, 0.7F).get());
        COMPARE_PIXEL(m_bench->draw(), 0.24, 0.6, blue);
        m_pair->left->removeAllChildren();
        m_picture = m_bench->draw();
        COMPARE_PIXEL(m_picture, -0.16, 0, black);
        COMPARE_PIXEL(m_picture, 0.24, 0.6, black);
    }
};

QTEST_APPLESS_MAIN(TestSceneChanges)
#include "tst_SceneChanges.moc"
