#include "EditorHarness.h"
#include "FieldEditors/SFWidgets/DvSFieldWidget.h"
#include "VirtualSlot.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSlider>

#include <memory>

namespace {

/// The least that a concrete editor adds to the skeleton.
class PlainEditor : public DvSFieldWidget {
public:
    explicit PlainEditor(const char* name = "PlainEditor")
        : DvSFieldWidget(name)
    {
    }
    explicit PlainEditor(int sliderKind, const char* name = nullptr)
        : DvSFieldWidget(sliderKind, name)
    {
    }

    using DvSFieldWidget::setFieldTypeLabel;

    void load() override
    {
        setFieldTypeLabel(QStringLiteral("SFPlain"));
        DvSFieldWidget::load();
    }
    [[nodiscard]] bool edited() override
    {
        ++askedForEdits;
        return hasEdits;
    }
    void applyChanges() override { ++applied; }

    [[nodiscard]] NxField* field() const { return m_field; }
    [[nodiscard]] QFrame* editionFrame() const { return m_editionFrame; }
    [[nodiscard]] QHBoxLayout* editLayout() const { return m_editLayout; }

    bool hasEdits = false;
    int askedForEdits = 0;
    int applied = 0;
};

QMargins allMargins(int margin)
{
    return {margin, margin, margin, margin};
}

} // namespace

class tst_DvSFieldWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void objectNameIsTheGivenOne();
    void objectNameWithoutANameDependsOnTheConstructor();
    void sliderKindsMakeTheEditArea_data();
    void sliderKindsMakeTheEditArea();
    void sliderKeepsItsOwnLayout();
    void typeLabelIsSetOnce();
    void frameIsAPlainBox();
    void layoutsHaveTheirNamesMarginsAndSpacings();
    void labelHasItsLook();
    void editAreaIsAPlainFrame();
    void itemsStandInTheirOrder();
    void buttonsHaveTheirLook_data();
    void buttonsHaveTheirLook();
    void ignoreButtonShowsTheFlag();
    void flagSetElsewhereMovesTheButtonWithoutACommand();
    void ignoreButtonSetsTheFlagAndPushes();
    void defaultButtonRestoresTheDefaultAndPushes();
    void defaultButtonPushesAlsoAtTheDefault();
    void undoOfTheDefaultLeavesTheDefault();
    void buttonsWithoutAFieldDoNothing();
    void defaultButtonWithoutAContainerDoesNothing();
    void leavingWritesOnlyWhatWasTyped();
    void commandValueIsAlwaysWritten();
    void slotsStandInTheirOrder();
    void virtualOperationsStandInTheirOrder();
    void operationsOfListsAreEmpty();
    void fieldStaysAfterDeactivation();

private:
    std::unique_ptr<EditorHarness> m_tool;
};

void tst_DvSFieldWidget::init()
{
    m_tool = std::make_unique<EditorHarness>();
}

void tst_DvSFieldWidget::cleanup()
{
    m_tool.reset();
    QVERIFY(EditorHarness::noWidgetIsLeft());
}

void tst_DvSFieldWidget::objectNameIsTheGivenOne()
{
    QCOMPARE(PlainEditor("Mine").objectName(), QStringLiteral("Mine"));
    QCOMPARE(PlainEditor(1, "Mine").objectName(), QStringLiteral("Mine"));
}

void tst_DvSFieldWidget::objectNameWithoutANameDependsOnTheConstructor()
{
    QCOMPARE(PlainEditor(nullptr).objectName(), QString());
    QCOMPARE(PlainEditor(1, nullptr).objectName(), QStringLiteral("DvSFieldWidget"));
}

void tst_DvSFieldWidget::sliderKindsMakeTheEditArea_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("slider");
    QTest::newRow("below") << 0 << false;
    for (int kind = 1; kind <= 6; ++kind)
        QTest::addRow("%d", kind) << kind << true;
    QTest::newRow("above") << 7 << false;
    QTest::newRow("negative") << -1 << false;
}

void tst_DvSFieldWidget::sliderKindsMakeTheEditArea()
{
    QFETCH(const int, kind);
    QFETCH(const bool, slider);
    PlainEditor editor(kind);
    QCOMPARE(editor.editionFrame() != nullptr, slider);
    editor.load();
    QCOMPARE(editor.editionFrame()->findChild<QSlider*>() != nullptr, slider);
    QCOMPARE(editor.editionFrame()->parentWidget(), editor.getFrame());
    editor.unload();
}

