#include "FieldEditors/SFWidgets/DvSFImageLabel.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"
#include "plugin/EditorHarness.h"
#include "plugin/WriteCounter.h"

#include "meridane/base/MrdMemory.h"

#include <QHBoxLayout>

#include <malloc.h>
#include <unistd.h>

namespace {

std::size_t heapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

class TestDvSFImageWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_editor = std::make_unique<DvSFImageWidget>();
        QVERIFY(field().set("2 1 3 0xff0000 0x0000ff"));
    }

    void cleanup()
    {
        m_editor.reset();
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void thumbnailStandsInTheEditArea()
    {
        const EditorRun run(*m_editor);
        const auto* const area = run.find<QFrame>("m_editionFrame");
        QVERIFY(dynamic_cast<DvSFImageLabel*>(thumbnail(run)) != nullptr);
        QCOMPARE(thumbnail(run)->parentWidget(), area);
        QCOMPARE(thumbnail(run)->minimumSize(), QSize(16, 16));
        QCOMPARE(thumbnail(run)->maximumSize(), QSize(16, 16));
        const auto* const layout = qobject_cast<QHBoxLayout*>(area->layout());
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->stretch(0), 0);
    }

    void fieldIsShownInBothSizes()
    {
        const EditorRun run(*m_editor, field());
        QCOMPARE(picture(run)->size(), QSize(2, 1));
        QCOMPARE(thumbnail(run)->pixmap(Qt::ReturnByValue).size(), QSize(2, 1));
        const QImage image = thumbnail(run)->grab().toImage();
        QCOMPARE(image.pixel(1, 8), qRgb(255, 0, 0));
        QCOMPARE(image.pixel(14, 8), qRgb(0, 0, 255));
    }

    void outsideChangeIsFollowed()
    {
        const EditorRun run(*m_editor, field());
        QVERIFY(field().set("1 3 1 0x00 0x80 0xff"));
        ToolHarness::pump();
        QCOMPARE(picture(run)->size(), QSize(1, 3));
        QCOMPARE(thumbnail(run)->pixmap(Qt::ReturnByValue).size(), QSize(1, 3));
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void applyingWritesNothing()
    {
        const EditorRun run(*m_editor, field());
        const WriteCounter counter(field());
        m_editor->applyChanges();
        m_editor->setCommandValue();
        QCOMPARE(counter.writes, 0);
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void imageTakenAwayLeavesNothing()
    {
        const EditorRun run(*m_editor, field());
        QVERIFY(field().set("0 0 0"));
        ToolHarness::pump();
        QVERIFY(thumbnail(run)->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(picture(run)->size(), QSize(0, 0));
    }

    void fieldOfAnotherTypeShowsNothing()
    {
        EditorRun run(*m_editor, field());
        run.select(&m_tool->node->sfString);
        QVERIFY(thumbnail(run)->pixmap(Qt::ReturnByValue).isNull());
    }

    void nullFieldShowsNothing()
    {
        const EditorRun run(*m_editor, field());
        m_editor->setField(nullptr);
        m_editor->updateFromField();
        QVERIFY(thumbnail(run)->pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(picture(run)->size(), QSize(0, 0));
    }

    void vastImageLeavesOneCopy()
    {
        constexpr short side = 16384;
        constexpr std::size_t pixels = std::size_t{side} * side;
        // The field's byte a pixel, the buffer's while it is converted, and the four of the picture.
        const auto available
            = static_cast<std::size_t>(sysconf(_SC_AVPHYS_PAGES)) * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        if (available < 7 * pixels)
            QSKIP("This machine has too little memory left.");
        QVERIFY(field().setValue(VbVec2s(side, side), 1, std::vector<unsigned char>(pixels, 200)));
        const auto bytes = pMrd_memCnt->bytes.load();
        const std::size_t heap = heapBytes();
        const EditorRun run(*m_editor, field());
        QVERIFY(pMrd_memCnt->bytes.load() - bytes < std::int64_t{side});
        // The picture itself, and little besides.
        constexpr std::size_t pixelSize = 4;
        QVERIFY(heapBytes() - heap < pixelSize * pixels + pixels / 10);
        const QPixmap small = thumbnail(run)->pixmap(Qt::ReturnByValue);
        QCOMPARE(small.size(), QSize(side, side));
        QCOMPARE(small.cacheKey(), picture(run)->pixmap(Qt::ReturnByValue).cacheKey());
        QCOMPARE(picture(run)->size(), QSize(256, 256));
        QCOMPARE(thumbnail(run)->grab().toImage().pixel(8, 8), qRgb(200, 200, 200));
    }

private:
    [[nodiscard]] NxSFImage& field() const { return m_tool->node->sfImage; }
    [[nodiscard]] static QLabel* thumbnail(const EditorRun& run) { return run.find<QLabel>("m_imageBox"); }
    [[nodiscard]] static QLabel* picture(const EditorRun& run) { return run.find<QLabel>("pixmapLabel"); }

    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<DvSFImageWidget> m_editor;
};

QTEST_MAIN(TestDvSFImageWidget)
#include "tst_DvSFImageWidget.moc"
