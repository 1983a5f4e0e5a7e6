#include "plugins/nodes/CameraDiagram.h"
#include "plugins/nodes/CameraEditors.h"
#include "plugins/nodes/GroupEditors.h"
#include "plugins/nodes/LightDiagram.h"
#include "plugins/nodes/LightEditors.h"
#include "plugins/nodes/MaterialEditor.h"
#include "plugins/nodes/MaterialSphere.h"
#include "plugins/nodes/MeshEditor.h"
#include "plugins/nodes/NodeEditorCase.h"
#include "plugins/nodes/TransformEditors.h"

#include <cmath>

namespace {

NxRef<NxMesh> square()
{
    NxRef<NxMesh> mesh(new NxMesh);
    mesh->positions.setValues(
        std::vector<VbVec3f>{VbVec3f(-1, -1, 0), VbVec3f(1, -1, 0), VbVec3f(1, 1, 0), VbVec3f(-1, 1, 0)});
    mesh->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
    return mesh;
}

QImage pictureOf(QWidget& widget)
{
    return widget.grab().toImage();
}

} // namespace

/// The editors of nodes, driven as the dock and the user drive them.
class TestNodeEditors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMaterialIsSeenAndEdited()
    {
        NodeEditorCase<nodes::MaterialEditor, NxMaterial> tool;
        tool.show();
        auto& sphere = tool.find<nodes::MaterialSphere>("sphere");
        const QImage grey = pictureOf(sphere);
        tool.type("diffuseColor", QStringLiteral("1 0 0"));
        QCOMPARE(tool.node->diffuseColor.getValue(), VbColor(1, 0, 0));
        QTRY_VERIFY(pictureOf(sphere) != grey);
        const QPoint middle = sphere.rect().center();
        const QColor seen = pictureOf(sphere).pixelColor(middle);
        QVERIFY(seen.red() > 4 * seen.green());
        tool.services.undo();
        QTRY_COMPARE(pictureOf(sphere), grey);
    }

    void aTransformIsTurnedByDegrees()
    {
        NodeEditorCase<nodes::TransformEditor, NxTransform> tool;
        tool.show();
        auto& line = *tool.find<QWidget>("turn").findChild<QLineEdit*>(QStringLiteral("number2"));
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, QStringLiteral("90"));
        QTest::keyClick(&line, Qt::Key_Return);
        QVERIFY(std::abs(tool.node->rotation.getValue().getAngle() - 1.5707963F) < 1e-5F);
        QTRY_COMPARE(tool.text("element01"), QStringLiteral("1"));
        QTRY_COMPARE(tool.text("element10"), QStringLiteral("-1"));
        tool.services.undo();
        QTRY_COMPARE(tool.text("element01"), QStringLiteral("0"));
        QTRY_COMPARE(line.text(), QStringLiteral("0"));
    }

    void aMatrixTellsWhatItDoes()
    {
        NodeEditorCase<nodes::MatrixTransformEditor, NxMatrixTransform> tool;
        tool.node->matrix.setValue(VbMatrix(2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 5, 6, 7, 1));
        tool.show();
        const QString text = tool.text("It");
        QVERIFY2(text.contains(QLatin1String("moves by 5, 6, 7")), qPrintable(text));
        QVERIFY2(text.contains(QLatin1String("scales by 2, 3, 4")), qPrintable(text));
        tool.node->matrix.setValue(VbMatrix(1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
        QTRY_VERIFY(tool.text("It").contains(QLatin1String("projection")));
    }

    void aMeshTellsWhatItHasAndWhatIsWrong()
    {
        NodeEditorCase<nodes::MeshEditor, NxMesh> tool;
        tool.node->positions.setValues(square()->positions.getValues());
        tool.node->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
        tool.show();
        QCOMPARE(tool.text("Consists of"), QStringLiteral("2 triangles"));
        QTRY_VERIFY2(tool.text("figures").contains(QString::fromUtf8("2 × 2 × 0 around 0, 0, 0")),
            qPrintable(tool.text("figures")));
        QTRY_COMPARE(tool.text("problems"), QStringLiteral("nothing"));
        tool.node->indices.setValues(std::vector<int>{0, 1, 9});
        QTRY_VERIFY2(tool.text("problems").contains(QLatin1String("ind")), qPrintable(tool.text("problems")));
        QCOMPARE(tool.root->getChildren().size(), std::size_t{1});
    }

    void aGroupCountsWhatIsBelow()
    {
        NodeEditorCase<nodes::GroupEditor, NxGroup> tool;
        tool.node->addChild(square().get());
        tool.show();
        QCOMPARE(tool.text("Children"), QStringLiteral("1"));
        QTRY_VERIFY2(tool.text("figures").startsWith(QLatin1String("1 mesh")), qPrintable(tool.text("figures")));
        tool.node->addChild(square().get());
        QTRY_COMPARE(tool.text("Children"), QStringLiteral("2"));
        QTRY_VERIFY(tool.text("figures").startsWith(QLatin1String("2 mesh")));
    }

    void aSwitchTellsWhichChildIsShown()
    {
        NodeEditorCase<nodes::SwitchEditor, NxSwitch> tool;
        const auto mesh = square();
        mesh->setName(VbString("front"));
        tool.node->addChild(mesh.get());
        tool.show();
        QCOMPARE(tool.text("Shown is"), QStringLiteral("no child"));
        tool.type("whichChild", QStringLiteral("0"));
        QTRY_COMPARE(tool.text("Shown is"), QStringLiteral("front"));
        tool.type("whichChild", QStringLiteral("-3"));
        QTRY_COMPARE(tool.text("Shown is"), QStringLiteral("all children"));
    }

    void aSpotLightShowsItsCone()
    {
        NodeEditorCase<nodes::SpotLightEditor, NxSpotLight> tool;
        tool.show();
        auto& diagram = tool.find<nodes::LightDiagram>("diagram");
        const QImage wide = pictureOf(diagram);
        const QPoint beside(diagram.width() / 2, diagram.height() / 5);
        QVERIFY(wide.pixelColor(beside).lightness() > 200);
        tool.type("cutOffAngle", QStringLiteral("0.1"));
        QTRY_VERIFY(pictureOf(diagram).pixelColor(beside).lightness() < 60);
        QVERIFY(pictureOf(diagram).pixelColor(diagram.width() / 2, diagram.height() / 2 + 2).lightness() > 200);
    }

    void aPointLightTellsItsReach()
    {
        NxRef<NxPointLight> light(new NxPointLight);
        QVERIFY(std::isinf(nodes::reachOf(*light)));
        light->attenuation.setValue(VbVec3f(0, 1, 0));
        QVERIFY(std::abs(nodes::reachOf(*light) - 10) < 1e-6);
        light->attenuation.setValue(VbVec3f(0, 0, 1));
        QVERIFY(std::abs(nodes::reachOf(*light) - std::sqrt(10)) < 1e-6);
        light->attenuation.setValue(VbVec3f(NAN, 0, 0));
        QVERIFY(std::isinf(nodes::reachOf(*light)));
    }

    void aLightThatIsOffIsDark()
    {
        NodeEditorCase<nodes::DirectionalLightEditor, NxDirectionalLight> tool;
        tool.show();
        auto& diagram = tool.find<nodes::LightDiagram>("diagram");
        const QPoint ray(diagram.width() / 2, diagram.height() / 2);
        QVERIFY(pictureOf(diagram).pixelColor(ray).lightness() > 200);
        tool.node->on.setValue(0);
        QTRY_VERIFY(pictureOf(diagram).pixelColor(ray).lightness() < 60);
    }

    void aCameraTellsWhatItSees()
    {
        NodeEditorCase<nodes::PerspectiveCameraEditor, NxPerspectiveCamera> tool;
        tool.node->heightAngle.setValue(1.5707963F);
        tool.node->nearDistance.setValue(1);
        tool.node->farDistance.setValue(10);
        tool.show();
        QCOMPARE(tool.text("It sees"),
            QStringLiteral("90 degrees from below to above: 2 high at the near border, 20 at the far one"));
        auto& diagram = tool.find<nodes::CameraDiagram>("diagram");
        const QImage before = pictureOf(diagram);
        tool.type("heightAngle", QStringLiteral("0.2"));
        QTRY_VERIFY(pictureOf(diagram) != before);
        tool.services.undo();
        QTRY_COMPARE(pictureOf(diagram), before);
    }

    void eachRowLeadsToTheFieldsOwnEditor()
    {
        NodeEditorCase<nodes::OrthographicCameraEditor, NxOrthographicCamera> tool;
        tool.show();
        QTest::mouseClick(&tool.find<QToolButton>("heightLabel"), Qt::LeftButton);
        QCOMPARE(tool.services.getSelectedField(), static_cast<NxField*>(&tool.node->height));
        QCOMPARE(tool.services.getSelectedNode(), static_cast<NxFieldContainer*>(tool.node.get()));
    }

    void aNodeThatIsLeftIsReleased()
    {
        NodeEditorCase<nodes::MeshEditor, NxMesh> tool;
        tool.show();
        QTRY_COMPARE(tool.text("problems").isEmpty(), false);
        tool.base().deactivate();
        tool.base().setEditedObject(nullptr);
        tool.base().activate();
        QVERIFY(!tool.base().getWidget()->isVisible());
    }
};

QTEST_MAIN(TestNodeEditors)
#include "tst_NodeEditors.moc"
