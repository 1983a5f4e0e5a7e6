#include "FieldEditors/SFWidgets/ImagePixmap.h"
#include "plugin/ToolHarness.h"

#include "meridane/base/MrdMemory.h"

#include <QPixmap>

#include <vector>

class TestImagePixmap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }
    void cleanup() { m_tool.reset(); }

    void oneComponentIsGreyFromTheFirstRowDown()
    {
        set(4, 2, 1, {0, 1, 127, 255, 10, 20, 30, 40});
        QCOMPARE(rows(), Rows({{grey(0), grey(1), grey(127), grey(255)}, {grey(10), grey(20), grey(30), grey(40)}}));
    }

    void twoComponentsAreOnePixelOf565FromTheFirstRowDown()
    {
        set(2, 2, 2, {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00, 0xFF, 0xFF});
        QCOMPARE(rows(), Rows({{qRgb(255, 0, 0), qRgb(0, 255, 0)}, {qRgb(0, 0, 255), qRgb(255, 255, 255)}}));
    }

    void threeComponentsAreColoursFromTheLastRowDown()
    {
        QTest::ignoreMessage(QtWarningMsg, "QImage::setColor: Index out of bound 0");
        set(2, 2, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
        QCOMPARE(rows(), Rows({{qRgb(7, 8, 9), qRgb(10, 11, 12)}, {qRgb(1, 2, 3), qRgb(4, 5, 6)}}));
    }

    void fourComponentsBringTheirOpacity()
    {
        set(1, 3, 4, {255, 0, 0, 255, 0, 255, 0, 255, 9, 9, 9, 0});
        QCOMPARE(rows(), Rows({{0}, {qRgb(0, 255, 0)}, {qRgb(255, 0, 0)}}));
        set(1, 1, 4, {255, 0, 0, 51});
        QCOMPARE(rows(), Rows({{qRgba(255, 0, 0, 51)}}));
    }

    void rowsThatFillNoWordsAreSheared_data()
    {
        QTest::addColumn<int>("components");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Rows>("expected");
        QTest::newRow("one") << 1 << QByteArray("\1\2\3\4\5\6")
                             << Rows({{grey(1), grey(2), grey(3)}, {grey(5), grey(6), grey(0)}});
        QTest::newRow("two") << 2 << QByteArray("\0\xF8\0\xF8\0\xF8\x1F\0\x1F\0\x1F\0", 12)
                             << Rows({QList<QRgb>(3, qRgb(255, 0, 0)),
                                    {qRgb(0, 0, 255), qRgb(0, 0, 255), qRgb(0, 0, 0)}});
    }

    void rowsThatFillNoWordsAreSheared()
    {
        QFETCH(int, components);
        QFETCH(QByteArray, bytes);
        QFETCH(Rows, expected);
        set(3, 2, components, Bytes(bytes.begin(), bytes.end()));
        QCOMPARE(rows(), expected);
    }

    void bufferIsGivenBack_data()
    {
        QTest::addColumn<int>("components");
        for (int components = 1; components <= 4; ++components)
            QTest::addRow("%d", components) << components;
    }

    void bufferIsGivenBack()
    {
        QFETCH(int, components);
        set(33, 17, components, Bytes(static_cast<std::size_t>(33 * 17 * components)));
        const auto blocks = pMrd_memCnt->blocks.load();
        const auto bytes = pMrd_memCnt->bytes.load();
        const QPixmap pixmap = orvane::imagePixmap(field());
        QCOMPARE(pixmap.size(), QSize(33, 17));
        QCOMPARE(pMrd_memCnt->blocks.load(), blocks);
        QCOMPARE(pMrd_memCnt->bytes.load(), bytes);
    }

    void pixmapOutlivesTheFieldsValue()
    {
        set(1, 1, 3, {1, 2, 3});
        const QPixmap pixmap = orvane::imagePixmap(field());
        set(1, 1, 3, {4, 5, 6});
        QCOMPARE(pixmap.toImage().pixel(0, 0), qRgb(1, 2, 3));
    }

    void imageWithoutDataGivesNone() { QVERIFY(orvane::imagePixmap(field()).isNull()); }

    void fieldOfAnotherTypeGivesNone() { QVERIFY(orvane::imagePixmap(m_tool->node->sfString).isNull()); }

private:
    using Bytes = std::vector<unsigned char>;
    using Rows = QList<QList<QRgb>>;
    void set(short width, short height, int components, Bytes bytes)
    {
        [&] { QVERIFY(field().setValue(VbVec2s(width, height), components, std::move(bytes))); }();
    }
    [[nodiscard]] Rows rows() const
    {
        const QImage image = orvane::imagePixmap(field()).toImage().convertToFormat(QImage::Format_ARGB32);
        Rows rows;
        for (int y = 0; y < image.height(); ++y) {
            rows.append(QList<QRgb>());
            for (int x = 0; x < image.width(); ++x)
                rows.back() << image.pixel(x, y);
        }
        return rows;
    }
    [[nodiscard]] NxSFImage& field() const { return m_tool->node->sfImage; }
    static QRgb grey(int value) { return qRgb(value, value, value); }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestImagePixmap)
#include "tst_ImagePixmap.moc"
