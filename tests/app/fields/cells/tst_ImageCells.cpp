#include "TestFiles.h"
#include "app/fields/cells/CellCase.h"

#include "orvane/app/fields/editors/ImageReplacement.h"
#include "orvane/app/fields/popups/ImagePopup.h"

#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QImage>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Images that are replaced in the field table: by files, from the clipboard, by nothing.
class TestImageCells : public CellCase {
    Q_OBJECT

private:
    static constexpr const char* firstText = "1 1 3 0x102030";
    static constexpr const char* pictureText = "2 1 3 0xff0000 0x0000ff";

    [[nodiscard]] QString file(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    static QImage picture()
    {
        QImage image(2, 1, QImage::Format_RGB32);
        image.setPixelColor(0, 0, Qt::red);
        image.setPixelColor(1, 0, Qt::blue);
        return image;
    }
    void savePicture(const char* name) { QVERIFY(picture().save(file(name))); }

    void drop(const QString& fileName)
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(fileName)});
        const QPoint place = part("sfImage", 0).center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view()->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view()->viewport(), &event);
        QVERIFY(event.isAccepted());
    }
    QPushButton* button(const char* name)
    {
        clickPart("sfImage", 0);
        auto* const open = popup<ImagePopup>();
        auto* const found = open != nullptr ? open->findChild<QPushButton*>(QLatin1String(name)) : nullptr;
        return found;
    }
    ImageReplacement& images() { return delegate().services().images(); }
    void selectRow() { click(row("sfImage")); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        openGalleries(1);
        HelperOptions options;
        options.program = QStringLiteral(ORVANE_IMPORT_PROGRAM);
        delegate().services().setImages(std::make_unique<ImageReplacement>(m_panel->writer(), options));
        QVERIFY(field("sfImage").set(firstText));
        ManyNodes::finish();
    }
    void cleanup()
    {
        QGuiApplication::clipboard()->clear();
        close();
    }

    void aFileIsDropped()
    {
        savePicture("red and blue.png");
        const int before = steps();
        drop(file("red and blue.png"));
        QTRY_COMPARE_WITH_TIMEOUT(text("sfImage"), std::string(pictureText), testPatience);
        QCOMPARE(steps(), before + 1);
        undo();
        QCOMPARE(text("sfImage"), std::string(firstText));
    }

    void aFileIsChosen()
    {
        savePicture("chosen.png");
        m_panel->setSceneFolder([this] { return m_folder->path(); });
        QPushButton* const choose = button("chooseImage");
        QVERIFY(choose != nullptr);
        QTest::mouseClick(choose, Qt::LeftButton);
        ManyNodes::finish();
        auto* const dialog = m_panel->window()->findChild<QFileDialog*>(u"imageDialog"_s);
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->directory().canonicalPath(), QDir(m_folder->path()).canonicalPath());
        auto* const name = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
        name->setFocus();
        QTest::keyClicks(name, u"chosen.png"_s);
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(text("sfImage"), std::string(pictureText), testPatience);
    }

    void keysAloneChooseAFile()
    {
        selectRow();
        press(Qt::Key_Return);
        QTRY_VERIFY(popup<ImagePopup>() != nullptr);
        QTest::keyClick(popup<ImagePopup>()->focusWidget(), Qt::Key_Return);
        ManyNodes::finish();
        auto* const dialog = m_panel->window()->findChild<QFileDialog*>(u"imageDialog"_s);
        QVERIFY(dialog != nullptr);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QCOMPARE(text("sfImage"), std::string(firstText));
    }

    void anImageOfAnotherProgramIsPasted()
    {
        savePicture("copied.png");
        auto* const data = new QMimeData;
        data->setData(u"image/png"_s, readFile(file("copied.png")));
        QGuiApplication::clipboard()->setMimeData(data);
        selectRow();
        press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(text("sfImage"), std::string(pictureText), testPatience);
    }

    void anImageIsPastedByTheButton()
    {
        QImage translucent(1, 2, QImage::Format_ARGB32);
        translucent.setPixelColor(0, 0, QColor(1, 2, 3, 4));
        translucent.setPixelColor(0, 1, QColor(5, 6, 7, 8));
        QGuiApplication::clipboard()->setImage(translucent);
        const int before = steps();
        QTest::mouseClick(button("pasteImage"), Qt::LeftButton);
        // The lowest row is the first one.
        QTRY_COMPARE(text("sfImage"), std::string("1 2 4 0x05060708 0x01020304"));
        QCOMPARE(steps(), before + 1);
    }

    void aCopiedFileIsPasted()
    {
        savePicture("copied.png");
        auto* const data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(file("copied.png"))});
        QGuiApplication::clipboard()->setMimeData(data);
        selectRow();
        press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(text("sfImage"), std::string(pictureText), testPatience);
    }

    void anImageIsCleared()
    {
        const int before = steps();
        QVERIFY(!button("pasteImage")->isEnabled());
        QTest::mouseClick(popup<ImagePopup>()->findChild<QPushButton*>(u"clearImage"_s), Qt::LeftButton);
        QTRY_COMPARE(text("sfImage"), std::string("0 0 0"));
        QCOMPARE(steps(), before + 1);
        QVERIFY(!button("clearImage")->isEnabled());
        undo();
        QCOMPARE(text("sfImage"), std::string(firstText));
    }

    void severalNodesAreOneStep()
    {
        open({new NxFieldGallery, new NxFieldGallery});
        showAll();
        QGuiApplication::clipboard()->setImage(TestImageCells::picture());
        const int before = steps();
        selectRow();
        press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(text("sfImage", 0), std::string(pictureText));
        QCOMPARE(text("sfImage", 1), std::string(pictureText));
        QCOMPARE(steps(), before + 1);
    }

    void whatIsNoImageIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("text") << u"notes.png"_s << "This is a text."_ba << u"wasn't taken"_s;
        QTest::newRow("empty") << u"empty.png"_s << ""_ba << u"empty"_s;
        QTest::newRow("cut") << u"cut.png"_s << "\x89PNG\r\n\x1a\n\0\0\0\rIHDR"_ba << u"wasn't taken"_s;
        QTest::newRow("missing") << u"missing.png"_s << QByteArray() << u"No such file"_s;
    }

    void whatIsNoImageIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        if (!content.isNull())
            writeFile(m_folder->filePath(name), content);
        const int before = steps();
        drop(m_folder->filePath(name));
        QTRY_VERIFY_WITH_TIMEOUT(message().contains(reason), testPatience);
        QVERIFY2(message().contains(name), qPrintable(message()));
        QVERIFY(message().endsWith(u"The field keeps its image."_s));
        QCOMPARE(text("sfImage"), std::string(firstText));
        QCOMPARE(steps(), before);
    }

    void aRowThatShowsAnotherNodeByThenKeepsItsImage()
    {
        savePicture("late.png");
        const NxRef<NxNode> other(new NxFieldGallery);
        drop(file("late.png"));
        QVERIFY(images().isLoading());
        m_panel->setNode(other.get());
        QTRY_VERIFY_WITH_TIMEOUT(!images().isLoading(), testPatience);
        QCOMPARE(text("sfImage"), std::string(firstText));
        QTRY_VERIFY(message().contains(u"another node"_s));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestImageCells)
#include "tst_ImageCells.moc"
