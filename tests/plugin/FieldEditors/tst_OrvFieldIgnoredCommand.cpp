#include "FieldEditors/OrvFieldIgnoredCommand.h"
#include "plugin/ToolHarness.h"

class tst_OrvFieldIgnoredCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void undoSetsTheOppositeWhateverTheFlagWas_data();
    void undoSetsTheOppositeWhateverTheFlagWas();
    void listsTakeItToo();

private:
    NxRef<NxFieldGallery> m_node;
};

void tst_OrvFieldIgnoredCommand::init()
{
    m_node = new NxFieldGallery;
}

void tst_OrvFieldIgnoredCommand::undoSetsTheOppositeWhateverTheFlagWas_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("ignored");
    QTest::newRow("set from cleared") << false << true;
    QTest::newRow("set from set") << true << true;
    QTest::newRow("clear from cleared") << false << false;
    QTest::newRow("clear from set") << true << false;
}

void tst_OrvFieldIgnoredCommand::undoSetsTheOppositeWhateverTheFlagWas()
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

void tst_OrvFieldIgnoredCommand::listsTakeItToo()
{
    OrvFieldIgnoredCommand command(&m_node->mfFloat, true);
    command.execute();
    QVERIFY(m_node->mfFloat.isIgnored());
}

QTEST_APPLESS_MAIN(tst_OrvFieldIgnoredCommand)
#include "tst_OrvFieldIgnoredCommand.moc"
