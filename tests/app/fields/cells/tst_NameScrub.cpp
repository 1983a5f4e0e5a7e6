#include "app/fields/cells/CellCase.h"

#include "meridane/gl/geometry/MatrixParts.h"
#include "meridane/scene/fields/single/NxSFRotation.h"

#include <cmath>

using namespace Qt::StringLiterals;

/// Dragging on the name of a number.
class TestNameScrub : public CellCase {
    Q_OBJECT

private:
    void press(const QPoint& at)
    {
        m_at = at;
        QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, at);
        ManyNodes::finish();
    }
    void pressName(const char* name)
    {
        view()->scrollTo(row(name));
        press(view()->visualRect(row(name)).center());
    }
    void move(int pixels, Qt::KeyboardModifiers modifiers = {})
    {
        m_at.rx() += pixels;
        QWidget* const viewport = view()->viewport();
        QMouseEvent event(
            QEvent::MouseMove, m_at, viewport->mapToGlobal(QPointF(m_at)), Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(viewport, &event);
        ManyNodes::finish();
    }
    void release()
    {
        QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, m_at);
        ManyNodes::finish();
    }
    // Moves as far as the threshold, which is counted.
    static int far() { return QApplication::startDragDistance(); }

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup() { close(); }

    void aDragChangesTheNumberLiveAsOneStep()
    {
        QVERIFY(field("sfFloat").set("1"));
        const int before = steps();
        pressName("sfFloat");
        move(far());
        const double first = QString::fromStdString(text("sfFloat")).toDouble();
        QVERIFY(first > 1);
        move(10);
        const double second = QString::fromStdString(text("sfFloat")).toDouble();
        QVERIFY(qAbs(second - first - 1) < 1e-6); // ten steps of a tenth
        release();
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfFloat"), std::string("1"));
        m_many->services().redo();
        QCOMPARE(QString::fromStdString(text("sfFloat")).toDouble(), second);
    }

    void aShortMoveIsAClick()
    {
        pressName("sfFloat");
        move(far() - 1);
        release();
        QCOMPARE(text("sfFloat"), std::string("0"));
        QCOMPARE(steps(), 0);
        QCOMPARE(view()->currentIndex().row(), row("sfFloat").row());
    }

    void modifiersMakeItCoarserAndFiner()
    {
        QVERIFY(field("sfFloat").set("1"));
        pressName("sfFloat");
        move(far());
        const double begin = QString::fromStdString(text("sfFloat")).toDouble();
        move(1, Qt::ShiftModifier);
        const double coarse = QString::fromStdString(text("sfFloat")).toDouble();
        QVERIFY(qAbs(coarse - begin - 1) < 1e-6);
        move(1, Qt::ControlModifier);
        const double fine = QString::fromStdString(text("sfFloat")).toDouble();
        QVERIFY(qAbs(fine - coarse - 0.01) < 1e-6);
        release();
    }

    void escapeAndTheRightButtonRestore_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Escape") << true;
        QTest::newRow("right button") << false;
    }
    void escapeAndTheRightButtonRestore()
    {
        QFETCH(const bool, byKey);
        QVERIFY(field("sfFloat").set("0.1"));
        const int before = steps();
        pressName("sfFloat");
        move(far());
        move(30);
        QVERIFY(text("sfFloat") != "0.1");
        if (byKey)
            QTest::keyClick(view(), Qt::Key_Escape);
        else
            QTest::mousePress(view()->viewport(), Qt::RightButton, {}, m_at);
        ManyNodes::finish();
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        move(20); // the left button is still down
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        if (!byKey)
            QTest::mouseRelease(view()->viewport(), Qt::RightButton, {}, m_at);
        release();
        QCOMPARE(text("sfFloat"), std::string("0.1"));
        QCOMPARE(steps(), before);
        QVERIFY(!m_many->services().canRedo());
        QVERIFY(editor() == nullptr);
        // The next drag works.
        pressName("sfFloat");
        move(far());
        QVERIFY(text("sfFloat") != "0.1");
        release();
        QCOMPARE(steps(), before + 1);
    }

    void theLetterOfAComponentIsDragged()
    {
        QVERIFY(field("sfVec3f").set("1 2 3"));
        const QRect z = part("sfVec3f", 2);
        press(QPoint(z.left() + 2, z.center().y()));
        move(far());
        release();
        const QStringList numbers = QString::fromStdString(text("sfVec3f")).split(u' ');
        QCOMPARE(numbers[0], u"1"_s);
        QCOMPARE(numbers[1], u"2"_s);
        QVERIFY(numbers[2].toDouble() > 3);
        QVERIFY(editor() == nullptr);
    }

    void theLettersOfARotationAreDragged_data()
    {
        QTest::addColumn<int>("component");
        for (const int component : {0, 1, 2, 3})
            QTest::addRow("component %d", component) << component;
    }

    void theLettersOfARotationAreDragged()
    {
        QFETCH(int, component);
        QVERIFY(field("sfRotation").set("0.5 0.5 0.5 1"));
        const int before = steps();
        press(part("sfRotation", component).topLeft() + QPoint(3, 5));
        move(far() + 20);
        release();
        QCOMPARE(steps(), before + 1);
        const QStringList numbers = QString::fromStdString(text("sfRotation")).split(u' ');
        const QStringList old{u"0.5"_s, u"0.5"_s, u"0.5"_s, u"1"_s};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(numbers.at(i) != old.at(i), i == component);
    }

    void eulerDegreesAreDragged()
    {
        delegate().services().setEulerShown(true);
        QVERIFY(field("sfRotation").set("1 0 0 0"));
        const int before = steps();
        press(part("sfRotation", 1).topLeft() + QPoint(3, 5));
        move(far());
        // Beyond the angle at which other axes give the same rotation, and back.
        move(200 - far());
        const VbRotation turned = meridane::fromEuler({0, 200, 0});
        const auto& rotation = dynamic_cast<const NxSFRotation&>(field("sfRotation"));
        QCOMPARE_LE(std::abs(rotation.getValue().getAngle() - turned.getAngle()), 1e-4F);
        move(-170);
        release();
        QCOMPARE_LE(std::abs(meridane::toEuler(rotation.getValue())[1] - 30), 1e-3);
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfRotation"), std::string("1 0 0 0"));
    }

    void wholeNumbersStayWhole()
    {
        pressName("sfShort");
        move(far());
        move(3);
        release();
        QCOMPARE(text("sfShort"), std::to_string(far() + 3));
    }

    void numbersStayInTheRangeOfTheirType()
    {
        pressName("sfUInt32");
        move(-far());
        move(-100);
        release();
        QCOMPARE(text("sfUInt32"), std::string("0"));
        QCOMPARE(steps(), 0);
    }

    void severalNodesMoveFromTheirOwnValues()
    {
        openGalleries(2);
        QVERIFY(field("sfInt32", 1).set("100"));
        const int before = steps();
        pressName("sfInt32");
        move(far());
        move(5);
        release();
        const int moved = far() + 5;
        QCOMPARE(text("sfInt32", 0), std::to_string(moved));
        QCOMPARE(text("sfInt32", 1), std::to_string(100 + moved));
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfInt32", 1), std::string("100"));
    }

    void namesOfOtherValuesAreNotDragged()
    {
        pressName("sfString");
        move(far() + 20);
        release();
        QCOMPARE(steps(), 0);
        QVERIFY(view()->viewport()->cursor().shape() != Qt::SizeHorCursor);
    }

    void aFieldThatVanishesEndsTheDrag()
    {
        pressName("sfFloat");
        move(far());
        m_panel->setNode(nullptr);
        ManyNodes::finish();
        move(10);
        release();
        QVERIFY(steps() <= 1);
        m_panel->setNode((*m_many->nodes())[0].get());
        pressName("sfFloat");
        move(far());
        release();
        QVERIFY(text("sfFloat") != "0");
    }

    void thePointerIsLeftAlone()
    {
        QCursor::setPos(m_panel->mapToGlobal(QPoint(50, 50)));
        const QPoint before = QCursor::pos();
        pressName("sfFloat");
        move(far() + 50);
        QCOMPARE(QCursor::pos(), before);
        QVERIFY(view()->viewport()->cursor().shape() != Qt::BlankCursor);
        release();
    }

private:
    QPoint m_at;
};

QTEST_MAIN(TestNameScrub)
#include "tst_NameScrub.moc"
