#include "app/window/RobotWindowCase.h"

#include "orvane/app/actions/KeysDialog.h"
#include "orvane/app/actions/KeysModel.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

/// The page of keys, by real keys.
class TestKeysDialog : public RobotWindowCase {
    Q_OBJECT

private:
    template <typename Part>
    Part* part(const char* name)
    {
        return dialog()->findChild<Part*>(QLatin1String(name));
    }
    KeysDialog* dialog() { return m_window->findChild<KeysDialog*>(); }
    QTableView* keys() { return part<QTableView>("keysTable"); }
    QLineEdit* keyLine() { return part<QLineEdit>("keyLine"); }
    QString message() { return part<QLabel>("keysMessage")->text(); }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    void openKeys()
    {
        QTest::keyClick(m_window.get(), Qt::Key_F1, Qt::ControlModifier);
        QVERIFY(dialog() != nullptr);
        dialog()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), dialog());
    }
    void choose(const char* text)
    {
        auto* const filter = part<QLineEdit>("keysFilter");
        filter->setFocus();
        filter->clear();
        QTest::keyClicks(filter, QLatin1String(text));
        QCOMPARE(cell(KeysModel::ActionColumn), QLatin1String(text));
        QTest::keyClick(filter, Qt::Key_Return);
        QTest::keyClick(keys(), Qt::Key_Return);
    }
    QString cell(int column) { return keys()->currentIndex().siblingAtColumn(column).data().toString(); }
    void close()
    {
        if (dialog() != nullptr)
            dialog()->reject();
        QTRY_VERIFY(dialog() == nullptr);
        // The offscreen platform doesn't do that by itself.
        m_window->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup()
    {
        close();
        endTool();
    }

    void allKeysAreListedAndCanBeSearched()
    {
        openKeys();
        auto* const filter = part<QLineEdit>("keysFilter");
        QTest::keyClicks(filter, QStringLiteral("ctrl+o"));
        QStringList found;
        for (int row = 0; row < keys()->model()->rowCount(); ++row)
            found.append(keys()->model()->index(row, KeysModel::ActionColumn).data().toString());
        QVERIFY(found.contains(QStringLiteral("Open")));
        filter->clear();
        QTest::keyClicks(filter, QStringLiteral("Go round the scene"));
        QCOMPARE(cell(KeysModel::KeysColumn), QStringLiteral("Arrow keys"));
        QCOMPARE(cell(KeysModel::StateColumn), QStringLiteral("fixed"));
        QVERIFY(!keyLine()->isEnabled());
    }

    void aKeyIsChangedAndKept()
    {
        openKeys();
        choose("Frame All");
        QCOMPARE(QApplication::focusWidget(), keyLine());
        QTest::keyClick(keyLine(), Qt::Key_Y, Qt::AltModifier | Qt::ControlModifier);
        QCOMPARE(cell(KeysModel::KeysColumn), QStringLiteral("Ctrl+Alt+Y"));
        QCOMPARE(cell(KeysModel::StateColumn), QStringLiteral("changed"));
        QCOMPARE(action("view.frameAll")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Alt+Y")));
        close();
        makeWindow();
        QCOMPARE(action("view.frameAll")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Alt+Y")));
        QCOMPARE(action("file.open")->shortcut(), QKeySequence(QKeySequence::Open));
    }

    void theChangedKeyWorks()
    {
        openKeys();
        choose("Axes");
        QTest::keyClick(keyLine(), Qt::Key_F9);
        close();
        const bool before = action("view.axes")->isChecked();
        QTest::keyClick(m_window.get(), Qt::Key_F9);
        QCOMPARE(action("view.axes")->isChecked(), !before);
    }

    void aConflictIsToldAndTakenOver()
    {
        openKeys();
        choose("Axes");
        QTest::keyClick(keyLine(), Qt::Key_O, Qt::ControlModifier);
        QVERIFY2(message().contains(QStringLiteral("Open")), qPrintable(message()));
        QVERIFY(action("view.axes")->shortcuts().isEmpty());
        QTest::keyClick(part<QPushButton>("takeOverKey"), Qt::Key_Space);
        QCOMPARE(action("view.axes")->shortcut(), QKeySequence(QKeySequence::Open));
        QVERIFY(action("file.open")->shortcuts().isEmpty());
    }

    void reservedKeysAreRefusedWithTheReason_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("F6") << int{Qt::Key_F6} << Qt::KeyboardModifiers();
        QTest::newRow("Return") << int{Qt::Key_Return} << Qt::KeyboardModifiers();
        QTest::newRow("a menu") << int{Qt::Key_F} << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("a letter for the whole window") << int{Qt::Key_K} << Qt::KeyboardModifiers();
    }
    void reservedKeysAreRefusedWithTheReason()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        openKeys();
        choose("Save As");
        QTest::keyClick(keyLine(), static_cast<Qt::Key>(key), modifiers);
        QVERIFY(!message().isEmpty());
        QCOMPARE(action("file.saveAs")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    }

    void keysAreResetOneByOneAndAll()
    {
        openKeys();
        choose("Axes");
        QTest::keyClick(keyLine(), Qt::Key_F9);
        choose("Save As");
        QTest::keyClick(keyLine(), Qt::Key_F8);
        QTest::mouseClick(part<QPushButton>("resetKeys"), Qt::LeftButton);
        QCOMPARE(action("file.saveAs")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+S")));
        QCOMPARE(action("view.axes")->shortcut(), QKeySequence(Qt::Key_F9));
        QTest::mouseClick(part<QPushButton>("removeKeys"), Qt::LeftButton);
        QVERIFY(action("file.saveAs")->shortcuts().isEmpty());
        QTest::mouseClick(part<QPushButton>("resetAllKeys"), Qt::LeftButton);
        QVERIFY(action("view.axes")->shortcuts().isEmpty());
        QCOMPARE(action("file.saveAs")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+S")));
        QVERIFY(!part<QPushButton>("resetAllKeys")->isEnabled());
    }

    void keysOfUnknownActionsAreKept()
    {
        const QString key = QStringLiteral("keys/changed");
        m_session->settings().setValue(
            key, QStringList{QStringLiteral("other.thing Ctrl+J"), QStringLiteral("nonsense")});
        makeWindow();
        openKeys();
        choose("Axes");
        QTest::keyClick(keyLine(), Qt::Key_F9);
        QTest::mouseClick(part<QPushButton>("resetAllKeys"), Qt::LeftButton);
        const QStringList kept = m_session->settings().value(key).toStringList();
        QCOMPARE(kept, QStringList({QStringLiteral("nonsense"), QStringLiteral("other.thing Ctrl+J")}));
    }

    void menusShowThePresentKeys()
    {
        openKeys();
        choose("Axes");
        QTest::keyClick(keyLine(), Qt::Key_F9);
        close();
        const auto entries = m_window->findChild<QMenu*>(QStringLiteral("guidesMenu"))->actions();
        const auto isAxes = [](const QAction* entry) { return entry->objectName() == QStringLiteral("view.axes"); };
        const auto axes = std::find_if(entries.begin(), entries.end(), isAxes);
        QVERIFY(axes != entries.end());
        QCOMPARE((*axes)->shortcut(), QKeySequence(Qt::Key_F9));
    }

    void theModelIsAProperOne()
    {
        openKeys();
        const QAbstractItemModelTester tester(keys()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QTest::keyClicks(part<QLineEdit>("keysFilter"), QStringLiteral("frame"));
        QTest::keyClicks(part<QLineEdit>("keysFilter"), QStringLiteral("zzz"));
        QCOMPARE(keys()->model()->rowCount(), 0);
        QVERIFY(!message().isEmpty());
    }
};

QTEST_MAIN(TestKeysDialog)
#include "tst_KeysDialog.moc"
