#include "app/window/RobotWindowCase.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/structure/DraggedNodes.h"
#include "orvane/app/structure/NodeClipboard.h"
#include "orvane/app/tree/SceneTreeView.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QStatusBar>
#include <QUrl>

using namespace Qt::StringLiterals;

/// Nodes that are dragged out of the tree into other programs: what these get, and when.
class TestDraggedNodes : public RobotWindowCase {
    Q_OBJECT

private:
    void select(const char* name)
    {
        tree()->expandAll();
        AppScenes::runSensors();
        QCoreApplication::processEvents();
        clickRow(tree(), ItemClicks::find(tree(), QLatin1String(name)));
    }
    /// What a drag of the selected nodes offers.
    std::unique_ptr<DraggedNodes> dragged()
    {
        auto* const clipboard = m_window->findChild<NodeClipboard*>();
        const auto* const editor = static_cast<NodeEditor*>(clipboard->parent());
        return std::make_unique<DraggedNodes>(
            clipboard->draggedNodes(editor->selected()), [this](const QString& reason) { m_said = reason; });
    }
    static QString fileOf(const QMimeData& data) { return data.urls().value(0).toLocalFile(); }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        writeFile(m_robot,
            "#mrd 1.0\nGroup \"robot\" {\n  Group \"arm/1\" {\n    Texture \"skin\" {\n      filePath = \"skin.png\"\n"
            "    }\n  }\n}\nGroup \"box\" {\n}\n");
        QCOMPARE(open(m_robot), QString());
        m_said.clear();
    }
    void cleanup() { endTool(); }

    void aFileManagerGetsASceneFile()
    {
        select("arm/1");
        QString fileName;
        {
            const auto data = dragged();
            QVERIFY(data->hasUrls());
            fileName = fileOf(*data);
            QCOMPARE(QFileInfo(fileName).fileName(), u"arm_1.mrd"_s);
            QCOMPARE(fileOf(*data), fileName); // the same however often it is asked for
        }
        // It is there when the drag has ended, and refers to the same images wherever it gets.
        const QByteArray text = readFile(fileName);
        QVERIFY(text.startsWith("#mrd 1.0\n"));
        QVERIFY(text.contains("\nGroup \"arm/1\""));
        QVERIFY2(text.contains("filePath = \"" + m_folder->path().toUtf8() + "/skin.png\""), text.constData());
        QVERIFY(QFileInfo(fileName).isReadable());
        QCOMPARE(open(fileName), QString());
    }

    void anEditorGetsText()
    {
        select("skin");
        const auto data = dragged();
        QVERIFY(data->hasText());
        QVERIFY2(data->text().contains(u"\nTexture \"skin\""_s), qPrintable(data->text()));
        // As bytes, which is how other programs take it.
        QCOMPARE(data->data(u"text/plain"_s), data->text().toUtf8());
        QCOMPARE(data->data(u"text/uri-list"_s), QUrl::fromLocalFile(fileOf(*data)).toEncoded() + "\r\n");
    }

    void thePathsAreThereToo()
    {
        select("skin");
        QCOMPARE(QString::fromUtf8(dragged()->data(DraggedNodes::pathMimeType())), u"/robot/\"arm/1\"/skin"_s);
    }

    /// A window takes them for nodes, although other programs could take them for a file.
    void aWindowTakesThemForNodes()
    {
        select("skin");
        const auto data = dragged();
        QVERIFY(!orvane::hasFiles(*data));
        QCOMPARE(orvane::draggedFile(*data), QString());
        const QPoint ground(5, tree()->viewport()->height() - 2);
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        for (QWidget* const target : {static_cast<QWidget*>(m_window->findChild<SceneView*>()), tree()->viewport()}) {
            QDragEnterEvent enter(ground, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &enter);
            QDragMoveEvent move(ground, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &move);
            QCOMPARE(move.isAccepted(), target == tree()->viewport());
        }
        QDropEvent drop(ground, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree()->viewport(), &drop);
        QVERIFY2(drop.isAccepted(), qPrintable(m_window->statusBar()->currentMessage()));
        QCOMPARE(m_window->document().scene()->getNumChildren(), 3);
    }

    /// What is dragged stays what it was, although the scene changes before another program asks for it.
    void theSceneMayChangeMeanwhile()
    {
        select("skin");
        const auto data = dragged();
        m_window->document().close();
        QVERIFY(data->text().contains(u"skin"_s));
        QVERIFY(readFile(fileOf(*data)).contains("skin"));
    }

    void namesOfFilesAreUsable_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("file");
        QTest::newRow("plain") << u"arm 1"_s << u"arm 1"_s;
        QTest::newRow("path") << u"../../etc/passwd"_s << u"_.._etc_passwd"_s;
        QTest::newRow("hidden") << u"..."_s << u"node"_s;
        QTest::newRow("empty") << QString() << u"node"_s;
        QTest::newRow("umlaut") << u"Käthe"_s << u"Käthe"_s;
        QTest::newRow("lines") << u"a\nb\0c"_s << u"a_b_c"_s;
        QTest::newRow("long") << QString(5000, u'x') << QString(60, u'x');
    }
    void namesOfFilesAreUsable()
    {
        QFETCH(const QString, node);
        QFETCH(const QString, file);
        QCOMPARE(DraggedNodes::fileNameFor(node), file);
    }

    /// Too much for a text: the paths are there, and a sentence says why no more.
    void tooMuchIsRefused()
    {
        const NxRef<NxTexture> texture(new NxTexture);
        texture->filePath.setValue(VbString(std::string(orvane::mostNodeText + 1, 'x')));
        DraggedNodes data(
            {{NxRef<NxNode>(texture)}, {}, {u"/big"_s}, u"big"_s}, [this](const QString& reason) { m_said = reason; });
        QCOMPARE(data.text(), u"/big"_s);
        QVERIFY(!m_said.isEmpty());
        QVERIFY(data.urls().isEmpty());
        QVERIFY(data.data(orvane::nodeMimeType()).isEmpty());
    }

private:
    QString m_said;
};

QTEST_MAIN(TestDraggedNodes)

#include "tst_DraggedNodes.moc"
