#include "app/AppScenes.h"

#include "orvane/app/scene/SetFieldCommand.h"

#include "meridane/scene/nodes/NxMaterial.h"

#include <QTest>

class TestSetFieldCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void undoAndRedoMoveBetweenTheTwoValues()
    {
        const NxRef<NxMaterial> material(new NxMaterial);
        material->transparency.setValue(0.25F);
        SetFieldCommand command(&material->transparency, "0.5");
        QCOMPARE(material->transparency.getValue(), 0.25F);
        command.execute();
        QCOMPARE(material->transparency.getValue(), 0.5F);
        command.undo();
        QCOMPARE(material->transparency.getValue(), 0.25F);
        command.redo();
        QCOMPARE(material->transparency.getValue(), 0.5F);
    }

    void aRefusedTextChangesNothing()
    {
        const NxRef<NxMaterial> material(new NxMaterial);
        material->transparency.setValue(0.25F);
        SetFieldCommand command(&material->transparency, "none");
        command.execute();
        QCOMPARE(material->transparency.getValue(), 0.25F);
    }

    void theNodeLivesAsLongAsTheCommand()
    {
        NxRef<NxMaterial> material(new NxMaterial);
        NxMaterial* const node = material.get();
        SetFieldCommand command(&node->transparency, "1");
        QCOMPARE(node->getRefCount(), 2);
        material = NxRef<NxMaterial>();
        command.execute();
        QCOMPARE(node->transparency.getValue(), 1.0F);
    }
};

QTEST_GUILESS_MAIN(TestSetFieldCommand)
#include "tst_SetFieldCommand.moc"
