#include "FieldEditors/MFWidgets/DvMFColorRGBAWidget.h"
#include "FieldEditors/MFWidgets/DvMFColorTable.h"
#include "FieldEditors/MFWidgets/DvMFColorTableItemDelegate.h"
#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "plugin/ColorDialogDriver.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <QMetaMethod>

class TestDvMFColorTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorNamesTheTable()
    {
        DvMFColorWidget editor;
        const DvMFColorTable table(&editor, nullptr, nullptr);
        QCOMPARE(table.objectName(), QStringLiteral("DvMFieldTable"));
        const DvMFColorTable named(&editor, nullptr, "mine");
        QCOMPARE(named.objectName(), QStringLiteral("mine"));
    }

    void delegateIsItsOwn()
    {
        DvMFColorWidget editor;
        const DvMFColorTable table(&editor, nullptr, nullptr);
        QVERIFY(dynamic_cast<DvMFColorTableItemDelegate*>(table.itemDelegate()) != nullptr);
        QCOMPARE(table.findChildren<DvMFieldTableItemDelegate*>().size(), 1);
    }

    void slotIsTheOnlyMetaMethod()
    {
        const QMetaObject& meta = DvMFColorTable::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("getColorFromEditor(int,int)"));
    }

    void clickOnTheColorOpensTheDialog()
    {
        const RowEditorRun run = colors(QStringLiteral("[0 0 0, 1 0.5 0.25]"));
        const ColorDialogDriver dialog = ColorDialogDriver::cancelling();
        run.clickCell(1, 0);
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(dialog.title, QStringLiteral("color dialog"));
        QCOMPARE(dialog.parent, run.table());
        QCOMPARE(dialog.first, QColor(255, 127, 63));
        QVERIFY(!dialog.showsAlpha);
    }

    void dialogOfOpacityShowsIt()
    {
        const RowEditorRun run = colorsWithOpacity(QStringLiteral("[1 0.5 0.25 0.5]"));
        const ColorDialogDriver dialog = ColorDialogDriver::cancelling();
        run.clickCell(0, 0);
        QCOMPARE(dialog.answered(), 1);
        QVERIFY(dialog.showsAlpha);
        QCOMPARE(dialog.first, QColor(255, 127, 63, 127));
    }

    void clickOnAComponentOpensNothing()
    {
        const RowEditorRun run = colors(QStringLiteral("[0 0 0]"));
        for (int column = 1; column < 4; ++column)
            run.clickCell(0, column);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QCOMPARE(run.table()->currentColumn(), 3);
    }

    void chosenColorIsWritten()
    {
        const RowEditorRun run = colors(QStringLiteral("[0 0 0, 0 0 0]"));
        const ColorDialogDriver dialog = ColorDialogDriver::accepting(QColor(255, 51, 102));
        run.clickCell(1, 0);
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(run.text(), QStringLiteral("[0 0 0, 1 0.2 0.4]"));
        QCOMPARE(run.pushed(), 1);
        QCOMPARE(run.picture().pixelColor(run.cell(1, 0).center()), QColor(255, 51, 102));
    }

    void chosenOpacityIsWritten()
    {
        const RowEditorRun run = colorsWithOpacity(QStringLiteral("[0 0 0 1]"));
        const ColorDialogDriver dialog = ColorDialogDriver::accepting(QColor(255, 51, 102, 204));
        run.clickCell(0, 0);
        QCOMPARE(run.text(), QStringLiteral("[1 0.2 0.4 0.8]"));
        QCOMPARE(run.pushed(), 1);
    }

    void unchangedColorIsRounded()
    {
        const RowEditorRun run = colors(QStringLiteral("[0.5 0 0]"));
        const ColorDialogDriver dialog = ColorDialogDriver::accepting();
        run.clickCell(0, 0);
        QCOMPARE(run.node().mfColor[0][0], static_cast<float>(127 / 255.0));
    }

    void cancellingChangesNothing()
    {
        const RowEditorRun run = colors(QStringLiteral("[0.5 0 0]"));
        const ColorDialogDriver dialog = ColorDialogDriver::cancelling(QColor(1, 2, 3));
        run.clickCell(0, 0);
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(run.text(), QStringLiteral("[0.5 0 0]"));
        QCOMPARE(run.pushed(), 0);
    }

    void colorOutsideTheRangeStartsInvalid()
    {
        const RowEditorRun run = colors(QStringLiteral("[2 0 0]"));
        const ColorDialogDriver dialog = ColorDialogDriver::cancelling();
        run.clickCell(0, 0);
        QCOMPARE(dialog.answered(), 1);
        QCOMPARE(run.text(), QStringLiteral("[2 0 0]"));
    }

    void rowThatVanishesMeanwhileIsNotWritten()
    {
        const RowEditorRun run = colors(QStringLiteral("[0 0 0, 1 1 1]"));
        const DialogDriver<QColorDialog> dialog([&run](QColorDialog& shown) {
            run.set(QStringLiteral("[0 0 0]"));
            ToolHarness::pump();
            shown.setCurrentColor(QColor(1, 2, 3));
            QTest::keyClick(&shown, Qt::Key_Return);
        });
        run.clickCell(1, 0);
        QCOMPARE(dialog.answered, 1);
        QCOMPARE(run.text(), QStringLiteral("[0 0 0]"));
    }

private:
    static RowEditorRun colors(const QString& value)
    {
        return {std::make_unique<DvMFColorWidget>(), QStringLiteral("MFColor"), value};
    }
    static RowEditorRun colorsWithOpacity(const QString& value)
    {
        return {std::make_unique<DvMFColorRGBAWidget>(), QStringLiteral("MFColorRGBA"), value};
    }
};

QTEST_MAIN(TestDvMFColorTable)
#include "tst_DvMFColorTable.moc"
