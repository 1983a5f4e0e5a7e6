#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <QTest>

namespace {

NxRef<NxNode> makeNode(const char* className)
{
    void* const made = NxType::fromName(className).createInstance(nullptr);
    return static_cast<NxNode*>(static_cast<NxTypedObject*>(made));
}

} // namespace

class TestNxNode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasItsFieldsWithTheirDefaults_data()
    {
        QTest::addColumn<QByteArray>("parent");
        QTest::addColumn<QByteArray>("fields");
        const auto row = [](const char* name, const char* parent, const QByteArray& fields) {
            QTest::newRow(name) << QByteArray(parent) << fields;
        };
        const QByteArray light = "on = true; intensity = 1; color = 1 1 1; ";
        const QByteArray camera = "position = 0 0 1; orientation = 0 0 1 0; nearDistance = 0.1; farDistance = 1000; ";
        row("Group", "Node", "");
        row("UnknownNode", "Group", "");
        row("Transform", "Group", "translation = 0 0 0; rotation = 0 0 1 0; scaleFactor = 1 1 1; center = 0 0 0");
        row("MatrixTransform", "Group", "matrix = 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1");
        row("Switch", "Group", "whichChild = -1");
        row("Mesh", "Node",
            "positions = []; normals = []; textureCoordinates = []; colors = []; indices = []; primitive = TRIANGLES");
        row("Material", "Node",
            "ambientColor = 0.2 0.2 0.2; diffuseColor = 0.8 0.8 0.8; specularColor = 0 0 0; emissiveColor = 0 0 0; "
            "shininess = 0.2; transparency = 0; metalness = 0; roughness = 1; doubleSided = true; alphaCutoff = 0");
        row("Texture", "Node", "filePath = \"\"; image = 0 0 0; wrapS = REPEAT; wrapT = REPEAT; role = COLOR");
        row("DirectionalLight", "Light", light + "direction = 0 0 -1");
        row("PointLight", "Light", light + "location = 0 0 1; attenuation = 1 0 0");
        row("SpotLight", "Light",
            light + "location = 0 0 1; direction = 0 0 -1; cutOffAngle = 0.7853982; dropOffRate = 0");
        row("PerspectiveCamera", "Camera", camera + "heightAngle = 0.7853982");
        row("OrthographicCamera", "Camera", camera + "height = 2");
        row("Complexity", "Node", "type = OBJECT_SPACE; value = 0.5; textureQuality = 0.5");
    }

    void everyClassHasItsFieldsWithTheirDefaults()
    {
        QFETCH(QByteArray, parent);
        QFETCH(QByteArray, fields);
        const NxRef<NxNode> node = makeNode(QTest::currentDataTag());
        QVERIFY(node);
        QCOMPARE(node->getClassName(), QTest::currentDataTag());
        QCOMPARE(QByteArray(node->getTypeId().getParent().getName().getString()), parent);
        QCOMPARE(node->isOfType(NxGroup::getClassTypeId()), dynamic_cast<NxGroup*>(node.get()) != nullptr);
        QVERIFY(node->getChildren().empty());
        QVERIFY(node->getName().isEmpty());
        QVERIFY(node->getUnknownFields().empty());
        QByteArray found;
        for (const NxField* field : node->getFields()) {
            VbString text;
            field->get(text);
            found += QByteArray(found.isEmpty() ? "" : "; ") + node->getFieldName(field).getString() + " = "
                + text.toUtf8();
            QVERIFY(field->isDefault());
            QVERIFY(!field->isIgnored());
            QCOMPARE(field->getContainer(), node.get());
        }
        QCOMPARE(found, fields);
    }

    void abstractClassesCannotBeMade()
    {
        for (const NxType& type : {NxNode::getClassTypeId(), NxLight::getClassTypeId(), NxCamera::getClassTypeId()}) {
            QVERIFY(!type.canCreateInstance());
            QVERIFY(type.createInstance(nullptr) == nullptr);
        }
        QVERIFY(NxDirectionalLight::getClassTypeId().isDerivedFrom(NxLight::getClassTypeId()));
        QVERIFY(NxOrthographicCamera::getClassTypeId().isDerivedFrom(NxCamera::getClassTypeId()));
    }

    void instancesOfOneClassShareItsDescription()
    {
        const NxRef<NxNode> first = makeNode("Mesh");
        const NxRef<NxNode> second = makeNode("Mesh");
        QCOMPARE(first->getFieldData(), second->getFieldData());
        QVERIFY(first->getFieldData() != makeNode("Material")->getFieldData());
        NxField* const field = first->getField("indices");
        QCOMPARE(field, static_cast<NxField*>(&dynamic_cast<NxMesh&>(*first).indices));
        QVERIFY(second->getField("indices") != field);
        QVERIFY(first->getField("nothing") == nullptr);
    }

    void theWordsOfASwitchAreValuesOfItsField()
    {
        const NxRef<NxNode> node = makeNode("Switch");
        auto& field = dynamic_cast<NxSwitch&>(*node).whichChild;
        QCOMPARE(field.getValue(), static_cast<int>(NxSwitch::NONE));
        field.setValue(NxSwitch::ALL);
        QCOMPARE(field.getValue(), -3);
    }

    void anUnknownNodeHasTheNameOfItsClass()
    {
        const NxRef<NxNode> node = makeNode("UnknownNode");
        QCOMPARE(node->getClassName(), "UnknownNode");
        dynamic_cast<NxUnknownNode&>(*node).setClassName("Hologram");
        QCOMPARE(node->getClassName(), "Hologram");
        QCOMPARE(node->getTypeId(), NxUnknownNode::getClassTypeId());
    }
};

QTEST_APPLESS_MAIN(TestNxNode)
#include "tst_NxNode.moc"
