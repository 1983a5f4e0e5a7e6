#include "app/WindowCase.h"

#include "orvane/app/help/HelpBrowser.h"
#include "orvane/app/help/HelpTopics.h"
#include "orvane/app/help/HelpWindow.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

class TestHelpWindow : public WindowCase {
    Q_OBJECT

private:
    [[nodiscard]] HelpWindow* help() const { return m_window->findChild<HelpWindow*>(); }
    [[nodiscard]] HelpBrowser* browser() const { return help()->findChild<HelpBrowser*>(); }
    [[nodiscard]] QTreeWidget* list() const { return help()->findChild<QTreeWidget*>(); }
    [[nodiscard]] QLineEdit* line() const { return help()->findChild<QLineEdit*>(); }
    [[nodiscard]] QString shownFile() const { return browser()->source().fileName(); }

    [[nodiscard]] QTreeWidgetItem* row(const QString& title) const
    {
        for (QTreeWidgetItemIterator item(list()); *item != nullptr; ++item) {
            if ((*item)->text(0).startsWith(title))
                return *item;
        }
        return nullptr;
    }

    void openHelp()
    {
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        QVERIFY(help() != nullptr);
        // A window above an active one counts as active, too, but only one has the keys.
        QTRY_COMPARE(QApplication::activeWindow(), help());
    }

    void search(const QString& text)
    {
        QTest::keyClick(help(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(line()->hasFocus());
        QTest::keyClicks(line(), text);
    }

private Q_SLOTS:
    void init() { startTool(); }
    void cleanup() { endTool(); }

    void f1ShowsTheListOfPages()
    {
        if (QWidget* const focus = QApplication::focusWidget())
            focus->clearFocus();
        openHelp();
        QCOMPARE(shownFile(), QStringLiteral("help.md"));
        QVERIFY(browser()->hasFocus());
        QVERIFY(list()->topLevelItemCount() >= 4);
    }

    void f1ShowsThePageAboutThePartWithTheFocus()
    {
        QCOMPARE(orvane::helpTopicOf(nullptr), QStringLiteral("help.md"));
        auto* const dock = m_window->findChild<QWidget*>(QStringLiteral("sceneDock"));
        QCOMPARE(orvane::helpTopicOf(dock->findChild<QLineEdit*>(QStringLiteral("findEdit"))),
            QStringLiteral("scene-tree.md"));
        dock->findChild<QLineEdit*>(QStringLiteral("findEdit"))->setFocus();
        openHelp();
        QCOMPARE(shownFile(), QStringLiteral("scene-tree.md"));
    }

    void aClickInTheListShowsThePage()
    {
        openHelp();
        const QString first = shownFile();
        QTreeWidgetItem* const item = row(QStringLiteral("Tutorial"));
        QVERIFY(item != nullptr);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(item).center());
        QCOMPARE(shownFile(), QStringLiteral("tutorial.md"));
        QVERIFY(help()->windowTitle().contains(QStringLiteral("Tutorial")));
        QTest::keyClick(help(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(shownFile(), first);
        QTest::keyClick(help(), Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(shownFile(), QStringLiteral("tutorial.md"));
        QCOMPARE(list()->currentItem(), item);
    }

    void aSearchListsThePagesAndMarksTheWords()
    {
        openHelp();
        search(QStringLiteral("ungroup"));
        QVERIFY(row(QStringLiteral("Editing the scene (")) != nullptr);
        QCOMPARE(row(QStringLiteral("Recovery format")), nullptr);
        QVERIFY(list()->currentItem() != nullptr);
        QVERIFY(!browser()->extraSelections().isEmpty());
        QCOMPARE(browser()->textCursor().selectedText().toLower(), QStringLiteral("ungroup"));
        const int first = browser()->textCursor().position();
        const bool isOnlyOne = browser()->extraSelections().size() == 1;
        QTest::keyClick(help(), Qt::Key_F3);
        QCOMPARE(browser()->textCursor().position() == first, isOnlyOne);
        QTest::keyClick(help(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(browser()->textCursor().position(), first);
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(line()->text().isEmpty());
        QVERIFY(browser()->extraSelections().isEmpty());
        QVERIFY(help()->isVisible());
    }

    void wordsThatNoPageHasAreSaid()
    {
        openHelp();
        search(QStringLiteral("qwertzuiop"));
        QCOMPARE(list()->topLevelItemCount(), 0);
        auto* const message = help()->findChild<QLabel*>(QStringLiteral("helpMessage"));
        QVERIFY(message->isVisible());
        QVERIFY(!message->text().isEmpty());
    }

    void aLinkToAHeadingGoesThere()
    {
        openHelp();
        help()->showPage(QStringLiteral("editing.md#lists"));
        QTRY_VERIFY(browser()->verticalScrollBar()->value() > 0);
        const QTextBlock block = browser()->cursorForPosition(QPoint(2, 2)).block();
        QVERIFY2(block.text() == QStringLiteral("Lists") || block.previous().text() == QStringLiteral("Lists")
                || block.next().text() == QStringLiteral("Lists"),
            qPrintable(block.text()));
    }

    void picturesFitTheWindow()
    {
        openHelp();
        help()->showPage(QStringLiteral("view.md"));
        const auto width = [this] {
            return browser()
                ->document()
                ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("images/view/selected.png")))
                .value<QImage>()
                .width();
        };
        QVERIFY(width() > 100);
        help()->resize(500, 500);
        QTRY_VERIFY(browser()->viewport()->width() < 500);
        QTRY_VERIFY(width() > 0 && width() <= browser()->viewport()->width());
    }

    void escapeClosesTheHelpAndTheNextPressOpensItAgain()
    {
        openHelp();
        QTest::keyClick(help(), Qt::Key_Escape);
        QTRY_VERIFY(!help()->isVisible());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
        openHelp();
        QVERIFY(help()->isVisible());
    }

    void menuEntriesShowTheirPages_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("file");
        QTest::newRow("contents") << "help.contents"
                                  << "help.md";
        QTest::newRow("guide") << "help.guide"
                               << "guide.md";
        QTest::newRow("tutorial") << "help.tutorial"
                                  << "tutorial.md";
    }

    void menuEntriesShowTheirPages()
    {
        QFETCH(QString, action);
        QFETCH(QString, file);
        m_window->findChild<QAction*>(action)->trigger();
        QCOMPARE(shownFile(), file);
        QVERIFY(help()->isVisible());
    }
};

QTEST_MAIN(TestHelpWindow)
#include "tst_HelpWindow.moc"
