#include "plugins/nodes/NodeEditorCase.h"
#include "plugins/nodes/TextureEditor.h"
#include "plugins/nodes/TexturePicture.h"

#include "orvane/extender/OrvImages.h"

#include <array>

namespace {

using Case = NodeEditorCase<nodes::TextureEditor, NxTexture>;

QColor middleOf(Case& tool)
{
    auto& picture = tool.find<nodes::TexturePicture>("picture");
    return picture.grab().toImage().pixelColor(picture.rect().center());
}

} // namespace

/// The picture of a texture, from the scene or from a file.
class TestTextureEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { OrvImages::instance().setLoader({}); }

    void anImageOfTheSceneIsShown()
    {
        Case tool;
        constexpr std::array<unsigned char, 3> red{255, 0, 0};
        tool.node->image.setValue(VbVec2s(1, 1), 3, red.data());
        tool.show();
        QCOMPARE(middleOf(tool), QColor(255, 0, 0));
        QCOMPARE(tool.text("Image"), QStringLiteral("in the scene: 1 × 1, RGB"));
    }

    void aFileIsShownWhenItHasArrived()
    {
        bool isLoaded = false;
        QString asked;
        OrvImages::instance().setLoader([&](const QString& fileName) {
            asked = fileName;
            OrvImages::Result result{OrvImages::State::Loading, {}, {}, {}};
            if (isLoaded) {
                QImage image(8, 8, QImage::Format_RGB32);
                image.fill(Qt::blue);
                result = {OrvImages::State::Loaded, image, QStringLiteral("8 × 8, RGB"), {}};
            }
            return result;
        });
        Case tool;
        tool.node->filePath.setValue(VbString("wood.png"));
        tool.show();
        QCOMPARE(asked, QStringLiteral("wood.png"));
        QCOMPARE(tool.text("Image"), QStringLiteral("a file"));
        isLoaded = true;
        Q_EMIT OrvImages::instance().changed();
        QCOMPARE(middleOf(tool), QColor(Qt::blue));
        QCOMPARE(tool.text("Image"), QStringLiteral("a file: 8 × 8, RGB"));
    }

    void anotherFileIsShownAtOnce()
    {
        QStringList asked;
        OrvImages::instance().setLoader([&](const QString& fileName) {
            asked.append(fileName);
            return OrvImages::Result{OrvImages::State::Failed, {}, {}, QStringLiteral("no such file")};
        });
        Case tool;
        tool.show();
        QVERIFY(asked.isEmpty());
        QCOMPARE(tool.text("Image"), QStringLiteral("none"));
        tool.type("filePath", QStringLiteral("\"other.png\""));
        QTRY_VERIFY(asked.contains(QLatin1String("other.png")));
    }
};

QTEST_MAIN(TestTextureEditor)
#include "tst_TextureEditor.moc"
