#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFLineWidget.h"
#include "VirtualSlot.h"
#include "plugin/ListRun.h"
#include "plugin/PlainListEditor.h"
#include "plugin/WriteCounter.h"

#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/values/VbVec.h"

#include <QLabel>
#include <QMetaMethod>

#include <limits>
#include <optional>

#include <sys/resource.h>

class TestDvMFieldWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorsNameTheEditorAndMakeTheTable()
    {
        const ToolHarness tool;
        const PlainListEditor editor;
        QCOMPARE(editor.objectName(), QStringLiteral("DvMFieldWidget"));
        QCOMPARE(PlainListEditor("other").objectName(), QStringLiteral("other"));
        QCOMPARE(DvMFLineWidget().objectName(), QStringLiteral("DvMFLineWidget"));
        auto* const table = editor.getFrame()->findChild<DvMFieldTable*>(QStringLiteral("m_table"));
        QVERIFY(table != nullptr);
        QCOMPARE(table->parentWidget(), editor.getFrame());
        QVERIFY(editor.field() == nullptr);
    }

    void operationsAndSlotsHaveTheirOrder()
    {
        const auto first = virtualSlot(&DvMFieldWidget::applyChanges);
        QCOMPARE(virtualSlot(&DvMFieldWidget::getCellValue), first + 1);
        QCOMPARE(virtualSlot(&DvMFieldWidget::getCellAlignment), first + 2);
        QCOMPARE(virtualSlot(&DvMFieldWidget::prepareForField), first + 3);
        QCOMPARE(virtualSlot(&DvMFieldWidget::languageChange), first + 4);
        QCOMPARE(virtualSlot(&DvMFieldWidget::setDefaultFieldValue), first + 5);
        const QMetaObject& meta = DvMFieldWidget::staticMetaObject;
        QList<QByteArray> slotNames;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            slotNames << meta.method(i).methodSignature();
        QCOMPARE(
            slotNames, QList<QByteArray>({"languageChange()", "ignoreButtonStateChanged()", "setDefaultFieldValue()"}));
    }

    void skeletonItselfDoesNothing()
    {
        ToolHarness tool;
        DvMFieldWidget editor(nullptr);
        tool.node->mfInt32.set("[1, 2]");
        WriteCounter counter(tool.node->mfInt32);
        QVERIFY(!editor.prepareForField(&tool.node->mfInt32));
        QCOMPARE(editor.getCellValue(0, 0), QString());
        QCOMPARE(editor.getCellAlignment(), static_cast<int>(Qt::AlignCenter));
        editor.swapRows(0, 1);
        editor.reservedRowOperation();
        editor.setCellValue(0, 0, QStringLiteral("5"));
        editor.setRowColor(0, VbVec4f());
        editor.applyChanges();
        QCOMPARE(counter.writes, 0);
        QCOMPARE(tool.services.pushed, 0);
    }

    void controlsAreWired()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2, 3]");
        run.show(run.node->mfInt32);
        run.click(1);
        run.press("m_addButton");
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[1, 2, 0, 3]"));
        run.click(0);
        run.press("m_deleteButton");
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[2, 0, 3]"));
        run.box->setValue(3);
        run.press("m_upButton");
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[2, 3, 0]"));
        run.box->setValue(1);
        run.press("m_downButton");
        QCOMPARE(run.textOf(run.node->mfInt32), QStringLiteral("[3, 2, 0]"));
    }

    void emptyFieldShowsNoRows()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[]");
        QCOMPARE(run.run.find<QLabel>("m_labelNumElement")->text(), QString());
        run.show(run.node->mfInt32);
        QCOMPARE(
            run.run.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("<p align=\"center\">0 elements</p>"));
        QCOMPARE(run.box->minimum(), 0);
        QCOMPARE(run.box->maximum(), 0);
        QCOMPARE(run.box->value(), 0);
        QCOMPARE(run.table->rowCount(), 0);
    }

    void oneRowKeepsThePlural()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[7]");
        run.show(run.node->mfInt32);
        QCOMPARE(
            run.run.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("<p align=\"center\">1 elements</p>"));
        QCOMPARE(run.box->minimum(), 1);
        QCOMPARE(run.box->maximum(), 1);
        QCOMPARE(run.box->value(), 1);
    }

    void refreshFollowsTheField()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[7]");
        run.show(run.node->mfInt32);
        run.node->mfInt32.set("[1, 2, 3, 4]");
        run.node->mfInt32.setIgnored(1);
        QCOMPARE(run.table->rowCount(), 1); // not inside the call
        run.settle();
        QCOMPARE(run.table->rowCount(), 4);
        QCOMPARE(run.box->maximum(), 4);
        QVERIFY(run.run.find<QPushButton>("m_ignoreButton")->isChecked());
        run.node->mfInt32.set("[]");
        run.settle();
        QCOMPARE(run.table->rowCount(), 0);
        QCOMPARE(run.box->minimum(), 0);
        QCOMPARE(run.box->maximum(), 0);
        QCOMPARE(run.services.pushed, 0);
    }

    void refreshPaintsTheCells()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[11111, 2]");
        run.show(run.node->mfInt32);
        const QImage shown = run.run.window.grab().toImage();
        run.node->mfInt32.set("[33333, 2]");
        int paints = 0;
        class Painted final : public QObject {
        public:
            explicit Painted(int& count)
                : m_count(count)
            {
            }
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                m_count += event->type() == QEvent::Paint ? 1 : 0;
                return false;
            }

        private:
            int& m_count;
        } painted(paints);
        run.table->viewport()->installEventFilter(&painted);
        run.settle();
        QVERIFY(paints > 0);
        run.table->viewport()->removeEventFilter(&painted);
        QVERIFY(run.run.window.grab().toImage() != shown);
    }

    void refreshThatIsHeldBackChangesNothing()
    {
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[7]");
        run.show(run.node->mfInt32);
        run.editor.setRefreshEnabled(false);
        run.node->mfInt32.set("[1, 2, 3, 4]");
        run.node->mfInt32.setIgnored(1);
        run.settle();
        QCOMPARE(run.table->rowCount(), 1);
        QVERIFY(!run.run.find<QPushButton>("m_ignoreButton")->isChecked());
        QCOMPARE(
            run.run.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("<p align=\"center\">1 elements</p>"));
        run.editor.setRefreshEnabled(true);
        QCOMPARE(run.table->rowCount(), 1);
        run.node->mfInt32.set1(0, "5");
        run.settle();
        QCOMPARE(run.table->rowCount(), 4);
    }

    void refusedFieldKeepsTheFormerOneAndIsFollowed()
    {
        ListRun<PlainListEditor> run;
        run.show(run.node->mfInt32);
        run.editor.accepts = false;
        run.editor.setField(&run.node->mfFloat);
        QCOMPARE(run.editor.field(), &run.node->mfInt32);
        run.table->setNumRows(0);
        run.node->mfInt32.set("[1, 2]"); // not followed any more
        run.settle();
        QCOMPARE(run.table->rowCount(), 0);
        run.node->mfFloat.set("[1, 2, 3]");
        run.settle();
        QCOMPARE(run.table->rowCount(), 2);
    }

    void ignoreButtonWritesTheFlagAndPushes()
    {
        ListRun<DvMFInt32Widget> run;
        run.services.selectField(&run.node->mfInt32);
        run.show(run.node->mfInt32);
        run.press("m_ignoreButton");
        QVERIFY(run.node->mfInt32.isIgnored());
        QCOMPARE(run.services.pushed, 1);
        run.services.undo();
        run.settle();
        QVERIFY(!run.node->mfInt32.isIgnored());
        QVERIFY(!run.run.find<QPushButton>("m_ignoreButton")->isChecked());
    }

    void defaultButtonWritesTheDefaultAndPushes()
    {
        ListRun<DvMFInt32Widget> run;
        const QString plain = run.textOf(run.node->mfInt32);
        run.node->mfInt32.set("[1, 2, 3]");
        run.show(run.node->mfInt32);
        run.press("m_defaultButton");
        QCOMPARE(run.textOf(run.node->mfInt32), plain);
        QCOMPARE(run.services.pushed, 1);
        QCOMPARE(run.table->rowCount(), run.node->mfInt32.getNum());
    }

    void fieldThatDiesLeavesAnEditorThatDoesNothing()
    {
        ListRun<DvMFInt32Widget> run;
        std::optional<NxMFInt32> list(std::in_place, nullptr, "list");
        list->set("[1, 2, 3]");
        run.show(*list);
        run.doubleClick(1);
        QVERIFY(run.editorIn(1) != nullptr);
        list.reset();
        run.settle();
        QVERIFY(run.editor.field() == nullptr);
        QVERIFY(!run.run.window.grab().isNull());
        QTest::keyClicks(run.lineIn(1), QStringLiteral("5"));
        QTest::keyClick(run.lineIn(1), Qt::Key_Return);
        run.settle();
        run.click(2);
        for (const char* const button :
            {"m_addButton", "m_deleteButton", "m_upButton", "m_downButton", "m_defaultButton", "m_ignoreButton"})
            run.press(button);
        run.doubleClick(2);
        QCOMPARE(run.services.pushed, 0);
    }

    void rowsThatDoNotFitInMemoryAreReported()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("the sanitizer ends the program when an allocation fails");
