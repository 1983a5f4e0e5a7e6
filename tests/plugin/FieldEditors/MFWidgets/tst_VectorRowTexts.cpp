#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"
#include "plugin/FieldEditors/MFWidgets/RowEditorRun.h"

#include <cmath>

// What only some of the vector, plane and rotation rows do with a typed text.
class TestVectorRowTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void shortsTakeAnyText_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("value");
        QTest::newRow("number") << QStringLiteral("-12") << QStringLiteral("[-12 2]");
        QTest::newRow("least") << QStringLiteral("-32768") << QStringLiteral("[-32768 2]");
        QTest::newRow("word") << QStringLiteral("abc") << QStringLiteral("[0 2]");
        QTest::newRow("beyond a short") << QStringLiteral("32768") << QStringLiteral("[0 2]");
        QTest::newRow("fraction") << QStringLiteral("1.5") << QStringLiteral("[0 2]");
        QTest::newRow("empty") << QString() << QStringLiteral("[0 2]");
        QTest::newRow("very long") << QString(10000, QLatin1Char('9')) << QStringLiteral("[0 2]");
    }

    void shortsTakeAnyText()
    {
        QFETCH(QString, typed);
        QFETCH(QString, value);
        const RowEditorRun run(std::make_unique<DvMFVec2sWidget>(), QStringLiteral("MFVec2s"), QStringLiteral("[1 2]"));
        QLineEdit* const line = run.open(0, 0);
        line->clear();
        line->insert(typed);
        QTest::keyClick(line, Qt::Key_Return);
        RowEditorRun::settle();
        QCOMPARE(run.text(), value);
        QCOMPARE(run.pushed(), 1);
    }

    void validatorHoldsTextBack_data()
    {
        QTest::addColumn<bool>("isReal");
        QTest::addColumn<QString>("typed");
        QTest::newRow("a sign") << true << QStringLiteral("-");
        QTest::newRow("an exponent") << true << QStringLiteral("1e");
        QTest::newRow("empty") << true << QString();
        QTest::newRow("beyond a float") << true << QStringLiteral("1e39");
        QTest::newRow("a sign, whole") << false << QStringLiteral("-");
        QTest::newRow("empty, whole") << false << QString();
    }

    void validatorHoldsTextBack()
    {
        QFETCH(bool, isReal);
        QFETCH(QString, typed);
        std::unique_ptr<DvMFieldWidget> editor = std::make_unique<DvMFVec2i32Widget>();
        if (isReal)
            editor = std::make_unique<DvMFVec2fWidget>();
        const QString type = isReal ? QStringLiteral("MFVec2f") : QStringLiteral("MFVec2i32");
        const RowEditorRun run(std::move(editor), type, QStringLiteral("[1 2]"));
        run.edit(0, 1, typed, Qt::Key_Tab);
        QCOMPARE(run.text(), QStringLiteral("[1 2]"));
        QCOMPARE(run.pushed(), 0);
    }

    void leastIntegerCantBeTyped()
    {
        const RowEditorRun run(
            std::make_unique<DvMFVec2i32Widget>(), QStringLiteral("MFVec2i32"), QStringLiteral("[1 2]"));
        run.edit(0, 1, QStringLiteral("-2147483648"));
        QCOMPARE(run.text(), QStringLiteral("[1 -214748364]")); // its last digit isn't taken
        run.edit(0, 1, QStringLiteral("-2147483647"));
        QCOMPARE(run.text(), QStringLiteral("[1 -2147483647]"));
    }

    void planeIsBuiltAnew_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<VbVec3f>("normal");
        QTest::addColumn<float>("distance");
        QTest::newRow("x") << 0 << QStringLiteral("0.75") << VbVec3f(0.6F, 0, 0.8F) << 5.0F;
        QTest::newRow("y") << 1 << QStringLiteral("0.75") << VbVec3f(0, 0.6F, 0.8F) << 5.0F;
        QTest::newRow("z") << 2 << QStringLiteral("-3") << VbVec3f(0, 0, -1) << 5.0F;
        QTest::newRow("no length") << 2 << QStringLiteral("0") << VbVec3f(0, 0, 0) << 5.0F;
        QTest::newRow("distance") << 3 << QStringLiteral("-2.5") << VbVec3f(0, 0, 1) << -2.5F;
    }

    void planeIsBuiltAnew()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(VbVec3f, normal);
        QFETCH(float, distance);
        const RowEditorRun run(
            std::make_unique<DvMFPlaneWidget>(), QStringLiteral("MFPlane"), QStringLiteral("[0 0 1 5]"));
        run.edit(0, column, typed);
        const VbPlane& plane = run.node().mfPlane[0];
        for (std::size_t index = 0; index < 3; ++index)
            QVERIFY(std::abs(plane.getNormal()[index] - normal[index]) < 1e-6F);
        QCOMPARE(plane.getDistanceFromOrigin(), distance);
        QCOMPARE(run.pushed(), 1);
    }

    void blankCellsOpenEmptyAndTakeText()
    {
        const RowEditorRun run(
            std::make_unique<DvMFRotationWidget>(), QStringLiteral("MFRotation"), QStringLiteral("[0 0 1 0]"));
        QCOMPARE(run.open(0, 1)->text(), QString());
        run.edit(0, 1, QStringLiteral("1"));
        const std::array<float, 4> quaternion = run.node().mfRotation[0].getQuaternion();
        QVERIFY(std::abs(quaternion[1] - 0.70710677F) < 1e-6F);
        QCOMPARE(run.editor->getCellValue(0, 1), QString());
    }

    void rotationKeepsTheFourthComponent()
    {
        // A turn by a right angle about x: 0.707 0 0 0.707, of which the third becomes 0.707.
        const RowEditorRun run(
            std::make_unique<DvMFRotationWidget>(), QStringLiteral("MFRotation"), QStringLiteral("[1 0 0 1.5707964]"));
        run.edit(0, 2, QStringLiteral("0.707107"));
        const std::array<float, 4> quaternion = run.node().mfRotation[0].getQuaternion();
        const float third = 1 / std::sqrt(3.0F);
        QVERIFY(std::abs(quaternion[0] - third) < 1e-5F);
        QVERIFY(std::abs(quaternion[1]) < 1e-5F);
        QVERIFY(std::abs(quaternion[2] - third) < 1e-5F);
        QVERIFY(std::abs(quaternion[3] - third) < 1e-5F);
    }

    void radiansHaveNoEffect()
    {
        const RowEditorRun run(
            std::make_unique<DvMFRotationWidget>(), QStringLiteral("MFRotation"), QStringLiteral("[0 0 1 0.5]"));
        const std::array<float, 4> before = run.node().mfRotation[0].getQuaternion();
        run.edit(0, 3, QStringLiteral("2"));
        const std::array<float, 4> after = run.node().mfRotation[0].getQuaternion();
        for (std::size_t index = 0; index < 4; ++index)
            QVERIFY(std::abs(after[index] - before[index]) < 1e-6F);
        QCOMPARE(run.pushed(), 1);
    }

    void zeroQuaternionGivesTheDefault()
    {
        const RowEditorRun run(
            std::make_unique<DvMFRotationWidget>(), QStringLiteral("MFRotation"), QStringLiteral("[1 0 0 3.1415927]"));
        QVERIFY(std::abs(run.node().mfRotation[0].getQuaternion()[3]) < 1e-6F);
        run.edit(0, 0, QStringLiteral("0"));
        QVERIFY(std::isfinite(run.node().mfRotation[0].getAngle()));
    }
};

QTEST_MAIN(TestVectorRowTexts)
#include "tst_VectorRowTexts.moc"
