#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/editors/ImageThumbnails.h"
#include "orvane/app/fields/popups/ChoicePopup.h"
#include "orvane/app/fields/popups/ColorPopup.h"
#include "orvane/app/fields/popups/ColorSquare.h"
#include "orvane/app/fields/popups/ImagePopup.h"
#include "orvane/app/fields/popups/MaskPopup.h"
#include "orvane/app/fields/popups/MatrixPopup.h"
#include "orvane/app/fields/popups/RotationPopup.h"
#include "orvane/app/fields/popups/TextPopup.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCompleter>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// The kinds of values beside numbers, each with the mouse and keys.
class TestCellKinds : public CellCase {
    Q_OBJECT

private:
    // The popup of a part, opened by a click.
    template <typename Popup>
    Popup* openPopup(const char* name, int number = 0)
    {
        clickPart(name, number);
        return popup<Popup>();
    }
    static NumberLine* numberLine(QWidget* parent, const QString& accessibleName)
    {
        for (NumberLine* each : parent->findChildren<NumberLine*>()) {
            if (each->accessibleName() == accessibleName)
                return each;
        }
        qFatal("no such line");
    }
    NxFieldGallery& gallery(std::size_t node = 0) { return dynamic_cast<NxFieldGallery&>(*(*m_many->nodes())[node]); }

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup() { close(); }

    // Flags.

