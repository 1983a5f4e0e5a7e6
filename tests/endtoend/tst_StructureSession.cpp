#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const char* const house = R"(#mrd 1.0
Group "house" {
    Group "attic" {
        Texture "paper" {
            filePath = "flowers.png"
        }
    }
    Group "cellar" {
    }
    Mesh "door" {
    }
}
)";
const char* const street = R"(#mrd 1.0
Group "street" {
    Mesh "lamp" {
    }
}
)";

} // namespace

/// Nodes that are dragged in the running tool, and go from one running tool to another one, by real mouse and keys.
/// What counts is the file.
class TestStructureSession : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    static void clickNode(LiveTool& tool, const char* name)
    {
        tool.click(tool.item(QStringLiteral("sceneTree"), QLatin1String(name)).center());
        QVERIFY(tool.becomes(QStringLiteral("sceneTree"), QStringLiteral("focus")));
        QTRY_VERIFY2_WITH_TIMEOUT(tool.property(QStringLiteral("selectionPath"), QStringLiteral("accessibleName"))
                                      .contains(QLatin1String(name)),
            name, testPatience);
    }
    /// Saves and gives the file.
    static QString saved(LiveTool& tool, const QString& fileName)
    {
        tool.key(QStringLiteral("ctrl+s"));
        const auto isSaved = [&tool] {
            return tool.property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                .startsWith(QLatin1String("false"));
        };
        return QTest::qWaitFor(isSaved, testPatience) ? QString::fromUtf8(readFile(fileName)) : QString();
    }
    static void waitForChange(LiveTool& tool)
    {
        QVERIFY(tool.becomes(QStringLiteral("mainWindow"), QStringLiteral("windowModified")));
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("below")));
        writeFile(path("house.mrd"), house);
        writeFile(path("below/street.mrd"), street);
    }

    void aNodeIsDraggedToAnotherGroup()
    {
        LiveTool tool;
        QVERIFY(tool.start({path("house.mrd")}));
        // A click before would make this press the second one of a double click.
        const QRect door = tool.item(QStringLiteral("sceneTree"), QStringLiteral("door"));
        const QRect cellar = tool.item(QStringLiteral("sceneTree"), QStringLiteral("cellar"));
        tool.dragAndHold(door.center(), cellar.center());
        // The mark comes with a move after the drag has begun, which takes the tool a moment.
        QPoint place = cellar.center();
        const auto isMarked = [&] {
            place.rx() = place.x() == cellar.center().x() ? place.x() + 1 : cellar.center().x();
            tool.moveTo(place);
            return tool.isShown(QStringLiteral("dropMark"));
        };
        QTRY_VERIFY_WITH_TIMEOUT(isMarked(), testPatience);
        tool.release();
        waitForChange(tool);
        const QString text = saved(tool, path("house.mrd"));
        QVERIFY2(text.contains(QStringLiteral("Group \"cellar\" {\n        Mesh \"door\"")), qPrintable(text));
        QCOMPARE(tool.quit(), 0);
    }

    void nodesGoFromOneProgramToAnother()
    {
        LiveTool first;
        QVERIFY(first.start({path("house.mrd")}));
        LiveTool second;
        QVERIFY(second.startBeside(first, {path("below/street.mrd")}));

        QVERIFY(first.activate());
        clickNode(first, "attic");
        first.key(QStringLiteral("ctrl+c"));
        QVERIFY(second.activate());
        clickNode(second, "street");
        // They are no nodes of this scene.
        second.key(QStringLiteral("ctrl+shift+v"));
        second.key(QStringLiteral("ctrl+v"));
        waitForChange(second);
        const QString pasted = saved(second, path("below/street.mrd"));
        QCOMPARE(pasted.count(QStringLiteral("Group \"attic\"")), 1);
        // The path leads to the same file.
        QVERIFY2(pasted.contains(QStringLiteral("filePath = \"../flowers.png\"")), qPrintable(pasted));

        clickNode(second, "lamp");
        second.key(QStringLiteral("ctrl+x"));
        waitForChange(second);
        QVERIFY(first.activate());
        clickNode(first, "house");
        first.key(QStringLiteral("ctrl+v"));
        waitForChange(first);
        const QString both = saved(first, path("house.mrd"));
        QVERIFY2(both.contains(QStringLiteral("Mesh \"lamp\"")), qPrintable(both));
        QVERIFY2(both.contains(QStringLiteral("filePath = \"flowers.png\"")), qPrintable(both));
        QCOMPARE(first.quit(), 0);
        QVERIFY(second.activate());
        const QString without = saved(second, path("below/street.mrd"));
        QVERIFY2(!without.contains(QStringLiteral("lamp")), qPrintable(without));
        QCOMPARE(second.quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestStructureSession)
#include "tst_StructureSession.moc"
