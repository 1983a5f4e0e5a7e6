#include "app/actions/PickerCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/BookmarkDialog.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

/// Bookmarks of viewpoints, as the user sets, uses and edits them.
class TestBookmarks : public PickerCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneView* view() { return m_window->findChild<SceneView*>(); }
    [[nodiscard]] SceneBookmarks& bookmarks() { return *m_window->findChild<SceneBookmarks*>(); }
    [[nodiscard]] QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    [[nodiscard]] QStringList names()
    {
        QStringList result;
        for (const ViewBookmark& bookmark : bookmarks().list())
            result.append(bookmark.name);
        return result;
    }
    void openFile(const char* name)
    {
        if (!QFile::exists(filePath(name)))
            writeFile(filePath(name), ViewScenes::squaresText);
        QCOMPARE(WindowCase::open(filePath(name)), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
    }
    void lookFrom(double x)
    {
        NxViewpoint viewpoint;
        viewpoint.position = VbVec3d(x, 2, 3);
        view()->navigate(viewpoint);
    }
    /// Adds one with the key, typing its name.
    void addByKey(const QString& name)
    {
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_B, Qt::ControlModifier | Qt::AltModifier);
        QPointer<QInputDialog> dialog = m_window->findChild<QInputDialog*>(QStringLiteral("bookmarkName"));
        QVERIFY(dialog != nullptr);
        auto* const line = dialog->findChild<QLineEdit*>();
        QCOMPARE(line->text(), bookmarks().nextName());
        line->selectAll();
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY(dialog == nullptr);
    }
    [[nodiscard]] QListWidget* bookmarkList()
    {
        return m_window->findChild<QListWidget*>(QStringLiteral("bookmarkList"));
    }
    void clickButton(const char* name)
    {
        QTest::mouseClick(m_window->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        openFile("squares.mrd");
    }
    void cleanup()
    {
        close();
        endTool();
    }

    void addedByAKeyTheyAreGoneToByTheirNumber()
    {
        lookFrom(1);
        addByKey(QStringLiteral("Front  door"));
        lookFrom(2);
        addByKey(QStringLiteral("Roof"));
        QCOMPARE(names(), (QStringList{QStringLiteral("Front door"), QStringLiteral("Roof")}));
        lookFrom(3);
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(view()->viewpoint().position, VbVec3d(1, 2, 3));
        QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(view()->viewpoint().position, VbVec3d(2, 2, 3));
        // There is no third one.
        QVERIFY(!action("view.bookmark3")->isVisible());
        QTest::keyClick(m_window.get(), Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(view()->viewpoint().position, VbVec3d(2, 2, 3));
        QVERIFY(action("view.bookmark2")->text().contains(QStringLiteral("Roof")));
    }

    void theyAreKeptForEachFile()
    {
        lookFrom(1);
        bookmarks().add(QStringLiteral("One"));
        openFile("other.mrd");
        QCOMPARE(names(), QStringList());
        lookFrom(4);
        bookmarks().add({});
        QCOMPARE(names(), QStringList{QStringLiteral("View 1")});
        makeWindow();
        openFile("squares.mrd");
        QCOMPARE(names(), QStringList{QStringLiteral("One")});
        bookmarks().goTo(0);
        QCOMPARE(view()->viewpoint().position, VbVec3d(1, 2, 3));
        QVERIFY(view()->hasMoved());
        m_window->document().close();
        QCOMPARE(names(), QStringList());
        QVERIFY(!bookmarks().canAdd());
        QVERIFY(!action("view.addBookmark")->isEnabled());
    }

    void thoseOfANewSceneAreKeptWhenItIsSaved()
    {
        action("file.new")->trigger();
        QTRY_VERIFY(m_window->document().isOpen() && m_window->document().fileName().isEmpty());
        lookFrom(5);
        bookmarks().add(QStringLiteral("Five"));
        m_window->document().setSaved(filePath("saved.mrd"));
        openFile("squares.mrd");
        QCOMPARE(names(), QStringList());
        writeFile(filePath("saved.mrd"), "#mrd 1.0\n");
        openFile("saved.mrd");
        QCOMPARE(names(), QStringList{QStringLiteral("Five")});
    }

    void theyAreEditedInTheirList()
    {
        for (const char* const name : {"A", "B", "C"}) {
            lookFrom(static_cast<double>(names().size()));
            bookmarks().add(QLatin1String(name));
        }
        action("view.editBookmarks")->trigger();
        QListWidget* const list = bookmarkList();
        QVERIFY(list != nullptr);
        QCOMPARE(list->count(), 3);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(view()->viewpoint().position, VbVec3d(1, 2, 3));
        clickButton("bookmarkRename");
        auto* const editor = list->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        QTest::keyClicks(editor, QStringLiteral("Bee"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(names(), (QStringList{QStringLiteral("A"), QStringLiteral("Bee"), QStringLiteral("C")}));
        lookFrom(9);
        clickButton("bookmarkSet");
        QCOMPARE(bookmarks().list()[1].viewpoint.position, VbVec3d(9, 2, 3));
        QTest::keyClick(list, Qt::Key_Up);
        QTest::keyClick(list, Qt::Key_Delete);
        QTRY_COMPARE(names(), (QStringList{QStringLiteral("Bee"), QStringLiteral("C")}));
        QCOMPARE(list->count(), 2);
        clickButton("bookmarkRemove");
        clickButton("bookmarkRemove");
        QCOMPARE(names(), QStringList());
        QVERIFY(!m_window->findChild<QPushButton*>(QStringLiteral("bookmarkRemove"))->isEnabled());
        QTest::keyClick(m_window->findChild<BookmarkDialog*>(), Qt::Key_Escape);
        QTRY_VERIFY(m_window->findChild<BookmarkDialog*>() == nullptr);
    }

    void theyAreFoundInGoTo()
    {
        lookFrom(1);
        bookmarks().add(QStringLiteral("Kitchen"));
        lookFrom(6);
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(popup() != nullptr);
        QTest::keyClicks(line(), QStringLiteral("kitch"));
        QTRY_COMPARE(textOf(0), QStringLiteral("Kitchen"));
        QTest::keyClick(line(), Qt::Key_Return);
        QTRY_COMPARE(view()->viewpoint().position, VbVec3d(1, 2, 3));
    }

    void aNameOfAnyKindIsShownAsItIs()
    {
        bookmarks().add(QStringLiteral("A & B\n<b>C</b>"));
        QCOMPARE(names(), QStringList{QStringLiteral("A & B <b>C</b>")});
        QCOMPARE(action("view.bookmark1")->text(), QStringLiteral("&1 A && B <b>C</b>"));
        bookmarks().rename(0, QStringLiteral("  "));
        bookmarks().rename(7, QStringLiteral("x"));
        bookmarks().remove(7);
        QCOMPARE(names(), QStringList{QStringLiteral("A & B <b>C</b>")});
    }

    void thereAreSoManyAtMost()
    {
        while (bookmarks().canAdd())
            bookmarks().add({});
        QCOMPARE(bookmarks().list().size(), std::size_t{ViewBookmarks::mostBookmarks});
        bookmarks().add(QStringLiteral("One more"));
        QVERIFY(!names().contains(QStringLiteral("One more")));
        QVERIFY(action("view.bookmark99")->isVisible());
        QVERIFY(action("view.addBookmark")->toolTip().contains(QStringLiteral("99")));
    }

    void entriesThatMakeNoSenseAreLeftOut()
    {
        const QString file = filePath("squares.mrd");
        m_session->settings().setValue(QStringLiteral("view/bookmarks"),
            QStringList{file + QStringLiteral("\n1 2 3\n0 0 5 0 0 1 0 0 0.7 4 5 Good\nnan\n")});
        QCOMPARE(ViewBookmarks(m_session->settings()).find(file).size(), std::size_t{1});
        QVERIFY(ViewBookmarks(m_session->settings()).find({}).empty());
    }
};

QTEST_MAIN(TestBookmarks)
#include "tst_Bookmarks.moc"
