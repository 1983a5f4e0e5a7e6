#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QString scene = QStringLiteral(R"(#mrd 1.0
Group "house" {
    Group "cellar" {
        PointLight "lamp" {
            intensity = 0.25
        }
    }
    Group "attic" {
        SpotLight "lamp" {
        }
        Material "unused paint" {
        }
    }
}
)");

} // namespace

// The search in the running tool, by real keys: find, go from hit to hit, rename what was found, end. What counts is
// the file.
class TestFindSession : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString fileName() const { return m_folder.filePath(QStringLiteral("house.mrd")); }
    [[nodiscard]] QString count() { return m_tool->property(QStringLiteral("findCount"), QStringLiteral("text")); }

    void find(const QString& text)
    {
        m_tool->key(QStringLiteral("ctrl+f"));
        QVERIFY(m_tool->becomes(QStringLiteral("findEdit"), QStringLiteral("focus")));
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(text);
        QTRY_COMPARE(m_tool->property(QStringLiteral("findEdit"), QStringLiteral("text")), text);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;

private Q_SLOTS:
    void cleanup() { m_tool.reset(); }

    void whatIsFoundIsRenamed()
    {
        writeFile(fileName(), scene.toUtf8());
        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({fileName()}));
        find(QStringLiteral("t:Light lamp"));
        QTRY_COMPARE(count(), QStringLiteral("2 hits"));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(count(), QStringLiteral("1 of 2"));
        m_tool->key(QStringLiteral("F3"));
        QTRY_COMPARE(count(), QStringLiteral("2 of 2"));
        m_tool->key(QStringLiteral("Escape"));
        QVERIFY(m_tool->becomes(QStringLiteral("sceneTree"), QStringLiteral("focus")));
        m_tool->key(QStringLiteral("F2"));
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(QStringLiteral("torch"));
        m_tool->key(QStringLiteral("Return"));

        find(QStringLiteral("unused t:Material"));
        QTRY_COMPARE(count(), QStringLiteral("1 hit"));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(count(), QStringLiteral("1 of 1"));
        m_tool->key(QStringLiteral("Escape"));
        m_tool->key(QStringLiteral("Delete"));
        m_tool->key(QStringLiteral("ctrl+s"));
        QTRY_VERIFY(!m_tool->property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                         .startsWith(QLatin1String("true")));
        const QString saved = QString::fromUtf8(readFile(fileName()));
        QVERIFY2(saved.contains(QStringLiteral("SpotLight \"torch\"")), qPrintable(saved));
        QVERIFY2(saved.contains(QStringLiteral("PointLight \"lamp\"")), qPrintable(saved));
        QVERIFY2(!saved.contains(QStringLiteral("unused paint")), qPrintable(saved));
    }
};

QTEST_GUILESS_MAIN(TestFindSession)
#include "tst_FindSession.moc"
