#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "VirtualSlot.h"
#include "plugin/EditorHarness.h"
#include "plugin/WriteCounter.h"

#include <QCheckBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace {

/// Writes down the names whose values are asked for.
class AskedMask final : public NxSFBitMask {
public:
    using NxSFBitMask::NxSFBitMask;
    bool enumValueByName(const VbName& name, int& value) const override
    {
        asked << QString::fromLatin1(name.getString());
        return NxSFBitMask::enumValueByName(name, value);
    }

    mutable QStringList asked;
};

QList<QCheckBox*> boxesOf(const EditorRun& run)
{
    return run.find<QFrame>("m_editionFrame")->findChildren<QCheckBox*>();
}

QStringList namesOf(const EditorRun& run)
{
    QStringList names;
    for (const QCheckBox* const box : boxesOf(run))
        names << box->text();
    return names;
}

QStringList checkedNamesOf(const EditorRun& run)
{
    QStringList names;
    for (const QCheckBox* const box : boxesOf(run)) {
        if (box->isChecked())
            names << box->text();
    }
    return names;
}

void click(const EditorRun& run, int index)
{
    QCheckBox* const box = boxesOf(run).at(index);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

} // namespace

class TestDvSFBitMaskWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void slotStandsBehindTheSkeletons()
    {
        const QMetaObject& meta = DvSFBitMaskWidget::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("setBitMaskValue()"));
        QCOMPARE(
            virtualSlot(&DvSFBitMaskWidget::setBitMaskValue), virtualSlot(&DvSFieldWidget::setDefaultFieldValue) + 1);
    }

    void boxesStandInAColumnInTheMiddle()
    {
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        const auto* area = run.find<QFrame>("m_editionFrame");
        QCOMPARE(area->layout()->count(), 1);
        auto* const column = qobject_cast<QVBoxLayout*>(area->layout()->itemAt(0)->layout());
        QVERIFY(column != nullptr);
        QCOMPARE(column->objectName(), QString());
        QCOMPARE(column->count(), 5);
        for (int index = 0; index < column->count(); ++index) {
            QCOMPARE(column->itemAt(index)->widget(), boxesOf(run).at(index));
            QCOMPARE(column->stretch(index), 0);
            QVERIFY(boxesOf(run).at(index)->isVisible());
        }
        QLayout* const row = editor.getFrame()->layout();
        for (QLayoutItem* const item : {row->itemAt(1), row->itemAt(2)->layout()->itemAt(1)}) {
            QVERIFY(item->spacerItem() != nullptr);
            QCOMPARE(item->spacerItem()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
        }
    }

    void boxesShowTheBitsWithoutACommand()
    {
        field().setValue(NxFieldGallery::PICKABLE | NxFieldGallery::HIGHLIGHTED);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        QCOMPARE(namesOf(run),
            QStringList({QStringLiteral("VISIBLE"), QStringLiteral("PICKABLE"), QStringLiteral("CASTS_SHADOW"),
                QStringLiteral("LOCKED"), QStringLiteral("HIGHLIGHTED")}));
        QCOMPARE(checkedNamesOf(run), QStringList({QStringLiteral("PICKABLE"), QStringLiteral("HIGHLIGHTED")}));
        QCOMPARE(pushed(), 0);
    }

    void nameOfZeroGetsNoBox()
    {
        const NxEnumeration names{{"NONE", 0}, {"FIRST", 1}, {"SECOND", 2}};
        NxSFBitMask mask(nullptr, "mask", names, 2);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, mask);
        QCOMPARE(namesOf(run), QStringList({QStringLiteral("FIRST"), QStringLiteral("SECOND")}));
        QCOMPARE(checkedNamesOf(run), QStringList({QStringLiteral("SECOND")}));
    }

    void nameOfSeveralBitsIsCheckedByAnyOfThem()
    {
        const NxEnumeration names{{"ONE", 1}, {"ALL", 7}, {"HIGH", 24}};
        NxSFBitMask mask(nullptr, "mask", names, 4);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, mask);
        QCOMPARE(checkedNamesOf(run), QStringList({QStringLiteral("ALL")}));
        click(run, 2);
        QCOMPARE(mask.getValue(), 7 | 24);
    }

    void namesAreReadAsLatin1()
    {
        const NxEnumeration names{{"caf\xE9", 1}};
        NxSFBitMask mask(nullptr, "mask", names);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, mask);
        QCOMPARE(namesOf(run), QStringList({QString::fromUtf8("caf\xC3\xA9")}));
        click(run, 0);
        QCOMPARE(mask.getValue(), 1);
    }

    void clickWritesWithoutACommand()
    {
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        click(run, 0);
        QCOMPARE(field().getValue(), int{NxFieldGallery::VISIBLE});
        QCOMPARE(counter.writes, 1);
        click(run, 4);
        QCOMPARE(field().getValue(), NxFieldGallery::VISIBLE | NxFieldGallery::HIGHLIGHTED);
        ToolHarness::pump();
        click(run, 0);
        QCOMPARE(field().getValue(), int{NxFieldGallery::HIGHLIGHTED});
        QCOMPARE(counter.writes, 3);
        QCOMPARE(pushed(), 0);
        QVERIFY(!m_tool->services.canUndo());
    }

    void clickClearsBitsWithoutABox()
    {
        field().setValue(NxFieldGallery::VISIBLE | 64);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        click(run, 1);
        QCOMPARE(field().getValue(), NxFieldGallery::VISIBLE | NxFieldGallery::PICKABLE);
    }

    void clickAsksForTheValuesFromTheLastNameOn()
    {
        const NxEnumeration names{{"A", 1}, {"B", 2}, {"C", 4}};
        AskedMask mask(nullptr, "mask", names);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, mask);
        mask.asked.clear();
        click(run, 1);
        QCOMPARE(mask.asked, QStringList({QStringLiteral("C"), QStringLiteral("B"), QStringLiteral("A")}));
        QCOMPARE(mask.getValue(), 2);
    }

    void spaceKeyWritesLikeAClick()
    {
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        QTest::keyClick(boxesOf(run).at(3), Qt::Key_Space);
        QCOMPARE(field().getValue(), int{NxFieldGallery::LOCKED});
        QCOMPARE(pushed(), 0);
    }

    void boxesDontFollowTheField()
    {
        DvSFBitMaskWidget editor;
        EditorRun run(editor, field());
        field().setValue(NxFieldGallery::LOCKED);
        field().setIgnored(1);
        ToolHarness::pump();
        QCOMPARE(checkedNamesOf(run), QStringList());
        QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked());
        run.select(&field());
        QCOMPARE(checkedNamesOf(run), QStringList({QStringLiteral("LOCKED")}));
        QCOMPARE(pushed(), 0);
    }

    void defaultButtonChangesTheFieldAndNotTheBoxes()
    {
        field().setValue(NxFieldGallery::LOCKED);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        ToolHarness::pump();
        QVERIFY(field().isDefault());
        QCOMPARE(checkedNamesOf(run), QStringList({QStringLiteral("LOCKED")}));
        QCOMPARE(pushed(), 1);
        m_tool->services.undo();
        QVERIFY(field().isDefault());
    }

    void newFieldReplacesTheBoxes()
    {
        const NxEnumeration names{{"ONE", 1}, {"TWO", 2}};
        NxSFBitMask mask(nullptr, "mask", names, 1);
        DvSFBitMaskWidget editor;
        EditorRun run(editor, field());
        run.select(&mask);
        QCOMPARE(namesOf(run), QStringList({QStringLiteral("ONE"), QStringLiteral("TWO")}));
        QVERIFY(boxesOf(run).constFirst()->isVisible());
        click(run, 1);
        QCOMPARE(mask.getValue(), 3);
        QCOMPARE(field().getValue(), 0);
        run.select(&field());
        QCOMPARE(boxesOf(run).size(), 5);
    }

    void fieldWithoutBitsGetsNoBoxes()
    {
        const NxEnumeration names{{"NONE", 0}};
        NxSFBitMask mask(nullptr, "mask", names);
        DvSFBitMaskWidget editor;
        EditorRun run(editor, mask);
        QCOMPARE(boxesOf(run).size(), 0);
        run.select(&mask);
        run.select(&field());
        QCOMPARE(boxesOf(run).size(), 5);
        click(run, 1);
        QCOMPARE(field().getValue(), int{NxFieldGallery::PICKABLE});
    }

    void applyingWritesNothing()
    {
        field().setValue(64);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        const WriteCounter counter(field());
        editor.applyChanges();
        editor.setCommandValue();
        editor.setFocusLeaveEvent();
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void nullFieldHasNoBoxes()
    {
        field().setValue(NxFieldGallery::LOCKED);
        DvSFBitMaskWidget editor;
        const EditorRun run(editor, field());
        editor.setField(nullptr);
        editor.updateFromField();
        QCOMPARE(boxesOf(run).size(), 0);
        editor.setBitMaskValue();
        QCOMPARE(field().getValue(), int{NxFieldGallery::LOCKED});
        QCOMPARE(pushed(), 0);
    }

    void unloadRemovesTheBoxes()
    {
        DvSFBitMaskWidget editor;
        {
            const EditorRun run(editor, field());
            QCOMPARE(boxesOf(run).size(), 5);
        }
        QVERIFY(editor.getFrame()->findChildren<QCheckBox*>().isEmpty());
    }

private:
    NxSFBitMask& field() { return m_tool->node->sfBitMask; }
    int pushed() const { return m_tool->services.pushed; }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestDvSFBitMaskWidget)
#include "tst_DvSFBitMaskWidget.moc"
