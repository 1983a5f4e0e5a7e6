#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "plugin/EditorHarness.h"
#include "plugin/WriteCounter.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>

#include <memory>

namespace {

QStringList itemsOf(const QComboBox* combo)
{
    QStringList items;
    for (int index = 0; index < combo->count(); ++index)
        items << combo->itemText(index);
    return items;
}

/// Opens the list and takes an item with the keys.
void pick(QComboBox* combo, int index)
{
    QTest::keyClick(combo, Qt::Key_F4);
    QTest::keyClick(combo->view(), Qt::Key_Home);
    for (int step = 0; step < index; ++step)
        QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

const QStringList qualities{
    QStringLiteral("LOW"), QStringLiteral("MEDIUM"), QStringLiteral("HIGH"), QStringLiteral("ULTRA")};

} // namespace

class TestDvSFEnumWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void comboBoxFillsTheEditArea()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor);
        QVERIFY(!comboOf(run)->isEditable());
        const auto* area = run.find<QFrame>("m_editionFrame");
        QCOMPARE(comboOf(run)->parentWidget(), area);
        const auto* layout = qobject_cast<QHBoxLayout*>(area->layout());
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->stretch(0), 1);
    }

    void namesAreOfferedInTheOrderOfTheField()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        QCOMPARE(itemsOf(comboOf(run)), qualities);
        for (int index = 0; index < comboOf(run)->count(); ++index) {
            QVERIFY(!comboOf(run)->itemData(index).isValid());
            QVERIFY(comboOf(run)->itemIcon(index).isNull());
        }
    }

    void namesAreReadAsLatin1()
    {
        const NxEnumeration names{{"plain", 0}, {"caf\xE9", 1}};
        NxSFEnum accented(nullptr, "accented", names);
        DvSFEnumWidget editor;
        const EditorRun run(editor, accented);
        QCOMPARE(comboOf(run)->itemText(1), QString::fromUtf8("caf\xC3\xA9"));
        pick(comboOf(run), 1);
        QCOMPARE(accented.getValue(), 1);
    }

    void newFieldReplacesTheNames()
    {
        const NxEnumeration names{{"ON", 1}, {"OFF", 0}};
        NxSFEnum other(nullptr, "other", names);
        DvSFEnumWidget editor;
        EditorRun run(editor, field());
        run.select(&other);
        QCOMPARE(itemsOf(comboOf(run)), QStringList({QStringLiteral("ON"), QStringLiteral("OFF")}));
        QCOMPARE(comboOf(run)->currentText(), QStringLiteral("OFF"));
        QCOMPARE(pushed(), 0);
    }

    void valueIsShownWithoutACommand()
    {
        field().setValue(NxFieldGallery::ULTRA);
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        QCOMPARE(comboOf(run)->currentIndex(), 3);
        QCOMPARE(pushed(), 0);
    }

    void pickedItemIsWrittenAndPushedOnce()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        pick(comboOf(run), 3);
        QCOMPARE(field().getValue(), int{NxFieldGallery::ULTRA});
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
        ToolHarness::pump();
        QCOMPARE(comboOf(run)->currentText(), QStringLiteral("ULTRA"));
        QCOMPARE(pushed(), 1);
    }

    void pickingTheCurrentItemWritesAndPushes()
    {
        field().setValue(NxFieldGallery::HIGH);
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        pick(comboOf(run), 2);
        QCOMPARE(field().getValue(), int{NxFieldGallery::HIGH});
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
    }

    void keyWritesLikeAPick()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        QTest::keyClick(comboOf(run), Qt::Key_Down);
        QCOMPARE(field().getValue(), int{NxFieldGallery::MEDIUM});
        QCOMPARE(pushed(), 1);
    }

    void undoKeepsTheValue()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        pick(comboOf(run), 2);
        m_tool->services.undo();
        QCOMPARE(field().getValue(), int{NxFieldGallery::HIGH});
        m_tool->services.redo();
        QCOMPARE(field().getValue(), int{NxFieldGallery::HIGH});
    }

    void unnamedValueTakesTheCurrentItemUntilTheNextField()
    {
        field().setValue(NxFieldGallery::MEDIUM);
        DvSFEnumWidget editor;
        EditorRun run(editor, field());
        field().setValue(77);
        ToolHarness::pump();
        QStringList renamed = qualities;
        renamed[1] = ToolHarness::textOf(field());
        QVERIFY(!qualities.contains(renamed.at(1)));
        QCOMPARE(itemsOf(comboOf(run)), renamed);
        QCOMPARE(comboOf(run)->currentIndex(), 1);

        field().setValue(NxFieldGallery::ULTRA); // the other names are still there
        ToolHarness::pump();
        QCOMPARE(comboOf(run)->currentIndex(), 3);
        QCOMPARE(itemsOf(comboOf(run)), renamed);
        run.select(&field());
        QCOMPARE(itemsOf(comboOf(run)), qualities);
        QCOMPARE(pushed(), 0);
    }

    void pickingAnUnnamedValueKeepsItAndPushes()
    {
        field().setValue(77);
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        pick(comboOf(run), 0);
        QCOMPARE(field().getValue(), 77);
        QCOMPARE(pushed(), 1);
    }

    void outsideChangeIsFollowedWithoutACommand()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        field().setValue(NxFieldGallery::HIGH);
        const WriteCounter counter(field());
        ToolHarness::pump();
        QCOMPARE(comboOf(run)->currentText(), QStringLiteral("HIGH"));
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void changeWhileIdleIsReadAtTheNextActivation()
    {
        DvSFEnumWidget editor;
        EditorRun run(editor, field());
        editor.deactivate();
        field().setValue(NxFieldGallery::HIGH);
        ToolHarness::pump();
        QCOMPARE(comboOf(run)->currentText(), QStringLiteral("LOW"));
        run.select(&field());
        QCOMPARE(comboOf(run)->currentText(), QStringLiteral("HIGH"));
        QCOMPARE(pushed(), 0);
    }

    void fieldWithoutNamesGivesAnEmptyList()
    {
        const NxEnumeration none{};
        NxSFEnum nameless(nullptr, "nameless", none, 3);
        DvSFEnumWidget editor;
        const EditorRun run(editor, nameless);
        QCOMPARE(comboOf(run)->count(), 0);
        editor.applyChanges();
        QCOMPARE(nameless.getValue(), 3);
        QCOMPARE(pushed(), 1);
    }

    void nullFieldWritesNothing()
    {
        DvSFEnumWidget editor;
        const EditorRun run(editor, field());
        editor.setField(nullptr);
        QCOMPARE(comboOf(run)->count(), 0);
        editor.updateFromField();
        editor.applyChanges();
        QTest::keyClick(comboOf(run), Qt::Key_Down);
        QCOMPARE(field().getValue(), int{NxFieldGallery::LOW});
        QCOMPARE(pushed(), 0);
    }

private:
    NxSFEnum& field() { return m_tool->node->sfEnum; }
    int pushed() const { return m_tool->services.pushed; }
    static QComboBox* comboOf(const EditorRun& run) { return run.find<QComboBox>("comboBox"); }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFEnumWidget)
#include "tst_DvSFEnumWidget.moc"
