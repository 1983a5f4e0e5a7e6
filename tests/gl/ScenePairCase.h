#pragma once

#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <functional>
#include <initializer_list>
#include <memory>

/// A rectangle on the leftand one on the right, each behind a material in a transform, lit by the camera.
struct ScenePair {
    ScenePair()
    {
        left->translation.setValue(VbVec3f(-0.5F, 0, 0));
        right->translation.setValue(VbVec3f(0.5F, 0, 0));
        for (NxGroup* group : std::initializer_list<NxGroup*>{left.get(), right.get()})
            scene->addChild(group);
        left->addChild(leftMaterial.get());
        left->addChild(leftMesh.get());
        right->addChild(rightMaterial.get());
        right->addChild(rightMesh.get());
    }

    NxRef<NxGroup> scene = new NxGroup;
    NxRef<NxTransform> left = new NxTransform;
    NxRef<NxTransform> right = new NxTransform;
    NxRef<NxMaterial> leftMaterial = plain(1, 0, 0);
    NxRef<NxMaterial> rightMaterial = plain(0, 1, 0);
    NxRef<NxMesh> leftMesh = rectangle(-0.3F, -0.3F, 0.3F, 0.3F);
    NxRef<NxMesh> rightMesh = rectangle(-0.3F, -0.3F, 0.3F, 0.3F, 0.1F);
};

/// A test that changes a drawn pair.
class ScenePairCase : public QObject {
protected:
    using Edit = std::function<void(ScenePair&)>;

    /// Bytes of the four positions, of the six indices and of a whole rectangle in the GPU.
    static constexpr std::uint64_t positionBytes = 4 * 12;
    static constexpr std::uint64_t indexBytes = 6 * 4;
    static constexpr std::uint64_t coordinateBytes = 4 * 8;
    static constexpr std::uint64_t rectangleBytes = 2 * positionBytes + coordinateBytes + indexBytes;

    /// Draws a new pair.
    void drawPair()
    {
        m_bench = std::make_unique<DrawingBench>();
        m_pair = std::make_unique<ScenePair>();
        m_bench->drawing().setScene(m_pair->scene.get());
        m_picture = m_bench->draw();
        QCOMPARE(m_bench->counts().meshUploads, 2U);
        QCOMPARE(m_bench->counts().uploadedBytes, 2 * rectangleBytes);
        COMPARE_PIXEL(m_picture, -0.5, 0, red);
        COMPARE_PIXEL(m_picture, 0.5, 0, green);
    }

    /// Ends the drawing, which must have reported nothing.
    void endDrawing()
    {
        const QStringList messages = m_bench->takeMessages();
        m_bench.reset();
        m_pair.reset();
        QCOMPARE(messages, QStringList());
    }

    std::unique_ptr<DrawingBench> m_bench;
    std::unique_ptr<ScenePair> m_pair;
    QImage m_picture;
};