void tst_DvSFieldWidget::sliderKeepsItsOwnLayout()
{
    PlainEditor editor(1);
    QLayout* const own = editor.editionFrame()->layout();
    const EditorRun run(editor);
    QCOMPARE(editor.editLayout(), own);
    QCOMPARE(editor.editionFrame()->objectName(), QStringLiteral("DvSliderFrame"));
    QCOMPARE(editor.editionFrame()->frameShape(), QFrame::NoFrame);
    QCOMPARE(own->objectName(), QStringLiteral("orvaneslider"));
    QCOMPARE(own->contentsMargins(), allMargins(2));
    QCOMPARE(own->spacing(), 4);
    QVERIFY(run.find<QFrame>("m_editionFrame") == nullptr);
}

void tst_DvSFieldWidget::typeLabelIsSetOnce()
{
    PlainEditor editor;
    editor.setFieldTypeLabel(QStringLiteral("SFFirst"));
    editor.setFieldTypeLabel(QStringLiteral("SFSecond"));
    QCOMPARE(editor.getFrame()->findChild<QLabel*>()->text(), QStringLiteral("<p align=\"center\">SFFirst</p>"));
}

void tst_DvSFieldWidget::frameIsAPlainBox()
{
    PlainEditor editor;
    const EditorRun run(editor);
    QCOMPARE(editor.getFrame()->frameShape(), QFrame::Box);
    QCOMPARE(editor.getFrame()->frameShadow(), QFrame::Plain);
    QCOMPARE(editor.getFrame()->lineWidth(), 0);
}

void tst_DvSFieldWidget::layoutsHaveTheirNamesMarginsAndSpacings()
{
    PlainEditor editor;
    const EditorRun run(editor);
    QLayout* const main = editor.getFrame()->layout();
    QCOMPARE(main->objectName(), QStringLiteral("SFieldLayout"));
    QCOMPARE(main->contentsMargins(), allMargins(4));
    QCOMPARE(main->spacing(), 6);

    auto* const area = main->findChild<QHBoxLayout*>(QStringLiteral("SFieldEditionAreaLayout"));
    QVERIFY(area != nullptr);
    QCOMPARE(area->contentsMargins(), allMargins(0));
    QCOMPARE(area->spacing(), 2);
    QCOMPARE(area->sizeConstraint(), QLayout::SetMinimumSize);

    auto* const edit = run.find<QHBoxLayout>("editLayout");
    QVERIFY(edit != nullptr);
    QCOMPARE(edit, editor.editLayout());
    QCOMPARE(edit->contentsMargins(), allMargins(0));
    QCOMPARE(edit->spacing(), 0);

    // The strip of buttons bears the name of the main layout.
    auto* const buttons = area->findChild<QHBoxLayout*>(QStringLiteral("SFieldLayout"));
    QVERIFY(buttons != nullptr);
    QCOMPARE(buttons->contentsMargins(), allMargins(2));
    QCOMPARE(buttons->spacing(), 0);
    QCOMPARE(run.find<QHBoxLayout>("SFieldLayout"), main);
}

void tst_DvSFieldWidget::labelHasItsLook()
{
    PlainEditor editor;
    const EditorRun run(editor);
    auto* const label = run.find<QLabel>("m_label");
    QVERIFY(label != nullptr);
    QCOMPARE(label->parentWidget(), editor.getFrame());
    QCOMPARE(label->font().pointSize(), 10);
    QCOMPARE(label->font().family(), editor.getFrame()->font().family());
    QCOMPARE(label->frameShape(), QFrame::Box);
    QCOMPARE(label->frameShadow(), QFrame::Plain);
    QCOMPARE(label->lineWidth(), 0);
    QVERIFY(label->hasScaledContents());
}

void tst_DvSFieldWidget::editAreaIsAPlainFrame()
{
    PlainEditor editor;
    const EditorRun run(editor);
    auto* const frame = run.find<QFrame>("m_editionFrame");
    QCOMPARE(frame, editor.editionFrame());
    QCOMPARE(frame->parentWidget(), editor.getFrame());
    QCOMPARE(frame->frameShape(), QFrame::Box);
    QCOMPARE(frame->frameShadow(), QFrame::Plain);
    QCOMPARE(frame->lineWidth(), 0);
}

