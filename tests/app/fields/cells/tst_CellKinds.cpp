#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/popups/ColorPopup.h"
#include "orvane/app/fields/popups/ColorSquare.h"
#include "orvane/app/fields/popups/MatrixPopup.h"
#include "orvane/app/fields/popups/RotationPopup.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// Colours, rotations and matrices in the field table, and what all kinds of values share.
class TestCellKinds : public CellCase {
    Q_OBJECT

private:
    NxFieldGallery& gallery(std::size_t node = 0) { return dynamic_cast<NxFieldGallery&>(*(*m_many->nodes())[node]); }

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup() { close(); }

    // Colours.

    void aColorIsDraggedLiveAsOneStep()
    {
        const int before = steps();
        auto* const colors = openPopup<ColorPopup>("sfColor");
        QVERIFY(colors != nullptr);
        auto* const square = colors->findChild<ColorSquare*>();
        QTest::mousePress(square, Qt::LeftButton, {}, QPoint(1, 1));
        ManyNodes::finish();
        QVERIFY(text("sfColor") != "0 0 0");
        for (int i = 1; i < 5; ++i) {
            const QPointF at(5.0 * i, 5.0 * i);
            QMouseEvent move(QEvent::MouseMove, at, square->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(square, &move);
            ManyNodes::finish();
        }
        QTest::mouseRelease(square, Qt::LeftButton, {}, QPoint(20, 20));
        key(square, Qt::Key_Return);
        QVERIFY(!colors->isVisible());
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfColor"), std::string("0 0 0"));
    }

    void escapeRestoresTheColor()
    {
        QVERIFY(field("sfColorRGBA").set("0.1 0.2 0.3 0.4"));
        const int before = steps();
        auto* const colors = openPopup<ColorPopup>("sfColorRGBA");
        auto* const square = colors->findChild<ColorSquare*>();
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseClick(square, Qt::LeftButton, {}, QPoint(40, 20));
        QVERIFY(text("sfColorRGBA") != "0.1 0.2 0.3 0.4");
        key(square, Qt::Key_Escape);
        QCOMPARE(text("sfColorRGBA"), std::string("0.1 0.2 0.3 0.4"));
        QCOMPARE(steps(), before);
    }

    void componentsOfAColorAreNumbers()
    {
        clickPart("sfColor", 2);
        type(line(), "50%");
        key(line(), Qt::Key_Return);
        QCOMPARE(text("sfColor"), std::string("0 0.5 0"));
    }

    void theSwatchHasTheColor()
    {
        QVERIFY(field("sfColor").set("0.8 0.2 0.6"));
        ManyNodes::finish();
        QVERIFY(countOf(picture("sfColor"), QColor(204, 51, 153), 2) > 100);
    }

    // Rotations.

    void aRotationIsEditedAsAxisAndAngle()
    {
        clickPart("sfRotation", 3);
        type(line(), "90deg");
        key(line(), Qt::Key_Return);
        QVERIFY(qAbs(gallery().sfRotation.getValue().getAngle() - 1.5707964F) < 1e-6F);
        clickPart("sfRotation", 0);
        type(line(), "2");
        key(line(), Qt::Key_Return);
        QCOMPARE(gallery().sfRotation.getValue().getAxis()[0], 2.0F); // isn't normalised by itself
    }

    void theAxisIsNormalisedOnDemand()
    {
        QVERIFY(field("sfRotation").set("0 0 4 1"));
        auto* const turning = openPopup<RotationPopup>("sfRotation", 4);
        QVERIFY(turning != nullptr);
        auto* const button = turning->findChild<QPushButton*>(u"normalise"_s);
        QVERIFY(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(text("sfRotation"), std::string("0 0 1 1"));
        QVERIFY(!button->isEnabled());
    }

    void eulerDegreesAreShownAndRemembered()
    {
        auto* const turning = openPopup<RotationPopup>("sfRotation", 4);
        QTest::mouseClick(turning->findChild<QCheckBox*>(u"showEuler"_s), Qt::LeftButton, {}, QPoint(8, 8));
        auto* const about = numberLine(turning, u"Euler degrees y"_s);
        type(about, "90");
        key(about, Qt::Key_Return);
        QVERIFY(!turning->isVisible());
        QVERIFY(delegate().services().isEulerShown());
        QVERIFY(qAbs(gallery().sfRotation.getValue().getAxis()[1] - 1) < 1e-6F);
        clickPart("sfRotation", 1);
        QCOMPARE(line()->text(), u"90"_s);
        type(line(), "x/2");
        key(line(), Qt::Key_Return);
        QVERIFY(qAbs(gallery().sfRotation.getValue().getAngle() - 0.7853982F) < 1e-6F);
        show(); // another panel with the same settings
        QVERIFY(delegate().services().isEulerShown());
    }

    // Matrices.

    void aMatrixIsEditedAsGridAndAsParts()
    {
        auto* const grid = openPopup<MatrixPopup>("sfMatrix");
        QVERIFY(grid != nullptr);
        auto* const move = numberLine(grid, u"Translation y"_s);
        type(move, "7");
        key(move, Qt::Key_Tab);
        QCOMPARE(gallery().sfMatrix.getValue()[3][1], 7.0F);
        auto* const turn = numberLine(grid, u"Rotation ° z"_s);
        type(turn, "90");
        key(turn, Qt::Key_Tab);
        QVERIFY(qAbs(gallery().sfMatrix.getValue()[0][1] - 1) < 1e-6F);
        auto* const element = numberLine(grid, u"Row 1, column 0"_s);
        type(element, "3");
        key(element, Qt::Key_Return);
        QCOMPARE(gallery().sfMatrix.getValue()[1][0], 3.0F);
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(gallery().sfMatrix.getValue(), VbMatrix());
    }

    void shearIsSaidAndRemovedOnDemand()
    {
        VbMatrix matrix;
        matrix[1][0] = 0.5F;
        gallery().sfMatrix.setValue(matrix);
        ManyNodes::finish();
        auto* const grid = openPopup<MatrixPopup>("sfMatrix");
        auto* const rest = grid->findChild<QLabel*>(u"matrixRest"_s);
        QVERIFY(rest->isVisible());
        QVERIFY(rest->text().contains(u"shear"_s));
        QVERIFY(numberLine(grid, u"Scale x"_s)->isReadOnly());
        QTest::mouseClick(grid->findChild<QPushButton*>(u"removeRest"_s), Qt::LeftButton);
        QVERIFY(!rest->isVisible());
        QVERIFY(gallery().sfMatrix.getValue() != matrix);
        key(grid, Qt::Key_Escape);
        QCOMPARE(gallery().sfMatrix.getValue(), matrix);
    }

    // All.

    void aFieldThatVanishesClosesItsPopup_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* const name : {"sfColor", "sfMatrix", "sfEnum", "sfBitMask", "sfImage"})
            QTest::newRow(name) << QByteArray(name);
    }
    void aFieldThatVanishesClosesItsPopup()
    {
        QFETCH(const QByteArray, name);
        clickPart(name.constData(), 0);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        m_panel->setNode(nullptr);
        destroyLeftovers();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(view()->findChildren<CellEditor*>().isEmpty());
        QCOMPARE(steps(), 0);
    }

