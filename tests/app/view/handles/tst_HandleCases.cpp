#include "app/view/handles/HandleCase.h"

#include "orvane/app/tree/NodeSelection.h"

#include "meridane/scene/nodes/NxMatrixTransform.h"

#include <QAbstractButton>
#include <QTest>

using namespace meridane;

namespace {

constexpr const char* square
    = "Mesh \"square\" { positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]; indices = [0, 1, 2, 0, 2, 3] }";

/// Nodes that are hard to move: below a scale that differs along the axes, used twice, and flat.
QByteArray hardScene()
{
    const QByteArray mesh = square;
    return "#mrd 1.0\n"
           "Transform \"stretched\" { rotation = 0 0 1 0.5; scaleFactor = 1 3 1\n"
           "  Transform \"inner\" { translation = 1 0 0\n    "
        + mesh
        + "\n  }\n}\n"
          "Transform \"left\" { translation = -6 0 0\n  Transform \"shared\" { translation = 0 3 0\n    "
        + mesh
        + "\n  }\n}\n"
          "Transform \"right\" { translation = 6 0 0; scaleFactor = -2 1 1\n  use \"shared\"\n}\n"
          "Transform \"flat\" { translation = 0 -6 0; scaleFactor = 1 0 1\n  Transform \"below\" {\n    "
        + mesh
        + "\n  }\n}\n"
          "MatrixTransform \"matrix\" { matrix = 1 0.5 0 0 0 1 0 0 0 0 1 0 12 0 0 1\n  "
        + mesh + "\n}\n";
}

} // namespace

