#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/editors/ImageThumbnails.h"
#include "orvane/app/fields/popups/ImagePopup.h"
#include "orvane/app/fields/popups/TextPopup.h"
#include "orvane/app/look/Look.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// Texts, paths and images in the field table.
class TestTextCells : public CellCase {
    Q_OBJECT

private:
    // The popup of a part, opened by a click.
    template <typename Popup>
    Popup* openPopup(const char* name, int number = 0)
    {
        clickPart(name, number);
        return popup<Popup>();
    }
    NxFieldGallery& gallery(std::size_t node = 0) { return dynamic_cast<NxFieldGallery&>(*(*m_many->nodes())[node]); }

private Q_SLOTS:
    void init() { openGalleries(1); }
    void cleanup() { close(); }

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
};

QTEST_MAIN(TestTextCells)
#include "tst_TextCells.moc"