    void mixedValuesAreADash_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("enum") << QByteArray("sfEnum") << QByteArray("HIGH");
        QTest::newRow("mask") << QByteArray("sfBitMask") << QByteArray("LOCKED");
        QTest::newRow("text") << QByteArray("sfString") << QByteArray("x");
        QTest::newRow("path") << QByteArray("sfFilePathString") << QByteArray("x");
        QTest::newRow("name") << QByteArray("sfName") << QByteArray("x");
        QTest::newRow("matrix") << QByteArray("sfMatrix") << QByteArray("2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1");
        QTest::newRow("colour") << QByteArray("sfColor") << QByteArray("1 1 1");
        QTest::newRow("rotation") << QByteArray("sfRotation") << QByteArray("1 0 0 1");
        QTest::newRow("flag") << QByteArray("sfBool") << QByteArray("true");
        QTest::newRow("image") << QByteArray("sfImage") << QByteArray("1 1 1 0x10");
    }
    void mixedValuesAreADash()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, other);
        openGalleries(2);
        ManyNodes::finish();
        const QImage first = picture(name.constData());
        QVERIFY(field(name.constData(), 1).set(other.constData()));
        ManyNodes::finish();
        const QImage mixed = picture(name.constData());
        QVERIFY(field(name.constData(), 0).set(other.constData()));
        ManyNodes::finish();
        const QImage second = picture(name.constData());
        QVERIFY(mixed != first);
        QVERIFY(mixed != second);
    }

    void eachKindIsPaintedAtTwiceTheScale()
    {
        // The room for a value doesn't depend on the device that it is painted on.
        const QSize size = view()->viewport()->size();
        QImage twice(size * 2, QImage::Format_ARGB32);
        twice.setDevicePixelRatio(2);
        twice.fill(Qt::white);
        view()->viewport()->render(&twice);
        QVERIFY(countOf(twice, view()->palette().color(QPalette::Text), 60) > 500);
    }
};

QTEST_MAIN(TestCellKinds)
#include "tst_CellKinds.moc"