/// Handles of nodes that are hard to move, and drags that are interrupted.
class TestHandleCases : public HandleCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startHandles();
        writeFile(filePath("hard.mrd"), hardScene());
        show("hard.mrd");
    }
    void cleanup() { endTool(); }

    void movesBelowAScaleThatDiffersAlongItsAxes()
    {
        take("/stretched/inner", Qt::Key_W);
        const VbVec3d before = pivot();
        dragNumbers(onArm(1, 0.6), QStringLiteral("x 1 y 2"));
        QVERIFY(length(subtract(pivot(), add(before, VbVec3d(1, 2, 0)))) < 1e-5);
        m_session->services().undo();
        QCOMPARE(length(subtract(pivot(), before)), 0.0);
    }

    void turnsBelowAScaleThatDiffersAlongItsAxes()
    {
        take("/stretched/inner", Qt::Key_E);
        const auto* const inner = dynamic_cast<NxTransform*>(tree()->selectedNode());
        const VbVec3d before = pivot();
        dragNumbers(onRing(30), QStringLiteral("90"));
        // In the units of the parent: the angle is that which was typed, about the same axis and point.
        const VbRotation rotation = inner->rotation.getValue();
        QVERIFY(std::abs(rotation.getAngle() * rotation.getAxis()[2] - std::numbers::pi_v<float> / 2) < 1e-4F);
        QVERIFY(length(subtract(pivot(), before)) < 1e-6);
        QCOMPARE(inner->scaleFactor.getValue(), VbVec3f(1, 1, 1));
    }

    void aSharedNodeIsMovedInThePlaceThatWasPicked()
    {
        for (const char* const path : {"/left/shared", "/right/shared"}) {
            take(path, Qt::Key_Q);
            const auto place = projection().placeOf(pivot());
            tree()->select(QModelIndex());
            // A click on that place picks the mesh there, above which is the shared node.
            QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, QPoint(qRound((*place)[0]), qRound((*place)[1])));
            const QModelIndex above = tree()->selected().parent();
            QCOMPARE(above.parent().data().toString(), QLatin1String(path).toString().section(u'/', 1, 1));
            tree()->select(above);
            view()->setFocus();
            QTest::keyClick(view(), Qt::Key_W);
            const VbVec3d before = pivot();
            auto* const shared = dynamic_cast<NxTransform*>(tree()->selectedNode());
            const VbVec3f local = shared->translation.getValue();
            dragNumbers(onArm(1, 0.6), QStringLiteral("x 1"));
            // One unit in the scene at that place, which is half a unit backwards in the mirrored one.
            QVERIFY(length(subtract(pivot(), add(before, VbVec3d(1, 0, 0)))) < 1e-5);
            const bool isMirrored = QByteArray(path) == "/right/shared";
            QCOMPARE(shared->translation.getValue()[0], local[0] + (isMirrored ? -0.5F : 1.0F));
            m_session->services().undo();
            QCOMPARE(shared->translation.getValue(), local);
        }
    }

    void aNodeThatIsFlatCanBeMovedAndWhatIsBelowItStays()
    {
        take("/flat", Qt::Key_W);
        auto* const flat = dynamic_cast<NxTransform*>(tree()->selectedNode());
        dragNumbers(onArm(0, 0.6), QStringLiteral("y 2"));
        QCOMPARE(flat->translation.getValue(), VbVec3f(0, -4, 0));
        QCOMPARE(flat->scaleFactor.getValue(), VbVec3f(1, 0, 1));
        take("/flat", Qt::Key_R);
        dragNumbers(onArm(0, 1), QStringLiteral("2"));
        QCOMPARE(flat->scaleFactor.getValue(), VbVec3f(2, 0, 1));
        take("/flat/below", Qt::Key_W);
        const auto* const below = dynamic_cast<NxTransform*>(tree()->selectedNode());
        dragNumbers(onArm(0, 0.6), QStringLiteral("x 2"));
        QCOMPARE(below->translation.getValue(), VbVec3f(0, 0, 0));
    }

    void aMatrixIsMovedTurnedAndScaled()
    {
        const auto matrixOf
            = [this] { return dynamic_cast<NxMatrixTransform*>(tree()->selectedNode())->matrix.getValue(); };
        take("/matrix", Qt::Key_W);
        const VbMatrix before = matrixOf();
        dragNumbers(onArm(1, 0.6), QStringLiteral("x -2 y 1"));
        QCOMPARE(matrixOf()[3][0], before[3][0] - 2);
        QCOMPARE(matrixOf()[3][1], before[3][1] + 1);
        QTest::keyClick(view(), Qt::Key_E);
        dragNumbers(onRing(40), QStringLiteral("90"));
        // The first row is where the x axis of the node leads: (1, 0.5) turned by a quarter is (-0.5, 1).
        QVERIFY(std::abs(matrixOf()[0][0] + 0.5F) < 1e-5F && std::abs(matrixOf()[0][1] - 1) < 1e-5F);
        m_session->services().undo();
        QTest::keyClick(view(), Qt::Key_R);
        dragNumbers(onArm(0, 1), QStringLiteral("3"));
        QVERIFY(std::abs(matrixOf()[0][0] - 3) < 1e-5F && std::abs(matrixOf()[0][1] - 0.5F) < 1e-5F);
        m_session->services().undo();
        m_session->services().undo();
        QCOMPARE(matrixOf(), before);
    }

    void escapePutsAllNodesBack()
    {
        SceneTreeModel* const model = tree()->model();
        take("/left", Qt::Key_W);
        tree()->selection().selectIndexes(
            {model->index(0, 0), model->index(1, 0), model->index(4, 0)}, model->index(1, 0));
        const auto* const matrix = dynamic_cast<NxMatrixTransform*>(model->node(model->index(4, 0)));
        const VbMatrix beforeMatrix = matrix->matrix.getValue();
        const VbVec3f before[] = {transform(0)->translation.getValue(), transform(1)->translation.getValue()};
        const int depth = m_session->services().undoDepth();
        const QPoint from = onArm(1, 0.6);
        press(from);
        move(from + QPoint(0, -40));
        QVERIFY(!(transform(0)->translation.getValue() == before[0]));
        QVERIFY(!(transform(1)->translation.getValue() == before[1]));
        QVERIFY(!(matrix->matrix.getValue() == beforeMatrix));
        QTest::keyClick(view(), Qt::Key_Escape);
        release(from + QPoint(0, -40));
        QCOMPARE(transform(0)->translation.getValue(), before[0]);
        QCOMPARE(transform(1)->translation.getValue(), before[1]);
        QCOMPARE(matrix->matrix.getValue(), beforeMatrix);
        QCOMPARE(m_session->services().undoDepth(), depth);
        QCOMPARE(tree()->selection().indexes().size(), 3);
    }

    void anIsolatedNodeIsMoved()
    {
        take("/left", Qt::Key_W);
        action("node.isolate")->trigger();
        static_cast<void>(picture());
        const VbVec3d before = pivot();
        dragNumbers(onArm(1, 0.6), QStringLiteral("x 1"));
        QVERIFY(length(subtract(pivot(), add(before, VbVec3d(1, 0, 0)))) < 1e-6);
    }

    void theHandlesFollowTheSelectionWhileAnInspectorIsLocked()
    {
        take("/left", Qt::Key_W);
        auto* const lock = m_window->findChild<QAbstractButton*>(QStringLiteral("lockButton"));
        QVERIFY(lock != nullptr);
        lock->click();
        take("/right", Qt::Key_W);
        const VbVec3f locked = transform(1)->translation.getValue();
        const VbVec3f before = transform(2)->translation.getValue();
        dragNumbers(onArm(1, 0.6), QStringLiteral("y 1"));
        QCOMPARE(transform(1)->translation.getValue(), locked);
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(before[0], before[1] + 1, before[2]));
    }

    void undoDuringADragChangesNothingAndTheDragGoesOn()
    {
        take("/left", Qt::Key_W);
        dragNumbers(onArm(1, 0.6), QStringLiteral("x 1")); // a step that could be undone
        const VbVec3f before = transform(1)->translation.getValue();
        const int depth = m_session->services().undoDepth();
        const QPoint from = onArm(1, 0.6);
        press(from);
        move(from + QPoint(0, -40));
        const VbVec3f during = transform(1)->translation.getValue();
        QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(transform(1)->translation.getValue(), during);
        release(from + QPoint(0, -40));
        QCOMPARE(m_session->services().undoDepth(), depth + 1);
        QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(transform(1)->translation.getValue(), before);
    }

    // By somebody else than the user, whose keys mean nothing meanwhile.
    void theNodeMayBeUndoneDuringADrag()
    {
        take("/left", Qt::Key_W);
        QTest::keyClick(tree()->findChild<QTreeView*>(), Qt::Key_D, Qt::ControlModifier); // a copy of it
        NxGroup* const scene = m_window->document().scene();
        const int count = scene->getNumChildren();
        QCOMPARE(count, 6);
        view()->setFocus();
        static_cast<void>(picture());
        const NxRef<NxNode> copy(tree()->selectedNode());
        QVERIFY(copy.get() != transform(1));
        const QPoint from = onArm(1, 0.6);
        press(from);
        move(from + QPoint(0, -40));
        m_session->services().undo();
        m_session->services().undo();
        AppScenes::runSensors();
        QCOMPARE(scene->getNumChildren(), count - 1);
        move(from + QPoint(0, -60));
        QTest::keyClick(view(), Qt::Key_Escape);
        release(from + QPoint(0, -60));
        static_cast<void>(picture());
        QCOMPARE(scene->getNumChildren(), count - 1);
        m_session->services().redo();
        QCOMPARE(scene->getNumChildren(), count);
        QCOMPARE(transform(1)->translation.getValue(), VbVec3f(-6, 0, 0));
    }

private:
    /// Chooses a node and its handles, and looks at it from the front.
    void take(const char* path, Qt::Key key)
    {
        choose(QLatin1String(path), key);
        view()->frameSelection();
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        static_cast<void>(picture());
    }

    /// Presses there, types numbers and accepts them.
    void dragNumbers(const QPoint& from, const QString& numbers)
    {
        press(from);
        type(numbers);
        QTest::keyClick(view(), Qt::Key_Return);
        release(from);
        static_cast<void>(picture());
    }
};

QTEST_MAIN(TestHandleCases)
#include "tst_HandleCases.moc"
