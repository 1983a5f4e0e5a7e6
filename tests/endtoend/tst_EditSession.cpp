#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QString scene = QStringLiteral(R"(#mrd 1.0
Group "rig" {
    Material "paint" {
        transparency = 0.25
    }
    Complexity "detail" {
        value = 0.5
    }
    Switch "choice" {
        whichChild = 3
    }
}
)");

} // namespace

// A user's whole way through the running tool: open, select, drag, type, undo, redo, save, open again. What counts is
// the file.
class TestEditSession : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString fileName() const { return m_folder.filePath(QStringLiteral("rig.mrd")); }

    [[nodiscard]] QString savedValue(const QString& path) const
    {
        QProcess process;
        process.start(QStringLiteral(ORVANE_PROGRAM),
            {QStringLiteral("--no-settings"), QStringLiteral("--get"), path, fileName()});
        process.waitForFinished(testPatience);
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    void select(const QString& node, const QString& field)
    {
        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), node).center());
        m_tool->click(m_tool->item(QStringLiteral("fieldTable"), field).center());
        QVERIFY(!m_tool->widget(QStringLiteral("DvSliderFrame")).isEmpty());
    }

    [[nodiscard]] QString lineText() const
    {
        return m_tool->property(QStringLiteral("DvSliderFrame/QLineEdit"), QStringLiteral("text"));
    }

    // From the handle's place to that share of the slider's width.
    void dragSlider(double from, double to)
    {
        const QRect slider = m_tool->widget(QStringLiteral("DvSliderFrame/QSlider"));
        const auto at = [&slider](double share) {
            // The handle's centre runs inside the groove, about half a handle from either end.
            constexpr int margin = 6;
            return QPoint(slider.left() + margin + qRound(share * (slider.width() - 2 * margin)), slider.center().y());
        };
        m_tool->drag(at(from), at(to));
    }

    void save()
    {
        m_tool->key(QStringLiteral("ctrl+s"));
        QTRY_VERIFY(!m_tool->property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                         .startsWith(QLatin1String("true")));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;

private Q_SLOTS:
    void init()
    {
        writeFile(fileName(), scene.toUtf8());
        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({fileName()}));
    }

    void cleanup() { m_tool.reset(); }

    void aDragReachesTheFileAndOneUndoTakesItBack()
    {
        select(QStringLiteral("paint"), QStringLiteral("transparency"));
        QCOMPARE(lineText(), QStringLiteral("0.250000"));
        dragSlider(0.25, 0.75);
        QTRY_VERIFY(qAbs(lineText().toDouble() - 0.75) < 0.1);
        const QString dragged = lineText();
        QVERIFY(m_tool->property(QStringLiteral("mainWindow"), QStringLiteral("windowModified"))
                    .startsWith(QLatin1String("true")));
        save();
        QCOMPARE(savedValue(QStringLiteral("/rig/paint.transparency")).toFloat(), dragged.toFloat());

        m_tool->key(QStringLiteral("ctrl+z"));
        QTRY_COMPARE(lineText(), QStringLiteral("0.250000"));
        save();
        QCOMPARE(savedValue(QStringLiteral("/rig/paint.transparency")), QStringLiteral("0.25"));

        m_tool->key(QStringLiteral("ctrl+shift+z"));
        QTRY_COMPARE(lineText(), dragged);
        save();
        QCOMPARE(savedValue(QStringLiteral("/rig/paint.transparency")).toFloat(), dragged.toFloat());
        QCOMPARE(m_tool->quit(), 0);
    }

    void aTypedNumberReachesTheFileAtReturn()
    {
        select(QStringLiteral("choice"), QStringLiteral("whichChild"));
        QCOMPARE(lineText(), QStringLiteral("3"));
        m_tool->doubleClick(m_tool->widget(QStringLiteral("DvSliderFrame/QLineEdit")).center());
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(QStringLiteral("42"));
        QTRY_COMPARE(lineText(), QStringLiteral("42"));
        QCOMPARE(m_tool->action(QStringLiteral("Undo")), QStringLiteral("disabled"));
        m_tool->key(QStringLiteral("Return"));
        save();
        QTRY_COMPARE(savedValue(QStringLiteral("/rig/choice.whichChild")), QStringLiteral("42"));
        QCOMPARE(m_tool->quit(), 0);
    }

    void aValueOutsideABoundedRangeIsHeldBack()
    {
        select(QStringLiteral("detail"), QStringLiteral("value"));
        m_tool->doubleClick(m_tool->widget(QStringLiteral("DvSliderFrame/QLineEdit")).center());
        m_tool->key(QStringLiteral("ctrl+a"));
        m_tool->type(QStringLiteral("2.5"));
        m_tool->key(QStringLiteral("Return"));
        QTRY_COMPARE(lineText(), QStringLiteral("2.5"));
        QCOMPARE(m_tool->action(QStringLiteral("Undo")), QStringLiteral("disabled"));
        save();
        QCOMPARE(savedValue(QStringLiteral("/rig/detail.value")), QStringLiteral("0.5"));
        QCOMPARE(m_tool->quit(), 0);
    }

    void whatWasSavedIsThereWhenOpenedAgain()
    {
        select(QStringLiteral("paint"), QStringLiteral("transparency"));
        dragSlider(0.25, 1.0);
        QTRY_VERIFY(lineText().toDouble() > 0.9);
        const QString dragged = lineText();
        save();
        QCOMPARE(m_tool->quit(), 0);

        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({fileName()}));
        select(QStringLiteral("paint"), QStringLiteral("transparency"));
        QCOMPARE(lineText(), dragged);
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestEditSession)
#include "tst_EditSession.moc"
