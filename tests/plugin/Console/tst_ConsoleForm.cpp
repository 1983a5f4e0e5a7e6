#include "plugin/ConsoleRun.h"

#include <QDockWidget>
#include <QFrame>
#include <QIcon>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QTextDocument>

#include <array>

class TestConsoleForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void formIsBuilt()
    {
        OrvConsole console;
        console.load();
        auto* const frame = qobject_cast<QFrame*>(console.m_scrollAreaContainer->parentWidget());
        QCOMPARE(frame->objectName(), QStringLiteral("m_consoleFrame"));
        QCOMPARE(frame->size(), QSize(843, 238));
        QCOMPARE(frame->minimumSize(), QSize(0, 0));
        QCOMPARE(frame->maximumSize(), QSize(16777215, 16777215));
        QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
        QCOMPARE(frame->frameShadow(), QFrame::Raised);
        QVERIFY(frame->windowTitle().isEmpty());
        QVERIFY(qobject_cast<QDockWidget*>(frame->parentWidget()) != nullptr);
        QVERIFY(console.m_consoleScrollArea->widgetResizable());
        QCOMPARE(console.m_consoleScrollArea->widget(), console.m_scrollAreaContents);
        QCOMPARE(console.m_scrollAreaContents->maximumSize(), QSize(16777215, 16777215));
        QVERIFY(console.m_consoleOutput->isReadOnly());
        QVERIFY(console.m_consoleOutput->document()->maximumBlockCount() == 0);
        console.unload();
    }

    void formIsLaidOut()
    {
        OrvConsole console;
        console.load();
        QCOMPARE(console.verticalLayout->objectName(), QStringLiteral("verticalLayout"));
        QCOMPARE(console.sacLayout->objectName(), QStringLiteral("sacLayout"));
        QCOMPARE(console.horizontalLayout->objectName(), QStringLiteral("horizontalLayout"));
        QCOMPARE(console.m_buttonsLayout->objectName(), QStringLiteral("m_buttonsLayout"));
        QCOMPARE(console.verticalLayout->itemAt(0)->widget(), console.m_scrollAreaContainer);
        QCOMPARE(console.sacLayout->itemAt(0)->widget(), static_cast<QWidget*>(console.m_consoleScrollArea));
        QCOMPARE(console.horizontalLayout->itemAt(0)->widget(), static_cast<QWidget*>(console.m_consoleOutput));
        QCOMPARE(console.horizontalLayout->itemAt(1)->layout(), static_cast<QLayout*>(console.m_buttonsLayout));
        const std::array<QLayoutItem*, 3> spacers{
            console.m_buttonsLayout->itemAt(1), console.m_buttonsLayout->itemAt(3), console.m_buttonsLayout->itemAt(5)};
        for (QLayoutItem* const item : spacers) {
            QVERIFY(item->spacerItem() != nullptr);
            QCOMPARE(item->sizeHint(), QSize(20, 40));
            QCOMPARE(item->spacerItem()->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
        }
        const std::array<QWidget*, 5> buttons{console.m_errorsButton, console.m_warningsButton, console.m_infosButton,
            console.m_clearButton, console.m_saveButton};
        const std::array<int, 5> places{0, 2, 4, 6, 7};
        for (std::size_t index = 0; index < buttons.size(); ++index)
            QCOMPARE(console.m_buttonsLayout->itemAt(places[index])->widget(), buttons[index]);
        QCOMPARE(console.m_buttonsLayout->count(), 8);
        console.unload();
    }

    void buttonsAre_data()
    {
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<bool>("checkable");
        QTest::newRow("m_errorsButton") << QStringLiteral("Displays errors") << true;
        QTest::newRow("m_warningsButton") << QStringLiteral("Displays warnings") << true;
        QTest::newRow("m_infosButton") << QStringLiteral("Displays informations") << true;
        QTest::newRow("m_clearButton") << QStringLiteral("Clears the console") << false;
        QTest::newRow("m_saveButton") << QStringLiteral("Saves the content of the console") << false;
    }

    void buttonsAre()
    {
        QFETCH(QString, toolTip);
        QFETCH(bool, checkable);
        OrvConsole console;
        console.load();
        const auto* const button
            = console.m_scrollAreaContents->findChild<QPushButton*>(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(button != nullptr);
        QCOMPARE(button->minimumSize(), QSize(64, 0));
        QCOMPARE(button->isCheckable(), checkable);
        QCOMPARE(button->isChecked(), checkable);
        QCOMPARE(button->toolTip(), toolTip);
        QVERIFY(button->text().isEmpty());
        QVERIFY(!button->icon().pixmap(16).isNull());
        console.unload();
    }

    void formIsAnotherBase()
    {
        OrvConsole console;
        QVERIFY(console.qt_metacast("Ui::m_consoleFrame") == static_cast<Ui::m_consoleFrame*>(&console));
        QVERIFY(console.qt_metacast("OrvConsole") == &console);
        QVERIFY(console.qt_metacast("OrvExtension") == static_cast<OrvExtension*>(&console));
        QVERIFY(console.qt_metacast("OrvEditor") == nullptr);
    }
};

QTEST_MAIN(TestConsoleForm)
#include "tst_ConsoleForm.moc"