void tst_DvSFieldWidget::itemsStandInTheirOrder()
{
    PlainEditor editor;
    const EditorRun run(editor);
    auto* const main = qobject_cast<QHBoxLayout*>(editor.getFrame()->layout());
    QCOMPARE(main->count(), 3);
    QCOMPARE(main->itemAt(0)->widget(), run.find<QLabel>("m_label"));
    QVERIFY(main->itemAt(1)->spacerItem() != nullptr);
    auto* const area = qobject_cast<QHBoxLayout*>(main->itemAt(2)->layout());
    QVERIFY(area != nullptr);
    QCOMPARE(area->count(), 3);
    QCOMPARE(area->itemAt(0)->widget(), editor.editionFrame());
    QVERIFY(area->itemAt(1)->spacerItem() != nullptr);
    for (const QHBoxLayout* const layout : {main, area}) {
        QSpacerItem* const spacer = layout->itemAt(1)->spacerItem();
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
        QCOMPARE(layout->stretch(0), 0);
    }
    auto* const buttons = qobject_cast<QHBoxLayout*>(area->itemAt(2)->layout());
    QVERIFY(buttons != nullptr);
    QCOMPARE(buttons->count(), 2);
    QCOMPARE(buttons->itemAt(0)->widget(), run.find<QPushButton>("m_defaultButton"));
    QCOMPARE(buttons->itemAt(1)->widget(), run.find<QPushButton>("m_ignoreButton"));
    QCOMPARE(buttons->stretch(0), 0);
    QCOMPARE(buttons->stretch(1), 0);
}

void tst_DvSFieldWidget::buttonsHaveTheirLook_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<bool>("checkable");
    QTest::newRow("default") << QByteArray("m_defaultButton") << QStringLiteral("Set to default") << false;
    QTest::newRow("ignore") << QByteArray("m_ignoreButton") << QStringLiteral("Ignore this field") << true;
}

void tst_DvSFieldWidget::buttonsHaveTheirLook()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, toolTip);
    QFETCH(const bool, checkable);
    PlainEditor editor;
    const EditorRun run(editor);
    auto* const button = run.find<QPushButton>(name.constData());
    QVERIFY(button != nullptr);
    QCOMPARE(button->parentWidget(), editor.getFrame());
    QCOMPARE(button->maximumSize(), QSize(20, 20));
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), toolTip);
    QCOMPARE(button->isCheckable(), checkable);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->icon().availableSizes(), QList<QSize>({QSize(16, 16)}));
}

void tst_DvSFieldWidget::ignoreButtonShowsTheFlag()
{
    m_tool->node->sfFloat.setIgnored(1);
    PlainEditor editor;
    EditorRun run(editor, m_tool->node->sfFloat);
    QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked());
    run.select(&m_tool->node->sfDouble);
    QVERIFY(!run.find<QPushButton>("m_ignoreButton")->isChecked());
}

void tst_DvSFieldWidget::flagSetElsewhereMovesTheButtonWithoutACommand()
{
    PlainEditor editor;
    const EditorRun run(editor, m_tool->node->sfFloat);
    auto* const button = run.find<QPushButton>("m_ignoreButton");
    m_tool->node->sfFloat.setIgnored(1);
    QVERIFY(!button->isChecked());
    EditorHarness::pump();
    QVERIFY(button->isChecked());
    QCOMPARE(m_tool->services.pushed, 0);
}

void tst_DvSFieldWidget::ignoreButtonSetsTheFlagAndPushes()
{
    NxField& field = m_tool->node->sfFloat;
    PlainEditor editor;
    const EditorRun run(editor, field);
    auto* const button = run.find<QPushButton>("m_ignoreButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(field.isIgnored());
    QCOMPARE(m_tool->services.pushed, 1);
    m_tool->services.undo();
    EditorHarness::pump();
    QVERIFY(!field.isIgnored());
    QVERIFY(!button->isChecked());
    m_tool->services.redo();
    EditorHarness::pump();
    QVERIFY(field.isIgnored());
    QVERIFY(button->isChecked());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!field.isIgnored());
    QCOMPARE(m_tool->services.pushed, 2);
}

void tst_DvSFieldWidget::defaultButtonRestoresTheDefaultAndPushes()
{
    NxField& field = m_tool->node->sfFloat;
    const QString defaultText = EditorHarness::textOf(field);
    QVERIFY(field.set("12.5"));
    PlainEditor editor;
    const EditorRun run(editor, field);
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QCOMPARE(EditorHarness::textOf(field), defaultText);
    QCOMPARE(m_tool->services.pushed, 1);
}

