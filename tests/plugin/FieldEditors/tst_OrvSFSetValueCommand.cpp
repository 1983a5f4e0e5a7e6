#include "FieldEditors/OrvSFSetValueCommand.h"
#include "plugin/ToolHarness.h"

#include <memory>

class TestOrvSFSetValueCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_node = new NxFieldGallery; }

    void executeLeavesTheFieldAndCapturesItsText()
    {
        VbString snapshot("1");
        m_node->sfFloat.setValue(2);
        OrvSFSetValueCommand command(&m_node->sfFloat, snapshot);
        m_node->sfFloat.setValue(3); // what the field holds at execute counts
        command.execute();
        QCOMPARE(m_node->sfFloat.getValue(), 3.0F);
        m_node->sfFloat.setValue(9);
        command.redo();
        QCOMPARE(m_node->sfFloat.getValue(), 3.0F);
    }

    void undoWithASnapshotRestoresIt()
    {
        VbString snapshot("1");
        m_node->sfFloat.setValue(2);
        OrvSFSetValueCommand command(&m_node->sfFloat, snapshot);
        command.execute();
        command.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 1.0F);
        command.redo();
        QCOMPARE(m_node->sfFloat.getValue(), 2.0F);
    }

    void snapshotServesOneCommand()
    {
        VbString snapshot("1");
        m_node->sfFloat.setValue(2);
        const OrvSFSetValueCommand first(&m_node->sfFloat, snapshot);
        QVERIFY(snapshot.isNull());
        m_node->sfFloat.setValue(3);
        OrvSFSetValueCommand second(&m_node->sfFloat, snapshot);
        second.execute();
        second.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 3.0F);
    }

    void undoWithoutASnapshotKeepsTheNewValue_data()
    {
        QTest::addColumn<bool>("null");
        QTest::newRow("empty") << false;
        QTest::newRow("null") << true;
    }

    void undoWithoutASnapshotKeepsTheNewValue()
    {
        QFETCH(const bool, null);
        VbString snapshot;
        if (null)
            snapshot.makeNull();
        m_node->sfFloat.setValue(2);
        OrvSFSetValueCommand command(&m_node->sfFloat, snapshot);
        command.execute();
        QCOMPARE(snapshot.isNull(), null);
        m_node->sfFloat.setValue(5);
        command.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 2.0F);
    }

    void undoWithoutASnapshotKeepsTextsWithQuotes()
    {
        VbString snapshot;
        m_node->sfString.setValue(VbString("\"quoted\" text"));
        OrvSFSetValueCommand command(&m_node->sfString, snapshot);
        command.execute();
        command.undo();
        QCOMPARE(m_node->sfString.getValue(), VbString("\"quoted\" text"));
    }

    void snapshotThatTheFieldRefusesLeavesTheField()
    {
        VbString snapshot("no number");
        m_node->sfFloat.setValue(2);
        OrvSFSetValueCommand command(&m_node->sfFloat, snapshot);
        command.execute();
        command.undo();
        QCOMPARE(m_node->sfFloat.getValue(), 2.0F);
    }

private:
    NxRef<NxFieldGallery> m_node;
};

QTEST_APPLESS_MAIN(TestOrvSFSetValueCommand)
#include "tst_OrvSFSetValueCommand.moc"
