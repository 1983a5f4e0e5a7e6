#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

/// Outlines of what a selected material or texture applies to.
class TestOutlinedLooks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void aMaterialOutlinesWhatItAppliesTo()
    {
        const auto first = plain(0, 0, 1);
        const auto second = plain(0, 0, 1);
        const auto left = rectangle(-0.8F, -0.2F, -0.4F, 0.2F);
        const auto middle = rectangle(-0.2F, -0.2F, 0.2F, 0.2F);
        const auto right = rectangle(0.4F, -0.2F, 0.8F, 0.2F);
        const auto inner = groupOf({middle.get(), second.get(), right.get()});
        const auto scene = groupOf({first.get(), left.get(), inner.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 4;
        });
        m_bench.drawing().setScene(scene.get());
        const auto outlined = [this] {
            const QImage picture = m_bench.draw();
            QString names;
            for (const double x : {-0.36, 0.24, 0.84})
                names += pixelAt(picture, x, 0).red() > 200 ? QLatin1Char('#') : QLatin1Char('-');
            return names;
        };
        m_bench.drawing().setSelectedPath(std::vector<NxNode*>{first.get()});
        QCOMPARE(outlined(), QStringLiteral("##-"));
        m_bench.drawing().setSelectedPath(std::vector<NxNode*>{inner.get(), second.get()});
        QCOMPARE(outlined(), QStringLiteral("--#"));
        m_bench.drawing().setSelectedNode(second.get());
        QCOMPARE(outlined(), QStringLiteral("--#"));
        inner->removeChild(1); // now the first one applies to the right one, too
        m_bench.drawing().setSelectedPath(std::vector<NxNode*>{first.get()});
        QCOMPARE(outlined(), QStringLiteral("###"));
        m_bench.drawing().setScene(nullptr);
    }

    void aTextureOutlinesWhatItAppliesTo_data()
    {
        QTest::addColumn<int>("role");
        QTest::newRow("colour") << int{NxTexture::COLOR};
        QTest::newRow("normals") << int{NxTexture::NORMAL};
    }
    void aTextureOutlinesWhatItAppliesTo()
    {
        QFETCH(const int, role);
        const auto makeTexture = [role] {
            const NxRef<NxTexture> texture(new NxTexture);
            texture->image.setValue(VbVec2s(1, 1), 3, std::vector<unsigned char>{128, 128, 255});
            texture->role.setValue(role);
            return texture;
        };
        const NxRef<NxTexture> first = makeTexture();
        const NxRef<NxTexture> second = makeTexture();
        const auto left = rectangle(-0.8F, -0.2F, -0.4F, 0.2F);
        const auto right = rectangle(0.4F, -0.2F, 0.8F, 0.2F);
        const auto scene = groupOf({first.get(), left.get(), second.get(), right.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 4;
        });
        m_bench.drawing().setScene(scene.get());
        for (NxTexture* const texture : {first.get(), second.get()}) {
            m_bench.drawing().setSelectedPath(std::vector<NxNode*>{texture});
            const QImage picture = m_bench.draw();
            const auto isOutlined = [&](double x) {
                const QColor color = pixelAt(picture, x, 0);
                return color.red() > 200 && color.green() < 60 && color.blue() < 60;
            };
            QCOMPARE(isOutlined(-0.36), texture == first.get());
            QCOMPARE(isOutlined(0.84), texture == second.get());
        }
        m_bench.drawing().setScene(nullptr);
    }

private:
    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestOutlinedLooks)
#include "tst_OutlinedLooks.moc"