#endif
        ListRun<DvMFInt32Widget> run;
        run.node->mfInt32.set("[1, 2, 3]");
        run.show(run.node->mfInt32);
        int errors = 0;
        const auto formerCallback = NxMemoryError::getHandlerCallback();
        void* const formerData = NxMemoryError::getHandlerData();
        NxMemoryError::setHandlerCallback([](const NxError*, void* data) { ++*static_cast<int*>(data); }, &errors);
        rlimit former{};
        getrlimit(RLIMIT_AS, &former);
        rlimit tight = former;
        tight.rlim_cur = std::size_t{1} << 32U;
        setrlimit(RLIMIT_AS, &tight);
        run.table->setNumRows(std::numeric_limits<int>::max());
        setrlimit(RLIMIT_AS, &former);
        NxMemoryError::setHandlerCallback(formerCallback, formerData);
        QCOMPARE(errors, 1);
        QCOMPARE(run.table->rowCount(), 3);
        QCOMPARE(run.box->maximum(), 3);
    }

    void revisionChangesWithTheValueAtOnce()
    {
        ListRun<PlainListEditor> run;
        const unsigned none = run.editor.revision();
        run.show(run.node->mfInt32);
        const unsigned shown = run.editor.revision();
        QVERIFY(shown != none);
        run.settle();
        QCOMPARE(run.editor.revision(), shown);
        run.node->mfInt32.set("[1, 2]");
        QVERIFY(run.editor.revision() != shown);
    }
};

QTEST_MAIN(TestDvMFieldWidget)
#include "tst_DvMFieldWidget.moc"
