#include "gl/FloatMatrices.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"

#include <QTest>

#include <cmath>

using namespace meridane;

/// Pictures of a part of what a viewpoint shows.
class TestViewpointPart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPartIsDrawnWhereItIsInTheWhole_data()
    {
        QTest::addColumn<NxViewpoint::Projection>("projection");
        QTest::newRow("perspective") << NxViewpoint::PERSPECTIVE;
        QTest::newRow("orthographic") << NxViewpoint::ORTHOGRAPHIC;
    }
    void aPartIsDrawnWhereItIsInTheWhole()
    {
        QFETCH(const NxViewpoint::Projection, projection);
        constexpr float aspect = 1.5F;
        NxViewpoint whole;
        whole.setProjection(projection);
        whole.orbit(0.7F, 0.4F);
        NxViewpoint part = whole;
        part.partMin = VbVec2f(0.25F, 0.5F);
        part.partMax = VbVec2f(0.75F, 0.75F);
        QCOMPARE(part.partSize(), VbVec2f(0.5F, 0.25F));
        const float partAspect = aspect * 0.5F / 0.25F;
        const VbMatrix matrix = multiply(viewMatrix(part), part.projectionMatrix(partAspect, 0.1F, 100));
        for (const VbVec2f& place : {VbVec2f(0.25F, 0.5F), VbVec2f(0.6F, 0.7F), VbVec2f(0.9F, 0.1F)}) {
            const VbVec3f clipped = transformPoint(narrowed(whole.pointAt(place, aspect, 4)), matrix);
            QVERIFY(std::abs((clipped[0] + 1) / 2 - (place[0] - 0.25F) / 0.5F) < 1e-3F);
            QVERIFY(std::abs((clipped[1] + 1) / 2 - (place[1] - 0.5F) / 0.25F) < 1e-3F);
        }
    }

    void aPartWithoutASizeIsTheWhole()
    {
        NxViewpoint viewpoint;
        viewpoint.partMax = viewpoint.partMin;
        QCOMPARE(viewpoint.partSize(), VbVec2f(1, 1));
        QCOMPARE(viewpoint.projectionMatrix(2, 1, 10)[0][0], NxViewpoint().projectionMatrix(2, 1, 10)[0][0]);
    }
};

QTEST_GUILESS_MAIN(TestViewpointPart)
#include "tst_ViewpointPart.moc"
