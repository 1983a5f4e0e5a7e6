#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/WindowCase.h"
#include "app/scene/OpenCount.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/welcome/RecentView.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/base/Files.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>
#include <QTreeView>

#include <chrono>
#include <string>

namespace {

/// A picture in the current folder, which HTML may name.
const QString picture = QStringLiteral("picture.png");

bool isRich(const QString& text, Qt::TextFormat format)
{
    return format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
}

/// What a user reads.
QString readable(const QString& text, Qt::TextFormat format)
{
    if (!isRich(text, format))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().replace(QChar::Nbsp, u' ');
}

} // namespace

// Nodes and a file with names that somebody chose to break the window: they are shown as they are, in one line, and
// nothing that they say is done.
class TestHostileNames : public WindowCase {
    Q_OBJECT

private:
    /// A scene with nodes of that name, in a file of that name as far as a file may have it.
    [[nodiscard]] QString writeScene(const QString& name) const
    {
        const VbString text(name.toStdString());
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxGroup> group(new NxGroup);
        for (const NxRef<NxNode>& node : {NxRef<NxNode>(new NxMesh), NxRef<NxNode>(new NxPerspectiveCamera)}) {
            node->setName(text);
            group->addChild(node.get());
        }
        group->setName(text);
        scene->addChild(group.get());
        const QString fileName = m_folder->filePath(QString(name).remove(u'/').left(80) + QStringLiteral(".mrd"));
        NxSceneWriter writer(scene.get());
        std::string bytes;
        while (writer.step(bytes, std::chrono::milliseconds(10))) { }
        writeFile(fileName, QByteArray::fromStdString(bytes));
        return fileName;
    }

