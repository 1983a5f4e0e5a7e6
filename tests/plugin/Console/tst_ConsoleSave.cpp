#include "TestFiles.h"
#include "plugin/ConsoleRun.h"
#include "plugin/DialogDriver.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <iostream>

class TestConsoleSave : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void saveWritesTheText()
    {
        const ConsoleRun run;
        std::cout << "one\ntwo";
        std::cerr << "three";
        const QString fileName = m_folder.filePath(QStringLiteral("console.txt"));
        saveAs(run, fileName);
        QCOMPARE(readFile(fileName), QByteArray("one\ntwo\nthree"));
    }

    void saveOverALongerFileKeepsItsRemainder()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("longer.txt"));
        writeFile(fileName, QByteArray(100, '-'));
        const ConsoleRun run;
        std::cout << "0123456789";
        saveAs(run, fileName);
        QCOMPARE(readFile(fileName), QByteArray("0123456789") + QByteArray(90, '-'));
    }

    void saveLosesWhatLatin1CannotHold()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("latin1.txt"));
        const ConsoleRun run;
        std::cout << "caf\xC3\xA9 \xE6\x96\x87";
        saveAs(run, fileName);
        QCOMPARE(readFile(fileName), QByteArray("caf\xE9 ?"));
    }

    void cancelledSaveDoesNothing()
    {
        const ConsoleRun run;
        std::cout << "text";
        const DialogDriver<QFileDialog> driver([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        run.click(run.console.m_saveButton);
        QCOMPARE(driver.answered, 1);
        QCOMPARE(run.lines(), QStringList(QStringLiteral("text")));
    }

    void saveToAnUnwritableFileChangesNothing()
    {
        const ConsoleRun run;
        std::cout << "text";
        saveAs(run, QStringLiteral("/proc/version")); // can't be written, whoever asks
        QCOMPARE(run.lines(), QStringList(QStringLiteral("text")));
    }

    void saveDialogAsksForATextFile()
    {
        const ConsoleRun run;
        QString title;
        QStringList filters;
        QString folder;
        bool isChildOfTheFrame = false;
        const DialogDriver<QFileDialog> driver([&](QFileDialog& dialog) {
            title = dialog.windowTitle();
            filters = dialog.nameFilters();
            folder = dialog.directory().absolutePath();
            isChildOfTheFrame = dialog.parentWidget()->objectName() == QLatin1String("m_consoleFrame");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        run.click(run.console.m_saveButton);
        QCOMPARE(title, QStringLiteral("Save the content of the console"));
        QCOMPARE(filters, QStringList(QStringLiteral("Console outputs (*.txt)")));
        QCOMPARE(folder, QDir::currentPath());
        QVERIFY(isChildOfTheFrame);
    }

private:
    void saveAs(const ConsoleRun& run, const QString& fileName)
    {
        const DialogDriver<QFileDialog> driver([&fileName](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(fileName);
            // A file that is there is asked about, in a dialog of its own.
            QTimer::singleShot(0, &dialog, [] {
                if (const auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                    QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
            });
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        run.click(run.console.m_saveButton);
        QCOMPARE(driver.answered, 1);
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestConsoleSave)
#include "tst_ConsoleSave.moc"
