#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The tool is killed while a scene has unsaved changes, and the next one recovers it. What counts is the file that it
// saves.
class TestRecoverySession : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aKilledToolLosesNothing()
    {
        writeFile(fileName(), R"(#mrd 1.0
Group "rig" {
    Material "paint" {
        transparency = 0.25
    }
    Switch "choice" {
        whichChild = 3
    }
}
)");
        start({fileName()});
        typeChild("42");
        QTRY_VERIFY_WITH_TIMEOUT(!recoveryFiles().isEmpty(), testPatience);
        const QByteArray first = recovered();
        // Another change follows: it is on the disk when the file has grown.
        typeChild("43");
        QTRY_VERIFY_WITH_TIMEOUT(recovered().size() > first.size(), testPatience);
        m_tool->kill();
        QVERIFY(readFile(fileName()).contains("whichChild = 3\n"));

        start({});
        m_tool->click(m_tool->widget(QStringLiteral("recoverScene")).center());
        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), QStringLiteral("choice")).center());
        QVERIFY(m_tool->becomes(QStringLiteral("mainWindow"), QStringLiteral("windowModified")));
        QVERIFY(!m_tool->isShown(QStringLiteral("recoverScene")));
        m_tool->key(QStringLiteral("ctrl+s"));
        QTRY_VERIFY_WITH_TIMEOUT(readFile(fileName()).contains("whichChild = 43\n"), testPatience);
        QTRY_VERIFY_WITH_TIMEOUT(recoveryFiles().isEmpty(), testPatience);
        QCOMPARE(m_tool->quit(), 0);
    }

    void cleanup() { m_tool.reset(); }

private:
    void start(const QStringList& arguments)
    {
        m_tool.reset();
        m_tool = std::make_unique<LiveTool>();
        m_tool->keepStateIn(m_folder.filePath(QStringLiteral("state")));
        QVERIFY(m_tool->start(arguments));
    }

    /// Types a number for the field of the node "choice".
    void typeChild(const char* number)
    {
        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), QStringLiteral("choice")).center());
        m_tool->click(m_tool->item(QStringLiteral("fieldTable"), QStringLiteral("whichChild")).center());
        const QString line = QStringLiteral("DvSliderFrame/QLineEdit");
        m_tool->doubleClick(m_tool->widget(line).center());
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(QLatin1String(number));
        QTRY_COMPARE_WITH_TIMEOUT(
            m_tool->property(line, QStringLiteral("text")), QString::fromLatin1(number), testPatience);
        m_tool->key(QStringLiteral("Return"));
        QVERIFY(m_tool->becomes(QStringLiteral("mainWindow"), QStringLiteral("windowModified")));
    }

    [[nodiscard]] QString fileName() const { return m_folder.filePath(QStringLiteral("rig.mrd")); }
    [[nodiscard]] QDir recoveryFolder() const { return m_folder.filePath(QStringLiteral("state/orvane/recovery")); }
    [[nodiscard]] QStringList recoveryFiles() const
    {
        return recoveryFolder().entryList({QStringLiteral("*.recovery")}, QDir::Files);
    }
    [[nodiscard]] QByteArray recovered() const { return readFile(recoveryFolder().filePath(recoveryFiles().value(0))); }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;
};

QTEST_GUILESS_MAIN(TestRecoverySession)
#include "tst_RecoverySession.moc"