    /// Each text that a widget shows holds the name, if it does, as it is.
    void checkTexts(const QString& name)
    {
        // The beginning of the name, which is the same in one line and in a path, and a word of it, which is left of it
        // in a text that is made of it, whatever becomes of its markup.
        static const QRegularExpression control(QStringLiteral("[\\x00-\\x1f\\x{202e}]"));
        const QString shown = name.left(20).section(control, 0, 0);
        static const QRegularExpression word(QStringLiteral("[a-z]{3,}"));
        const QString trace = word.match(name).captured().left(20);
        const auto check = [&](const QString& text, Qt::TextFormat format, const QString& where) {
            const QString read = readable(text, format);
            if (!isRich(text, format) || !text.contains(trace))
                return;
            QVERIFY2(read.contains(shown), qPrintable(where + QStringLiteral(": ") + text.left(500)));
        };
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget* widget : widgets) {
            const QString where = QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
            check(widget->toolTip(), Qt::AutoText, where);
            check(widget->whatsThis(), Qt::AutoText, where);
            if (const auto* label = qobject_cast<const QLabel*>(widget))
                check(label->text(), label->textFormat(), where);
            for (const QAction* action : widget->actions()) {
                check(action->toolTip(), Qt::AutoText, where);
                check(action->whatsThis(), Qt::AutoText, where);
            }
        }
        for (const QAbstractItemView* view : m_window->findChildren<QAbstractItemView*>())
            checkItems(*view->model(), {}, check);
    }

    template <typename Check>
    void checkItems(const QAbstractItemModel& model, const QModelIndex& parent, const Check& check)
    {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                const QString text = index.data().toString();
                QCOMPARE(text, orvane::oneLine(text));
                QVERIFY(text.size() <= 500);
                check(index.data(Qt::ToolTipRole).toString(), Qt::AutoText, QStringLiteral("item"));
                check(index.data(Qt::WhatsThisRole).toString(), Qt::AutoText, QStringLiteral("item"));
            }
            checkItems(model, model.index(row, 0, parent), check);
        }
    }

    /// Shows the tool tip of a widget as the mouse does, and looks at it.
    void hover(QWidget* widget, const QPoint& point, const QString& name)
    {
        QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
        QApplication::sendEvent(widget, &help);
        QVERIFY(QToolTip::isVisible());
        checkTexts(name);
        for (QWidget* const tip : QApplication::topLevelWidgets()) {
            if (tip->inherits("QTipLabel"))
                tip->grab(); // as it is painted
        }
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    [[nodiscard]] QTreeView* tree() const { return m_window->findChild<QTreeView*>(QStringLiteral("sceneTree")); }

    static void addNames()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("picture") << QStringLiteral("<img src=picture.png>");
        QTest::newRow("bold") << QStringLiteral("<b>bold<b>");
        QTest::newRow("style sheet") << QStringLiteral("<link rel=stylesheet href=picture.png>");
        QTest::newRow("entity") << QStringLiteral("entity &lt;b&gt;");
        QTest::newRow("ampersand") << QStringLiteral("&one & two");
        QTest::newRow("lines") << QStringLiteral("<b>line\nline\r\ttab");
        QTest::newRow("control characters") << QStringLiteral("<b>bell\x07\x1b[31m\x7f");
        QTest::newRow("direction") << QStringLiteral("<b>turn") + QChar(0x202E) + QStringLiteral("dne");
        QTest::newRow("long") << QStringLiteral("<b>").repeated(10000) + QStringLiteral("end");
        QTest::newRow("long without blanks") << QString(60000, u'x');
        QTest::newRow("place holders") << QStringLiteral("%1 %2[*] <b>end");
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        QDir::setCurrent(m_folder->path());
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(picture));
    }

    void cleanup()
    {
        QTRY_VERIFY(!QToolTip::isVisible());
        endTool();
        QDir::setCurrent(QDir::rootPath());
    }

    void namesAreShownAsTheyAre_data() { addNames(); }
    void namesAreShownAsTheyAre()
    {
        QFETCH(const QString, name);
        const OpenCount opened(picture);
        QVERIFY(opened.isWatching());
        const QString fileName = writeScene(name);
        QCOMPARE(open(fileName), QString());
        const QModelIndex top = tree()->model()->index(0, 0);
        tree()->expandAll();
        const QModelIndex mesh = tree()->model()->index(0, 0, top);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualRect(mesh).center());
        checkTexts(name);
        QVERIFY(m_window->findChild<QMenu*>(QStringLiteral("viewMenu")) != nullptr);

        hover(tree()->viewport(), tree()->visualRect(top).center(), name);
        auto* path = m_window->findChild<QWidget*>(QStringLiteral("selectionPath"));
        QTRY_VERIFY(!path->toolTip().isEmpty());
        hover(path, path->rect().center(), name);
        auto* table = m_window->findChild<FieldTableView*>();
        hover(table->viewport(), table->visualRect(table->model()->index(0, 0)).center(), name);

        m_window->grab();
        QCOMPARE(opened.take(), 0);
    }

    void namesOfFilesAreShownAsTheyAre_data() { addNames(); }
    void namesOfFilesAreShownAsTheyAre()
    {
        QFETCH(const QString, name);
        const OpenCount opened(picture);
        const QString fileName = writeScene(name);
        QCOMPARE(open(fileName), QString());
        checkTexts(name);

        // The name before and behind the mark for a change.
        const QString displayName = fileName.section(u'/', -1);
        QVERIFY2(
            m_window->windowTitle().startsWith(orvane::titleText(displayName)), qPrintable(m_window->windowTitle()));

        const auto* recent = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
        const QString entry = recent->actions().front()->text();
        QVERIFY2(entry.endsWith(orvane::menuText(fileName)), qPrintable(entry));
        QCOMPARE(recent->actions().front()->data().toString(), fileName);

        m_session->services().pushCommand(
            new AddNodeCommand(m_window->document().scene(), NxRef<NxGroup>(new NxGroup), m_session->disposal()));
        m_window->close();
        auto* question = m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion"));
        QTRY_VERIFY(question->isVisible());
        checkTexts(name);
        QVERIFY(question->width() < 1000);
        question->grab();
        QTest::mouseClick(question->button(QMessageBox::Cancel), Qt::LeftButton);

        makeWindow(); // with the start page, which links to the file
        checkTexts(name);
        m_window->grab();
        QCOMPARE(opened.take(), 0);
        const auto* files = m_window->findChild<RecentView*>();
        QVERIFY(files->isVisible());
        const QModelIndex tile = files->model()->index(0, 0);
        QCOMPARE(tile.data().toString(), orvane::shortLine(displayName));
        hover(files->viewport(), files->visualRect(tile).center(), name);
        QVERIFY(m_window->width() < 2000);
        QCOMPARE(opened.take(), 0);
    }

    void camerasAreListedByTheirNamesAsTheyAre_data() { addNames(); }
    void camerasAreListedByTheirNamesAsTheyAre()
    {
        QFETCH(const QString, name);
        QCOMPARE(open(writeScene(name)), QString());
        auto* menu = m_window->findChild<QMenu*>(QStringLiteral("viewMenu"));
        menu->popup(m_window->mapToGlobal(QPoint(10, 10)));
        const auto* cameras = m_window->findChild<QMenu*>(QStringLiteral("cameraMenu"));
        QCOMPARE(cameras->actions().size(), 2);
        QCOMPARE(cameras->actions().back()->text(), orvane::menuText(name));
        checkTexts(name);
        menu->close();
    }

    void renamingWithoutAChangeKeepsTheName_data() { addNames(); }
    void renamingWithoutAChangeKeepsTheName()
    {
        QFETCH(const QString, name);
        QCOMPARE(open(writeScene(name)), QString());
        const QModelIndex top = tree()->model()->index(0, 0);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualRect(top).center());
        QTest::keyClick(tree(), Qt::Key_F2);
        auto* line = tree()->viewport()->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(m_window->document().scene()->getChild(0)->getName(), VbString(name.toStdString()));
        QVERIFY(!m_session->services().canUndo());
    }

    void aFileWhoseNameIsNoTextIsKeptAmongTheRecentOnes()
    {
        const std::string bytes = m_folder->path().toStdString() + "/a\xFF\x80.mrd";
        meridane::FileReplacer file;
        const std::string text = "#mrd 1.0\nGroup \"one\" {}\n";
        QVERIFY(!file.open(bytes) && !file.write(text.data(), text.size()) && !file.commit());
        QCOMPARE(open(orvane::fromStdFileName(bytes)), QString());
        QVERIFY2(m_window->windowTitle().startsWith(QStringLiteral("a\ufffd\ufffd.mrd")),
            qPrintable(m_window->windowTitle()));

        makeWindow();
        const auto* recent = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        recent->actions().front()->trigger();
        QVERIFY(settled.wait(testPatience));
        QCOMPARE(settled.front().front().value<orvane::Result<>>().error(), QString());
        QCOMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("one"));

        makeWindow();
        auto* files = m_window->findChild<RecentView*>();
        QSignalSpy opened(m_window.get(), &MainWindow::settled);
        files->setFocus(Qt::TabFocusReason);
        QTest::keyClick(files, Qt::Key_Return);
        QVERIFY(opened.wait(testPatience));
        QCOMPARE(opened.front().front().value<orvane::Result<>>().error(), QString());
        QCOMPARE(m_window->document().fileName(), orvane::fromStdFileName(bytes));
        QCOMPARE(::unlink(bytes.c_str()), 0); // since the folder of the test can't
    }

    void htmlInTextEditsReadsNoFile_data()
    {
        QTest::addColumn<QString>("html");
        for (const char* const html : {"<img src=picture.png>", "<img src=\"FOLDER/picture.png\">",
                 "<img src=\"file://FOLDER/picture.png\">", "<img src=\"file:picture.png\">",
                 "<link rel=stylesheet href=picture.png>text", "<style>@import url(picture.png);</style><p>text",
                 "<p style=\"background-image: url(picture.png)\">text", "<table background=picture.png><tr><td>text",
                 "<ul style=\"list-style-image: url(picture.png)\"><li>text"})
            QTest::newRow(html) << QString::fromLatin1(html);
    }
    void htmlInTextEditsReadsNoFile()
    {
        QFETCH(QString, html);
        const OpenCount opened(picture);
        html.replace(QStringLiteral("FOLDER"), m_folder->path());
        // As a plug-in does: a dock that gets text before it is seen, and while it is.
        QDockWidget dock;
        auto* edit = new QTextEdit(&dock);
        dock.setWidget(edit);
        OrvShell::getInstance()->addDockWidget(&dock, Qt::BottomDockWidgetArea);
        edit->append(html);
        dock.show();
        edit->append(html);
        edit->grab();
        edit->clear();
        edit->setHtml(html);
        edit->grab();
        OrvShell::getInstance()->removeDockWidget(&dock);

        QTextEdit other(m_window.get());
        other.show();
        other.append(html);
        other.grab();
        QCOMPARE(opened.take(), 0);
    }

    void textEditsShowPicturesOfThePrograms()
    {
        QTextEdit edit(m_window.get());
        edit.show();
        edit.append(QStringLiteral("<img src=\"qrc:/qt-project.org/qmessagebox/images/qtlogo-64.png\">"));
        const QImage shown = edit.grab().toImage();
        edit.clear();
        QVERIFY(shown != edit.grab().toImage());
    }
};

QTEST_MAIN(TestHostileNames)
#include "tst_HostileNames.moc"
