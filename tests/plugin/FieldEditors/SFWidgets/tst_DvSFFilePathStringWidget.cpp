#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"
#include "plugin/DialogDriver.h"
#include "plugin/FieldEditors/SFWidgets/LineEditorRun.h"
#include "plugin/WriteCounter.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMetaMethod>
#include <QTemporaryDir>

/// What the editor of paths adds to what all editors of text do.
class TestDvSFFilePathStringWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        field().setValue(VbString("old.png"));
        m_run = std::make_unique<LineEditorRun>(std::make_unique<DvSFFilePathStringWidget>(), field());
    }

    void cleanup()
    {
        m_run.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void slotsHaveTheirOrder()
    {
        const QMetaObject& meta = DvSFFilePathStringWidget::staticMetaObject;
        QStringList names;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            names << QString::fromLatin1(meta.method(index).methodSignature());
        QCOMPARE(names, QStringList({QStringLiteral("openFileDialog()"), QStringLiteral("edited()")}));
    }

    void editedSlotAsksTheLine()
    {
        bool edited = true;
        QVERIFY(QMetaObject::invokeMethod(m_run->editor.get(), "edited", Q_RETURN_ARG(bool, edited)));
        QVERIFY(!edited);
        m_run->type(QStringLiteral("x"));
        QVERIFY(QMetaObject::invokeMethod(m_run->editor.get(), "edited", Q_RETURN_ARG(bool, edited)));
        QVERIFY(edited);
    }

    void buttonStandsBehindTheLine()
    {
        const auto* const area = m_run->find<QFrame>("m_editionFrame");
        const auto* const button = m_run->find<QPushButton>("openFileButton");
        QCOMPARE(button->parentWidget(), area);
        QCOMPARE(button->text(), QStringLiteral("..."));
        const QSizePolicy policy = button->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Maximum);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(policy.controlType(), QSizePolicy::DefaultType);
        QCOMPARE(policy.horizontalStretch(), 0);
        QCOMPARE(policy.verticalStretch(), 0);
        QCOMPARE(policy.hasHeightForWidth(), QPushButton().sizePolicy().hasHeightForWidth());
        const auto* const layout = qobject_cast<QHBoxLayout*>(area->layout());
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(1)->widget(), button);
        QCOMPARE(layout->stretch(1), 2);
    }

    void chosenPathIsWrittenAtOnce()
    {
        const WriteCounter counter(field());
        const QString name = choose();
        QCOMPARE(m_run->line->text(), name);
        QCOMPARE(path(), name);
        QCOMPARE(counter.writes, 1);
        QCOMPARE(pushed(), 1);
        ToolHarness::pump();
        QCOMPARE(m_run->line->text(), name);
        QCOMPARE(pushed(), 1);
    }

    void typedPathIsWrittenBeforeTheDialogOpens()
    {
        m_run->type(QStringLiteral("typed.png"));
        QCOMPARE(pushed(), 0);
        QString before;
        const DialogDriver<QFileDialog> driver([this, &before](QFileDialog& dialog) {
            before = path();
            dialog.reject();
        });
        openDialog(); // which takes the focus from the line
        QCOMPARE(before, QStringLiteral("typed.png"));
        QCOMPARE(path(), QStringLiteral("typed.png"));
        QCOMPARE(pushed(), 1);
    }

    void cancelledDialogChangesNothing()
    {
        const WriteCounter counter(field());
        const DialogDriver<QFileDialog> driver([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        openDialog();
        QCOMPARE(driver.answered, 1);
        QCOMPARE(m_run->line->text(), QStringLiteral("old.png"));
        QCOMPARE(counter.writes, 0);
        QCOMPARE(pushed(), 0);
    }

    void dialogBelongsToTheEditor()
    {
        QString title;
        const QWidget* parent = nullptr;
        QStringList filters;
        auto mode = QFileDialog::AnyFile;
        const DialogDriver<QFileDialog> driver([&](QFileDialog& dialog) {
            title = dialog.windowTitle();
            parent = dialog.parentWidget();
            filters = dialog.nameFilters();
            mode = dialog.fileMode();
            dialog.reject();
        });
        openDialog();
        QCOMPARE(title, QStringLiteral("Open File"));
        QCOMPARE(parent, m_run->editor->getWidget());
        QCOMPARE(filters, QStringList(QStringLiteral("All Files (*)")));
        QCOMPARE(mode, QFileDialog::ExistingFile);
    }

    void pathNeedNotExist()
    {
        m_run->type(QStringLiteral("/no/such folder/at all.png"));
        m_run->pressReturn();
        QCOMPARE(path(), QStringLiteral("/no/such folder/at all.png"));
        QCOMPARE(pushed(), 1);
    }

    void plainTextGoesThroughItsTextForm()
    {
        NxSFString& plain = m_tool->node->sfString;
        plain.setValue(VbString("a b"));
        m_run->select(&plain);
        QCOMPARE(m_run->line->text(), QStringLiteral("\"a b\""));
        m_run->type(QStringLiteral("\"c d\""));
        m_run->pressReturn();
        QCOMPARE(plain.getValue(), VbString("c d"));
    }

    void undoKeepsAChosenPath()
    {
        const QString name = choose();
        m_tool->services.undo();
        QCOMPARE(path(), name);
        m_tool->services.redo();
        QCOMPARE(path(), name);
    }

    void chosenPathWithoutAFieldStaysInTheLine()
    {
        m_run->editor->setField(nullptr);
        const QString name = choose();
        QCOMPARE(m_run->line->text(), name);
        QCOMPARE(path(), QStringLiteral("old.png"));
        QCOMPARE(pushed(), 0);
    }

private:
    [[nodiscard]] NxSFFilePathString& field() const { return m_tool->node->sfFilePathString; }
    [[nodiscard]] QString path() const { return QString::fromUtf8(field().getValue().toUtf8()); }
    [[nodiscard]] int pushed() const { return m_tool->services.pushed; }
    /// Makes a file and chooses it in the dialog.
    QString choose()
    {
        const QString name = m_folder.filePath(QString::fromUtf8("oak planks, l\xC3\xA9ger.png"));
        QFile file(name);
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        const DialogDriver<QFileDialog> driver([&name](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
        });
        openDialog();
        [&driver] { QCOMPARE(driver.answered, 1); }();
        return name;
    }

    void openDialog() { m_run->click("openFileButton"); }

    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<LineEditorRun> m_run;
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestDvSFFilePathStringWidget)
#include "tst_DvSFFilePathStringWidget.moc"