void tst_DvSFieldWidget::defaultButtonPushesAlsoAtTheDefault()
{
    PlainEditor editor;
    const EditorRun run(editor, m_tool->node->sfFloat);
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QCOMPARE(m_tool->services.pushed, 2);
}

void tst_DvSFieldWidget::undoOfTheDefaultLeavesTheDefault()
{
    NxField& field = m_tool->node->sfFloat;
    const QString defaultText = EditorHarness::textOf(field);
    QVERIFY(field.set("12.5"));
    PlainEditor editor;
    const EditorRun run(editor, field);
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QVERIFY(m_tool->services.canUndo());
    m_tool->services.undo();
    QCOMPARE(EditorHarness::textOf(field), defaultText);
}

void tst_DvSFieldWidget::buttonsWithoutAFieldDoNothing()
{
    PlainEditor editor;
    const EditorRun run(editor);
    editor.updateFromField();
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QTest::mouseClick(run.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
    QCOMPARE(m_tool->services.pushed, 0);
}

void tst_DvSFieldWidget::defaultButtonWithoutAContainerDoesNothing()
{
    NxSFFloat field(nullptr, nullptr);
    field.setValue(5);
    PlainEditor editor;
    const EditorRun run(editor, field);
    QTest::mouseClick(run.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QCOMPARE(field.getValue(), 5.0F);
    QCOMPARE(m_tool->services.pushed, 0);
}

void tst_DvSFieldWidget::leavingWritesOnlyWhatWasTyped()
{
    PlainEditor editor;
    editor.setFocusLeaveEvent();
    QCOMPARE(editor.askedForEdits, 1);
    QCOMPARE(editor.applied, 0);
    editor.hasEdits = true;
    editor.setFocusLeaveEvent();
    QCOMPARE(editor.applied, 1);
}

void tst_DvSFieldWidget::commandValueIsAlwaysWritten()
{
    PlainEditor editor;
    editor.setCommandValue();
    QCOMPARE(editor.applied, 1);
    QCOMPARE(editor.askedForEdits, 0);
}

void tst_DvSFieldWidget::slotsStandInTheirOrder()
{
    QStringList slotNames;
    const QMetaObject& meta = DvSFieldWidget::staticMetaObject;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
        slotNames << QString::fromLatin1(meta.method(index).methodSignature());
    }
    QCOMPARE(slotNames,
        QStringList({QStringLiteral("languageChange()"), QStringLiteral("setCommandValue()"),
            QStringLiteral("setFocusLeaveEvent()"), QStringLiteral("ignoreButtonStateChanged()"),
            QStringLiteral("setDefaultFieldValue()"), QStringLiteral("applyChanges()")}));
}

void tst_DvSFieldWidget::virtualOperationsStandInTheirOrder()
{
    const auto last = virtualSlot(&OrvFieldEditors::applyChanges);
    QCOMPARE(virtualSlot(&DvSFieldWidget::edited), last + 1);
    QCOMPARE(virtualSlot(&DvSFieldWidget::languageChange), last + 2);
    QCOMPARE(virtualSlot(&DvSFieldWidget::setCommandValue), last + 3);
    QCOMPARE(virtualSlot(&DvSFieldWidget::setDefaultFieldValue), last + 4);
}

void tst_DvSFieldWidget::operationsOfListsAreEmpty()
{
    NxField& field = m_tool->node->sfColor;
    const QString before = EditorHarness::textOf(field);
    PlainEditor editor;
    const EditorRun run(editor, field);
    editor.setRefreshEnabled(false);
    editor.swapRows(0, 1);
    editor.reservedRowOperation();
    editor.setCellValue(0, 0, QStringLiteral("1 1 1"));
    editor.setRowColor(0, VbVec4f(1, 1, 1, 1));
    editor.DvSFieldWidget::applyChanges();
    QCOMPARE(EditorHarness::textOf(field), before);
    QCOMPARE(m_tool->services.pushed, 0);
    field.setIgnored(1);
    EditorHarness::pump();
    QVERIFY(run.find<QPushButton>("m_ignoreButton")->isChecked()); // the refresh isn't held back
}

void tst_DvSFieldWidget::fieldStaysAfterDeactivation()
{
    PlainEditor editor;
    const EditorRun run(editor, m_tool->node->sfFloat);
    QCOMPARE(editor.field(), &m_tool->node->sfFloat);
    editor.deactivate();
    QCOMPARE(editor.field(), &m_tool->node->sfFloat);
}

QTEST_MAIN(tst_DvSFieldWidget)
#include "tst_DvSFieldWidget.moc"