    void aClickOnTheBoxToggles()
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, part("sfBool", 0).topLeft() + QPoint(6, 8));
        QCOMPARE(text("sfBool"), std::string("true"));
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(text("sfBool"), std::string("false"));
        clickPart("sfBool", 0); // beside the box
        QCOMPARE(text("sfBool"), std::string("false"));
    }

    void returnToggles()
    {
        click(row("sfBool"));
        press(Qt::Key_Return);
        QCOMPARE(text("sfBool"), std::string("true"));
        QVERIFY(editor() == nullptr);
        press(Qt::Key_Return);
        QCOMPARE(text("sfBool"), std::string("false"));
        QCOMPARE(steps(), 2);
    }

    void tabReachesAFlagAndEscapeRestores()
    {
        clickPart("sfBitMask", 0);
        key(popup<MaskPopup>()->findChild<QListWidget*>(), Qt::Key_Escape);
        delegate().edit(cell("sfBitMask"), 0, CellEdit::Reason::Tab);
        key(editor(), Qt::Key_Tab);
        QVERIFY(editor() != nullptr);
        QCOMPARE(view()->currentIndex().row(), row("sfBool").row());
        key(editor(), Qt::Key_Space);
        QCOMPARE(text("sfBool"), std::string("true"));
        key(editor(), Qt::Key_Escape);
        QCOMPARE(text("sfBool"), std::string("false"));
        QCOMPARE(steps(), 0);
    }

    void mixedFlagsBecomeTrue()
    {
        openGalleries(2);
        gallery(1).sfBool.setValue(true);
        ManyNodes::finish();
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, part("sfBool", 0).topLeft() + QPoint(6, 8));
        QCOMPARE(text("sfBool", 0), std::string("true"));
        QCOMPARE(text("sfBool", 1), std::string("true"));
    }

    // Choices.

    void aChoiceIsFilteredAndTaken()
    {
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        QVERIFY(choices != nullptr);
        QCOMPARE(choices->current(), 0);
        auto* const filter = choices->findChild<QLineEdit*>();
        QTest::keyClicks(filter, u"ulr"_s); // letters in order
        QCOMPARE(choices->current(), 3);
        key(filter, Qt::Key_Return);
        QCOMPARE(text("sfEnum"), std::string("ULTRA"));
        QVERIFY(editor() == nullptr);
        QVERIFY(view()->hasFocus());
        QCOMPARE(steps(), 1);
        undo();
        QCOMPARE(text("sfEnum"), std::string("LOW"));
    }

    void arrowsMoveInTheChoicesAndEscapeLeaves()
    {
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        auto* const filter = choices->findChild<QLineEdit*>();
        key(filter, Qt::Key_Down);
        QCOMPARE(choices->current(), 1);
        key(filter, Qt::Key_Escape);
        QCOMPARE(text("sfEnum"), std::string("LOW"));
        QVERIFY(editor() == nullptr);
        QCOMPARE(steps(), 0);
    }

    void aValueWithoutANameIsKeptUntilOneIsChosen()
    {
        gallery().sfEnum.setValue(77);
        ManyNodes::finish();
        auto* const choices = openPopup<ChoicePopup>("sfEnum");
        QCOMPARE(choices->current(), -1);
        key(choices->findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(gallery().sfEnum.getValue(), 77);
        auto* const list = choices->findChild<QListWidget*>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
        QCOMPARE(text("sfEnum"), std::string("HIGH"));
    }

    // Masks.

    void theMenuOfBitsStaysOpen()
    {
        gallery().sfBitMask.setValue(64 | 1);
        ManyNodes::finish();
        const int before = steps();
        auto* const menu = openPopup<MaskPopup>("sfBitMask");
        QVERIFY(menu != nullptr);
        auto* const list = menu->findChild<QListWidget*>();
        QCOMPARE(list->count(), 6); // five names, and the bit without one
        const auto clickRow = [list](int number) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(number)).center());
            ManyNodes::finish();
        };
        clickRow(1);
        clickRow(4);
        QVERIFY(menu->isVisible());
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 32 | 2 | 1);
        list->setCurrentRow(0);
        key(list, Qt::Key_Space);
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 32 | 2);
        key(list, Qt::Key_Return);
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(gallery().sfBitMask.getValue(), 64 | 1);
    }

    void aBitOfSeveralNodesLeavesTheOthers()
    {
        openGalleries(2);
        gallery(0).sfBitMask.setValue(1);
        gallery(1).sfBitMask.setValue(4);
        ManyNodes::finish();
        auto* const menu = openPopup<MaskPopup>("sfBitMask");
        auto* const list = menu->findChild<QListWidget*>();
        QCOMPARE(list->item(0)->checkState(), Qt::PartiallyChecked);
        QCOMPARE(list->item(1)->checkState(), Qt::Unchecked);
        list->setCurrentRow(1);
        key(list, Qt::Key_Space);
        QCOMPARE(gallery(0).sfBitMask.getValue(), 3);
        QCOMPARE(gallery(1).sfBitMask.getValue(), 6);
        key(list, Qt::Key_Escape);
        QCOMPARE(gallery(0).sfBitMask.getValue(), 1);
        QCOMPARE(gallery(1).sfBitMask.getValue(), 4);
    }

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

    // Texts.

    void aShortTextIsEditedInTheLine()
    {
        clickPart("sfString", 0);
        type(line(), "a \"b\" \\ c");
        key(line(), Qt::Key_Return);
        QCOMPARE(std::string(gallery().sfString.getValue().view()), std::string("a \"b\" \\ c"));
        QCOMPARE(steps(), 1);
    }

    void severalLinesAreEditedInAPopup()
    {
        auto* const lines = openPopup<TextPopup>("sfString", 1);
        QVERIFY(lines != nullptr);
        auto* const edit = lines->findChild<QPlainTextEdit*>();
        QTest::keyClicks(edit, u"one"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClicks(edit, u"two"_s);
        key(edit, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(std::string(gallery().sfString.getValue().view()), std::string("one\ntwo"));
        QCOMPARE(steps(), 1);
        // Now it doesn't fit a line any more.
        auto* const again = openPopup<TextPopup>("sfString");
        QVERIFY(again != nullptr);
        QTest::keyClicks(again->findChild<QPlainTextEdit*>(), u"zero"_s);
        key(again->findChild<QPlainTextEdit*>(), Qt::Key_Escape);
        QCOMPARE(std::string(gallery().sfString.getValue().view()), std::string("one\ntwo"));
        QCOMPARE(steps(), 1);
    }

    void nothingIsLostInALongText()
    {
        // Characters that a text edit takes for ends of lines, and a line of megabytes.
        QString whole = u"a\r\nb\u2028c\u2029d\u00a0e"_s + QString(2'500'000, u'x') + u"\n\nend"_s;
        gallery().sfString.setValue(orvane::toVbString(whole));
        ManyNodes::finish();
        auto* const lines = openPopup<TextPopup>("sfString");
        QVERIFY(lines != nullptr);
        QCOMPARE(lines->text(), whole);
        auto* const edit = lines->findChild<QPlainTextEdit*>();
        QTest::keyClicks(edit, u"Z"_s);
        key(edit, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(orvane::toQString(gallery().sfString.getValue()), u'Z' + whole);
    }

    void namesAreEdited()
    {
        clickPart("sfName", 0);
        type(line(), "left_arm");
        key(line(), Qt::Key_Return);
        QCOMPARE(std::string(gallery().sfName.getValue().getString()), std::string("left_arm"));
    }

    // Paths.

    void aMissingFileIsMarked()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(u"there.png"_s);
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        m_panel->setSceneFolder([&folder] { return folder.path(); });
        const QColor warning
            = orvane::look::textColor(orvane::look::Tint::Warning, view()->palette().color(QPalette::Base));
        QVERIFY(field("sfFilePathString").set("there.png"));
        ManyNodes::finish();
        const auto marked = [&] { return countOf(picture("sfFilePathString"), warning, 3) > 10; };
        QVERIFY(!marked());
        QVERIFY(field("sfFilePathString").set("missing.png"));
        ManyNodes::finish();
        QTRY_VERIFY(marked());
        QVERIFY(field("sfFilePathString").set("there.png"));
        ManyNodes::finish();
        QTRY_VERIFY(!marked());
    }

    void pathsAreCompletedAndChosen()
    {
        const QTemporaryDir folder;
        for (const char* const name : {"brick.png", "brass.png"}) {
            QFile file(folder.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        m_panel->setSceneFolder([&folder] { return folder.path(); });
        clickPart("sfFilePathString", 0);
        QVERIFY(line() != nullptr);
        QTest::keyClicks(line(), u"bri"_s);
        QCOMPARE(line()->completer()->completionCount(), 1);
        QCOMPARE(line()->completer()->currentCompletion(), u"brick.png"_s);
        key(line()->completer()->popup(), Qt::Key_Escape); // closes the list only
        type(line(), "brass.png");
        line()->completer()->popup()->hide();
        key(line(), Qt::Key_Return);
        QCOMPARE(std::string(gallery().sfFilePathString.getValue().view()), std::string("brass.png"));
        clickPart("sfFilePathString", 0);
        QTest::mouseClick(editor()->findChild<QToolButton*>(u"chooseFile"_s), Qt::LeftButton);
        auto* const dialog = editor()->findChild<QFileDialog*>(u"pathDialog"_s);
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->directory().canonicalPath(), QFileInfo(folder.path()).canonicalFilePath());
        QCOMPARE(dialog->selectedFiles(), QStringList(folder.filePath(u"brass.png"_s)));
        QTest::keyClick(dialog, Qt::Key_Escape);
        ManyNodes::finish();
        QCOMPARE(std::string(gallery().sfFilePathString.getValue().view()), std::string("brass.png"));
    }

    void aFileIsDropped()
    {
        const QTemporaryDir folder;
        m_panel->setSceneFolder([&folder] { return folder.path(); });
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(folder.filePath(u"textures/wood.png"_s))});
        const QPoint at = part("sfFilePathString", 0).center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view()->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view()->viewport(), &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(std::string(gallery().sfFilePathString.getValue().view()), std::string("textures/wood.png"));
        QCOMPARE(steps(), 1);
        QDropEvent elsewhere(part("sfFloat", 0).center(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view()->viewport(), &elsewhere);
        QVERIFY(!elsewhere.isAccepted());
    }

    // Images.

    void anImageIsEnlarged()
    {
        QVERIFY(field("sfImage").set("2 2 3 0xff0000 0x00ff00 0x0000ff 0xffffff"));
        ManyNodes::finish();
        const QImage small = picture("sfImage");
        QVERIFY(countOf(small, Qt::red, 2) > 4);
        QVERIFY(countOf(small, Qt::blue, 2) > 4);
        auto* const image = openPopup<ImagePopup>("sfImage");
        QVERIFY(image != nullptr);
        QVERIFY(image->accessibleName().contains(u"2 × 2, RGB"_s));
        const QImage large = image->findChild<QLabel*>(u"picture"_s)->pixmap().toImage();
        QVERIFY(large.width() > 100);
        // The first row is the lowest one.
        QCOMPARE(large.pixelColor(1, large.height() - 2), QColor(Qt::red));
        QCOMPARE(large.pixelColor(1, 1), QColor(Qt::blue));
        QTest::mouseClick(image, Qt::LeftButton);
        ManyNodes::finish();
        QVERIFY(!image->isVisible());
        QVERIFY(editor() == nullptr);
        QCOMPARE(steps(), 1);
    }

    void aThumbnailIsMadeOnce()
    {
        std::vector<unsigned char> pixels(std::size_t{4000} * 4000 * 3, 200);
        QVERIFY(gallery().sfImage.setValue(VbVec2s(4000, 4000), 3, std::move(pixels)));
        ManyNodes::finish();
        ImageThumbnails& thumbnails = delegate().services().thumbnails();
        QVERIFY(countOf(picture("sfImage"), QColor(200, 200, 200), 2) > 100);
        const int made = thumbnails.made();
        for (int i = 0; i < 5; ++i)
            (void)picture("sfImage");
        QCOMPARE(thumbnails.made(), made);
        QVERIFY(field("sfImage").set("1 1 1 0x10"));
        ManyNodes::finish();
        (void)picture("sfImage");
        QCOMPARE(thumbnails.made(), made + 1);
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
