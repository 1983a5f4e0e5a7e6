#include "FieldEditors/OrvFieldIgnoredCommand.h"
#include "plugin/ToolHarness.h"

class TestOrvFieldIgnoredCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_node = new NxFieldGallery; }

    void undoSetsTheOppositeWhateverTheFlagWas_data()
    {
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("ignored");
        QTest::newRow("set from cleared") << false << true;
        QTest::newRow("set from set") << true << true;
        QTest::newRow("clear from cleared") << false << false;
        QTest::newRow("clear from set") << true << false;
    }

    void undoSetsTheOppositeWhateverTheFlagWas()
    {
        QFETCH(const bool, before);
        QFETCH(const bool, ignored);
        NxField& field = m_node->sfFloat;
        field.setIgnored(before ? 1 : 0);
        OrvFieldIgnoredCommand command(&field, ignored);
        QCOMPARE(field.isIgnored(), before);
        command.execute();
        QCOMPARE(field.isIgnored(), ignored);
        command.undo();
        QCOMPARE(field.isIgnored(), !ignored);
        command.redo();
        QCOMPARE(field.isIgnored(), ignored);
    }

    void listsTakeItToo()
    {
        OrvFieldIgnoredCommand command(&m_node->mfFloat, true);
        command.execute();
        QVERIFY(m_node->mfFloat.isIgnored());
    }

private:
    NxRef<NxFieldGallery> m_node;
};

QTEST_APPLESS_MAIN(TestOrvFieldIgnoredCommand)
#include "tst_OrvFieldIgnoredCommand.moc"
