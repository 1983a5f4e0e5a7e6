#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// The comment is in place of a number.
const QByteArray brokenScene = "#mrd 1.0\nMaterial \"paint\" {\n    transparency = oops\n}\n";

const QString console = QStringLiteral("m_consoleOutput");
const QString profiles = QStringLiteral("Profile%20Selector/QComboBox");

} // namespace

// What surrounds the scene in the running tool: the console and the profiles.
class TestShellSession : public QObject {
    Q_OBJECT

private:
    void write(const QString& name, const QByteArray& text) const { writeFile(m_folder.filePath(name), text); }

    void start()
    {
        m_tool = std::make_unique<LiveTool>();
        m_tool->keepSettingsIn(m_folder.path());
        QVERIFY(m_tool->start({}));
    }

    void openFromTheMenu(const QString& name)
    {
        m_tool->key(QStringLiteral("ctrl+o"));
        QVERIFY(m_tool->typeFileName(m_folder.filePath(name)));
        m_tool->key(QStringLiteral("Return"));
    }

    [[nodiscard]] QString activeProfile() const { return m_tool->property(profiles, QStringLiteral("currentText")); }

    /// Goes through the list by keys, since the list that pops up is the window manager's business. Only by the first
    /// letter: if two letters arrive too far apart, the second one begins a new search.
    void pickProfile(const QString& name)
    {
        m_tool->click(m_tool->widget(profiles).center());
        m_tool->type(name.left(1));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(activeProfile(), name);
    }

    [[nodiscard]] int pixelsOf(const QString& widget, const QColor& color) const
    {
        const QImage picture = m_tool->screen().copy(m_tool->widget(widget));
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == color ? 1 : 0;
        return count;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;

private Q_SLOTS:
    void cleanup() { m_tool.reset(); }

    void aBrokenSceneLeavesItsMessageInTheConsole()
    {
        write(QStringLiteral("broken.mrd"), brokenScene);
        start();
        QCOMPARE(pixelsOf(console, Qt::darkRed), 0);
        openFromTheMenu(QStringLiteral("broken.mrd"));
        const QString place = m_folder.filePath(QStringLiteral("broken.mrd:3:20: "));
        QTRY_VERIFY(m_tool->property(console, QStringLiteral("plainText")).contains(place));
        QTRY_VERIFY(pixelsOf(console, Qt::darkRed) > 0);
        QCOMPARE(m_tool->quit(), 0);
    }

    void aProfileRebuildsTheDocksAndIsKept()
    {
        start();
        QCOMPARE(activeProfile(), QStringLiteral("All editors"));
        QVERIFY(!m_tool->widget(console).isEmpty());
        pickProfile(QStringLiteral("Inspection"));
        QTRY_VERIFY(!m_tool->isShown(console));
        QCOMPARE(m_tool->quit(), 0);

        start();
        QTRY_COMPARE(activeProfile(), QStringLiteral("Inspection"));
        QVERIFY(!m_tool->isShown(console));
        pickProfile(QStringLiteral("All editors"));
        QVERIFY(!m_tool->widget(console).isEmpty());
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestShellSession)
#include "tst_ShellSession.moc"
