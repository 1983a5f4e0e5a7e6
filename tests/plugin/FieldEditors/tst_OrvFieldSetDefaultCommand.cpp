#include "FieldEditors/OrvFieldSetDefaultCommand.h"
#include "plugin/ToolHarness.h"

class TestOrvFieldSetDefaultCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_node = new NxFieldGallery; }

    void executeAndRedoWriteTheDefault()
    {
        NxSFFloat defaults(nullptr, nullptr);
        defaults.setValue(4);
        m_node->sfFloat.setValue(1);
        OrvFieldSetDefaultCommand command(&m_node->sfFloat, &defaults);
        QCOMPARE(m_node->sfFloat.getValue(), 1.0F);
        command.execute();
        QCOMPARE(m_node->sfFloat.getValue(), 4.0F);
        m_node->sfFloat.setValue(9);
        command.redo();
        QCOMPARE(m_node->sfFloat.getValue(), 4.0F);
    }

    void undoWritesTheTextThatTheConstructorFound()
    {
        NxSFFloat defaults(nullptr, nullptr);
        defaults.setValue(4);
        m_node->sfFloat.setValue(1);
        OrvFieldSetDefaultCommand command(&m_node->sfFloat, &defaults);
        command.execute();
        command.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 1.0F);
    }

    void undoAfterTheCallerWroteTheDefaultLeavesIt()
    {
        NxSFFloat defaults(nullptr, nullptr);
        defaults.setValue(4);
        m_node->sfFloat.setValue(4);
        OrvFieldSetDefaultCommand command(&m_node->sfFloat, &defaults);
        command.execute();
        command.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 4.0F);
    }

    void defaultFieldIsNotKept()
    {
        auto defaults = std::make_unique<NxSFFloat>(nullptr, nullptr);
        defaults->setValue(4);
        OrvFieldSetDefaultCommand command(&m_node->sfFloat, defaults.get());
        defaults.reset();
        command.execute();
        QCOMPARE(m_node->sfFloat.getValue(), 4.0F);
    }

    void listsTakeItToo()
    {
        const NxMFFloat defaults(nullptr, nullptr);
        QVERIFY(m_node->mfFloat.set("[1, 2, 3]"));
        OrvFieldSetDefaultCommand command(&m_node->mfFloat, &defaults);
        command.execute();
        QCOMPARE(m_node->mfFloat.getNum(), 0);
        command.undo();
        QCOMPARE(m_node->mfFloat.getNum(), 3);
    }

private:
    NxRef<NxFieldGallery> m_node;
};

QTEST_APPLESS_MAIN(TestOrvFieldSetDefaultCommand)
#include "tst_OrvFieldSetDefaultCommand.moc"
