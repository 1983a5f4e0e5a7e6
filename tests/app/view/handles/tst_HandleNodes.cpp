#include "app/view/handles/HandleCase.h"

#include "orvane/app/tree/NodeSelection.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace meridane;

/// Which nodes handles change, and where.
class TestHandleNodes : public HandleCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startHandles(); }
    void cleanup() { endTool(); }

    void offersATransformWhereThereIsNone()
    {
        choose(QStringLiteral("/right/greenSquare"), Qt::Key_W);
        auto* const note = view()->findChild<QWidget*>(QStringLiteral("handleNote"));
        auto* const offer = view()->findChild<QPushButton*>(QStringLiteral("handleOffer"));
        QVERIFY(note->isVisible());
        QVERIFY(offer->isVisible());
        QVERIFY(note->findChild<QLabel*>()->text().contains(QStringLiteral("greenSquare")));
        QVERIFY(view()->rect().contains(note->geometry()));
        NxNode* const square = transform(2)->getChild(1);
        QTest::mouseClick(offer, Qt::LeftButton);
        auto* const above = dynamic_cast<NxTransform*>(transform(2)->getChild(1));
        QVERIFY(above != nullptr);
        QCOMPARE(above->getChild(0), square);
        QCOMPARE(tree()->selectedNode(), above);
        QVERIFY(!note->isVisible());
        const QPoint from = onArm(0, 0.6);
        press(from);
        move(from + QPoint(20, 0));
        release(from + QPoint(20, 0));
        QVERIFY(above->translation.getValue()[0] > 0);
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 0, 0)); // not the nearest one above
        m_session->services().undo();
        m_session->services().undo();
        QCOMPARE(transform(2)->getChild(1), square);
        QCOMPARE(transform(2)->getNumChildren(), 2);
        m_session->services().redo();
        QCOMPARE(transform(2)->getChild(1), above);
        QCOMPARE(above->getNumChildren(), 1);
    }

    void saysWhatCantBeMoved()
    {
        show("nested.mrd");
        choose(QStringLiteral("/paint"), Qt::Key_W);
        const auto* const note = view()->findChild<QWidget*>(QStringLiteral("handleNote"));
        QVERIFY(note->isVisible());
        QVERIFY(!view()->findChild<QPushButton*>(QStringLiteral("handleOffer"))->isVisible());
        choose(QStringLiteral("/lamp"), Qt::Key_R);
        QVERIFY(note->findChild<QLabel*>()->text().contains(QStringLiteral("no size")));
        QTest::keyClick(view(), Qt::Key_Q);
        QVERIFY(!note->isVisible());
        choose(QStringLiteral("/ignoring"), Qt::Key_W);
        QVERIFY(!note->isVisible());
        press(onArm(0, 0.6));
        move(onArm(0, 0.9));
        release(onArm(0, 0.9));
        QVERIFY(note->isVisible());
        QVERIFY(note->findChild<QLabel*>()->text().contains(QStringLiteral("ignored")));
        QCOMPARE(transform(3)->translation.getValue(), VbVec3f(2, 0, 0));
    }

    void followsThePointerBelowOtherTransforms_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("below a mirror") << "/mirrored/inner";
        QTest::newRow("a matrix") << "/matrix";
        QTest::newRow("a light") << "/lamp";
        QTest::newRow("far from the origin") << "/far/away";
    }
    void followsThePointerBelowOtherTransforms()
    {
        QFETCH(QString, path);
        show("nested.mrd");
        for (const bool isPerspective : {true, false}) {
            choose(path, Qt::Key_W);
            view()->setProjection(isPerspective ? NxViewpoint::PERSPECTIVE : NxViewpoint::ORTHOGRAPHIC);
            view()->frameSelection();
            view()->lookAlong(VbVec3f(-0.4F, -0.5F, -1), VbVec3f(0, 1, 0));
            static_cast<void>(picture());
            for (const int axis : {0, 1, 2}) {
                const VbVec3d before = pivot();
                const QPoint from = onArm(axis, 0.7);
                const QPoint to = onArm(axis, 1.2);
                press(from);
                move(to);
                release(to);
                const VbVec3d way = subtract(pivot(), before);
                // Along that axis alone, by half an arm.
                const double wanted = projection().unitsPerPoint(before) * HandleShape::armLength / 2;
                for (int i = 0; i < 3; ++i)
                    QVERIFY2(std::abs(way[static_cast<std::size_t>(i)] - (i == axis ? wanted : 0)) < wanted / 8,
                        qPrintable(QStringLiteral("%1: %2, wanted %3")
                                       .arg(i)
                                       .arg(way[static_cast<std::size_t>(i)])
                                       .arg(wanted)));
                m_session->services().undo();
                QCOMPARE(length(subtract(pivot(), before)), 0.0);
            }
        }
    }

    void theParentsAxesAreMirroredWithIt()
    {
        show("nested.mrd");
        choose(QStringLiteral("/mirrored/inner"), Qt::Key_W);
        action("view.axesParent")->trigger();
        const auto* const inner = dynamic_cast<NxTransform*>(tree()->selectedNode());
        const QPoint from = onArm(0, -0.7, VbVec3d(1, 0, 0)); // the x arm points to the left
        press(from);
        type(QStringLiteral("2"));
        QTest::keyClick(view(), Qt::Key_Return);
        release(from);
        // Two units of the scene along the mirrored axis are one of the parent, which scales by 2.
        QCOMPARE(inner->translation.getValue(), VbVec3f(2, 0, 0));
        action("view.axesWorld")->trigger();
    }

    void movesSeveralNodesTogether()
    {
        show("nested.mrd");
        SceneTreeModel* const model = tree()->model();
        const QModelIndex mirrored = model->index(0, 0);
        const QModelIndex matrix = model->index(1, 0);
        choose(QStringLiteral("/mirrored/inner"), Qt::Key_W);
        const QModelIndex inner = tree()->selected();
        tree()->selection().selectIndexes({mirrored, inner, matrix}, matrix);
        const auto* const below = dynamic_cast<NxTransform*>(model->node(inner));
        const VbVec3f before = below->translation.getValue();
        const VbVec3f beforeAbove = transform(0)->translation.getValue();
        const VbMatrix beforeMatrix = dynamic_cast<NxMatrixTransform*>(model->node(matrix))->matrix.getValue();
        const int depth = m_session->services().undoDepth();
        press(onArm(1, 0.6));
        type(QStringLiteral("x 1 y 3"));
        QTest::keyClick(view(), Qt::Key_Return);
        release(onArm(1, 0.6));
        QCOMPARE(transform(0)->translation.getValue(), VbVec3f(beforeAbove[0] + 1, beforeAbove[1] + 3, 0));
        const VbMatrix& afterMatrix = dynamic_cast<NxMatrixTransform*>(model->node(matrix))->matrix.getValue();
        QCOMPARE(afterMatrix[3][0], beforeMatrix[3][0] + 1);
        QCOMPARE(afterMatrix[3][1], beforeMatrix[3][1] + 3);
        QCOMPARE(below->translation.getValue(), before); // it goes with the one above it
        QCOMPARE(m_session->services().undoDepth(), depth + 1);
        m_session->services().undo();
        QCOMPARE(transform(0)->translation.getValue(), beforeAbove);
        QCOMPARE(dynamic_cast<NxMatrixTransform*>(model->node(matrix))->matrix.getValue(), beforeMatrix);
    }
};

QTEST_MAIN(TestHandleNodes)
#include "tst_HandleNodes.moc"
