#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A red and a green square that face the front and shine by themselves.
const QByteArray scene = R"(#mrd 1.0
Group "left" {
    Material "red" { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 0 0 }
    Mesh "redSquare" {
        positions = [-3 -1 0, -1 -1 0, -1 1 0, -3 1 0]
        indices = [0, 1, 2, 0, 2, 3]
    }
}
Group "right" {
    Material "green" { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 0 1 0 }
    Mesh "greenSquare" {
        positions = [1 -1 0, 3 -1 0, 3 1 0, 1 1 0]
        indices = [0, 1, 2, 0, 2, 3]
    }
}
)";

bool isLike(const QColor& left, const QColor& right)
{
    constexpr int tolerance = 40;
    return qAbs(left.red() - right.red()) < tolerance && qAbs(left.green() - right.green()) < tolerance
        && qAbs(left.blue() - right.blue()) < tolerance;
}

} // namespace

// A user's way through the view of the running tool: click in it, edit in the docks, see the picture change.
class TestViewSession : public QObject {
    Q_OBJECT

private:
    /// How many pixels of the view have that colour, and where their middle is on the screen.
    struct Patch {
        int size = 0;
        QPoint middle;
    };

    [[nodiscard]] Patch find(const QColor& color)
    {
        const QRect view = m_tool->widget(QStringLiteral("sceneView"));
        const QImage screen = m_tool->screen();
        Patch patch;
        qint64 x = 0;
        qint64 y = 0;
        for (int row = view.top(); row <= view.bottom(); ++row) {
            for (int column = view.left(); column <= view.right(); ++column) {
                if (!isLike(screen.pixelColor(column, row), color))
                    continue;
                ++patch.size;
                x += column;
                y += row;
            }
        }
        if (patch.size > 0)
            patch.middle = QPoint(static_cast<int>(x / patch.size), static_cast<int>(y / patch.size));
        return patch;
    }

    [[nodiscard]] QPoint sliderAt(double share)
    {
        const QRect slider = m_tool->widget(QStringLiteral("DvSliderFrame/QSlider"));
        constexpr int margin = 6;
        return {slider.left() + margin + qRound(share * (slider.width() - 2 * margin)), slider.center().y()};
    }

    QTemporaryDir m_folder;
    std::unique_ptr<LiveTool> m_tool;

private Q_SLOTS:
    void init()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("squares.mrd"));
        writeFile(fileName, scene);
        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({fileName}));
        QTRY_VERIFY(find(Qt::red).size > 200);
    }

    void cleanup() { m_tool.reset(); }

    void anEditIsSeenWhileDraggingAndUndoneInTheView()
    {
        const Patch red = find(Qt::red);
        m_tool->click(red.middle);
        // The mesh is selected in the tree, so the table shows its fields.
        QVERIFY(!m_tool->item(QStringLiteral("fieldTable"), QStringLiteral("positions")).isEmpty());
        QVERIFY(
            m_tool->property(QStringLiteral("pickedPoint"), QStringLiteral("text")).startsWith(QLatin1String("at -")));

        m_tool->click(m_tool->item(QStringLiteral("sceneTree"), QStringLiteral("red")).center());
        m_tool->click(m_tool->item(QStringLiteral("fieldTable"), QStringLiteral("transparency")).center());
        QVERIFY(!m_tool->widget(QStringLiteral("DvSliderFrame")).isEmpty());
        QTRY_VERIFY(find(Qt::red).size > 200);
        m_tool->dragAndHold(sliderAt(0), sliderAt(1));
        QTRY_COMPARE(find(Qt::red).size, 0);
        QVERIFY(find(Qt::green).size > 200);
        m_tool->release();
        QTRY_COMPARE(m_tool->action(QStringLiteral("Undo Set red.transparency")), QStringLiteral("enabled"));
        m_tool->key(QStringLiteral("ctrl+z"));
        QTRY_VERIFY(find(Qt::red).size > 200);
        QCOMPARE(m_tool->quit(), 0);
    }

    void theUserAllowsAFolderOfImages()
    {
        m_tool.reset();
        QImage blue(2, 2, QImage::Format_RGB32);
        blue.fill(Qt::blue);
        QVERIFY(blue.save(m_folder.filePath(QStringLiteral("blue.png"))));
        QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("deep")));
        const QString textured = m_folder.filePath(QStringLiteral("deep/textured.mrd"));
        writeFile(textured,
            "#mrd 1.0\nTexture { filePath = \"../blue.png\" }\n"
            "Material { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 1 1 }\n"
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; textureCoordinates = [0 0, 1 0, 0 1] }\n");
        m_tool = std::make_unique<LiveTool>();
        QVERIFY(m_tool->start({textured}));
        const QRect allow = m_tool->widget(QStringLiteral("acceptMessage"));
        QVERIFY(!allow.isEmpty());
        QTRY_VERIFY(find(Qt::white).size > 200);
        QCOMPARE(find(Qt::blue).size, 0);
        m_tool->click(allow.center());
        QTRY_VERIFY(find(Qt::blue).size > 200);
        QTRY_VERIFY(!m_tool->isShown(QStringLiteral("acceptMessage")));
        QCOMPARE(m_tool->quit(), 0);
    }

    void theUserMovesAbout()
    {
        const Patch green = find(Qt::green);
        m_tool->turnWheel(green.middle, 3);
        QTRY_VERIFY(find(Qt::green).size > green.size * 2);
        const QPoint middle = m_tool->widget(QStringLiteral("sceneView")).center();
        m_tool->drag(middle, middle + QPoint(60, -20));
        m_tool->click(find(Qt::green).middle);
        m_tool->key(QStringLiteral("f"));
        // Near things look larger, so that the middle of the square isn't that of its picture.
        constexpr int slack = 60;
        const QPoint center = m_tool->widget(QStringLiteral("sceneView")).center();
        QTRY_VERIFY((find(Qt::green).middle - center).manhattanLength() < slack);
        m_tool->key(QStringLiteral("a"));
        QTRY_VERIFY(find(Qt::red).size > 200);
        QCOMPARE(m_tool->quit(), 0);
    }

    void aClickOnNothingClearsTheSelection()
    {
        m_tool->click(find(Qt::green).middle);
        QVERIFY(!m_tool->item(QStringLiteral("fieldTable"), QStringLiteral("positions")).isEmpty());
        m_tool->click(m_tool->widget(QStringLiteral("sceneView")).topLeft() + QPoint(5, 5));
        QTRY_VERIFY(m_tool->property(QStringLiteral("fieldTable"), QStringLiteral("visible")).isEmpty());
        QCOMPARE(m_tool->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestViewSession)
#include "tst_ViewSession.moc"
