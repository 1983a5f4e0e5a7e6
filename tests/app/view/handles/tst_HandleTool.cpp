#include "app/view/handles/HandleCase.h"

#include <QTest>

using namespace meridane;

/// Drags handles with the mouse, as a user does.
class TestHandleTool : public HandleCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startHandles(); }
    void cleanup() { endTool(); }

    void movesAlongAnAxisInOneStep()
    {
        choose(QStringLiteral("/right"), Qt::Key_W);
        const VbVec3f before = transform(2)->translation.getValue();
        const QPoint from = onArm(0, 0.6);
        const double perPoint = projection().unitsPerPoint(pivot());
        const int depth = m_session->services().undoDepth();
        press(from);
        move(from + QPoint(30, 2));
        // Live: the field has the value before the button is released.
        QVERIFY(
            std::abs(transform(2)->translation.getValue()[0] - before[0] - 30 * static_cast<float>(perPoint)) < 0.01F);
        move(from + QPoint(50, -4));
        QTRY_VERIFY(fieldText(QStringLiteral("translation")) != QStringLiteral("2 0 0"));
        release(from + QPoint(50, -4));
        const VbVec3f after = transform(2)->translation.getValue();
        QVERIFY(std::abs(after[0] - before[0] - 50 * static_cast<float>(perPoint)) < 0.01F);
        QCOMPARE(after[1], before[1]);
        QCOMPARE(after[2], before[2]);
        QCOMPARE(m_session->services().undoDepth(), depth + 1);
        QVERIFY2(m_session->services().undoText().contains(QStringLiteral("right")),
            qPrintable(m_session->services().undoText()));
        m_session->services().undo();
        QCOMPARE(transform(2)->translation.getValue(), before);
        m_session->services().redo();
        QCOMPARE(transform(2)->translation.getValue(), after);
    }

    void theHandlesAreSeenAndGo()
    {
        choose(QStringLiteral("/right"), Qt::Key_Q);
        const QImage without = picture();
        QTest::keyClick(view(), Qt::Key_W);
        const QImage with = picture();
        const QPoint arm = onArm(0, 0.8);
        const QPoint pixel = arm * static_cast<int>(with.devicePixelRatio());
        QVERIFY(!ViewScenes::isLike(with.pixelColor(pixel), without.pixelColor(pixel)));
        move(arm, Qt::NoModifier, Qt::NoButton); // highlighted
        QVERIFY(!ViewScenes::isLike(picture().pixelColor(pixel), with.pixelColor(pixel)));
        QTest::keyClick(view(), Qt::Key_Q);
        QCOMPARE(picture().pixelColor(pixel), without.pixelColor(pixel));
        QVERIFY(action("view.handlesNone")->isChecked());
    }

    void escapeAndTheRightButtonRestore()
    {
        choose(QStringLiteral("/right"), Qt::Key_W);
        const VbVec3f before = transform(2)->translation.getValue();
        const int depth = m_session->services().undoDepth();
        const QPoint from = onArm(0, 0.6);
        press(from);
        move(from + QPoint(40, 0));
        QVERIFY(!(transform(2)->translation.getValue() == before));
        QTest::keyClick(view(), Qt::Key_Escape);
        QCOMPARE(transform(2)->translation.getValue(), before);
        move(from + QPoint(60, 0)); // the drag is over
        release(from + QPoint(60, 0));
        QCOMPARE(transform(2)->translation.getValue(), before);
        press(from);
        move(from + QPoint(40, 0));
        QTest::mousePress(view(), Qt::RightButton, Qt::NoModifier, from + QPoint(40, 0));
        QCOMPARE(transform(2)->translation.getValue(), before);
        QTest::mouseRelease(view(), Qt::RightButton, Qt::NoModifier, from + QPoint(40, 0));
        release(from + QPoint(40, 0));
        QCOMPARE(transform(2)->translation.getValue(), before);
        QCOMPARE(m_session->services().undoDepth(), depth);
        QCOMPARE(tree()->selectedNode(), transform(2)); // Escape has not deselected
    }

    void takesNumbersThatAreTyped()
    {
        choose(QStringLiteral("/right"), Qt::Key_W);
        const NxViewpoint before = view()->viewpoint();
        const QPoint from = onArm(0, 0.6);
        press(from);
        move(from + QPoint(40, 0));
        type(QStringLiteral("y 2.55"));
        QTest::keyClick(view(), Qt::Key_Backspace);
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 2.5F, 0));
        move(from + QPoint(45, 0)); // the number counts
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 2.5F, 0));
        type(QStringLiteral(" x -1"));
        QTest::keyClick(view(), Qt::Key_Return);
        release(from + QPoint(45, 0));
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(1, 2.5F, 0));
        QCOMPARE(view()->viewpoint(), before); // 1 and 2 looked along no axis
        m_session->services().undo();
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 0, 0));
    }

    void snapsWithControl()
    {
        choose(QStringLiteral("/right"), Qt::Key_E);
        const QPoint from = onRing(20);
        press(from, Qt::ControlModifier);
        for (int degrees = 30; degrees <= 63; degrees += 3)
            move(onRing(degrees), Qt::ControlModifier);
        release(onRing(63));
        const VbRotation rotation = transform(2)->rotation.getValue();
        QVERIFY(std::abs(std::abs(rotation.getAngle()) - std::numbers::pi_v<float> / 4) < 1e-5F);
        QVERIFY(std::abs(rotation.getAxis()[2] * rotation.getAngle() - std::numbers::pi_v<float> / 4) < 1e-4F);
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 0, 0));
    }

    void scalesAlongTheOwnAxes()
    {
        choose(QStringLiteral("/right"), Qt::Key_R);
        const QPoint from = onArm(1, 1);
        press(from);
        const QPoint to = onArm(1, 1.5);
        move(to);
        release(to);
        QVERIFY(std::abs(transform(2)->scaleFactor.getValue()[1] - 1.5F) < 0.03F);
        QCOMPARE(transform(2)->scaleFactor.getValue()[0], 1.F);
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 0, 0));
    }

    void otherKeysMeanNothingDuringADrag()
    {
        choose(QStringLiteral("/right"), Qt::Key_W);
        const NxViewpoint before = view()->viewpoint();
        const QPoint from = onArm(0, 0.6);
        press(from);
        move(from + QPoint(40, 0));
        const VbVec3f during = transform(2)->translation.getValue();
        QTest::keyClick(view(), Qt::Key_A);
        QTest::keyClick(view(), Qt::Key_Delete);
        QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(view()->viewpoint(), before);
        QCOMPARE(transform(2)->translation.getValue(), during);
        release(from + QPoint(40, 0));
        QCOMPARE(transform(2)->translation.getValue(), during);
    }

    void theSceneMayBeClosedDuringADrag()
    {
        choose(QStringLiteral("/right"), Qt::Key_W);
        const QPoint from = onArm(0, 0.6);
        press(from);
        move(from + QPoint(40, 0));
        view()->setScene(nullptr, QString());
        QCOMPARE(transform(2)->translation.getValue(), VbVec3f(2, 0, 0));
        move(from + QPoint(60, 0));
        release(from + QPoint(60, 0));
        QVERIFY(!m_session->document().isModified());
        QVERIFY(!picture().isNull());
    }

    void isKeptFromRunToRun()
    {
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_E);
        action("view.axesOwn")->trigger();
        makeWindow();
        QVERIFY(action("view.handlesTurn")->isChecked());
        QVERIFY(action("view.axesOwn")->isChecked());
    }
};

QTEST_MAIN(TestHandleTool)
#include "tst_HandleTool.moc"
