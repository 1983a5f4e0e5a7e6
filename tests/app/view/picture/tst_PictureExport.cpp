#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"
#include "orvane/app/view/picture/PictureDialog.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>

/// Pictures that are exported from the window.
class TestPictureExport : public WindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneView* view() { return m_window->findChild<SceneView*>(); }
    [[nodiscard]] QAction* action() { return m_window->findChild<QAction*>(QStringLiteral("view.exportPicture")); }
    template <typename T>
    [[nodiscard]] T* part(const char* name)
    {
        return m_window->findChild<T*>(QLatin1String(name));
    }
    void ask()
    {
        action()->trigger();
        QVERIFY(m_window->findChild<PictureDialog*>() != nullptr);
    }
    void setSize(int width, int height)
    {
        for (const auto& [name, pixels] : {std::pair("pictureWidth", width), std::pair("pictureHeight", height)}) {
            auto* const side = part<QSpinBox>(name);
            side->setFocus();
            side->selectAll();
            QTest::keyClicks(side, QString::number(pixels));
        }
    }
    /// Chooses an entry by the keyboard.
    void choose(const char* box, const QString& text)
    {
        auto* const choice = part<QComboBox>(box);
        QVERIFY2(choice->findText(text) >= 0, qPrintable(text));
        while (choice->currentText() != text)
            QTest::keyClick(choice, choice->currentIndex() < choice->findText(text) ? Qt::Key_Down : Qt::Key_Up);
    }
    void exportTo(const QString& fileName)
    {
        QTest::mouseClick(part<QPushButton>("pictureExport"), Qt::LeftButton);
        QPointer<QFileDialog> dialog = part<QFileDialog>("pictureFileDialog");
        QVERIFY(dialog != nullptr);
        auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        line->setText(fileName);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY(dialog == nullptr);
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        writeFile(filePath("squares.mrd"), ViewScenes::squaresText);
        QCOMPARE(open(filePath("squares.mrd")), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        static_cast<void>(view()->grab());
    }
    void cleanup() { endTool(); }

    void thePictureHasTheChosenSizeAndIsTransparent()
    {
        ask();
        setSize(700, 200);
        exportTo(filePath("out.png"));
        const QImage picture(filePath("out.png"));
        QCOMPARE(picture.size(), QSize(700, 200));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QVERIFY(ViewScenes::count(picture, Qt::red) > 500);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("out.png")));
    }

    void aCameraABookmarkAndABackgroundCanBeChosen()
    {
        NxViewpoint close;
        close.position = VbVec3d(-2, 0, 1);
        view()->navigate(close);
        m_window->findChild<SceneBookmarks*>()->add(QStringLiteral("Red"));
        view()->frameAll();
        ask();
        setSize(40, 30);
        choose("picturePlace", QStringLiteral("Bookmark Red"));
        choose("pictureBackground", QStringLiteral("White"));
        exportTo(filePath("red.png"));
        QCOMPARE(ViewScenes::count(QImage(filePath("red.png")), Qt::red), 40 * 30);
        ask();
        setSize(300, 200);
        choose("picturePlace", QStringLiteral("Camera camera"));
        choose("pictureBackground", QStringLiteral("Black"));
        exportTo(filePath("camera.png"));
        const QImage camera(filePath("camera.png"));
        QVERIFY(ViewScenes::isLike(camera.pixelColor(150, 100), Qt::green)); // the camera is in front of it
        QCOMPARE(camera.pixelColor(0, 0), QColor(Qt::black));
        QVERIFY(!camera.hasAlphaChannel());
    }

    void aSizeThatIsTooLargeSaysSo()
    {
        ask();
        setSize(20000, 20000);
        QVERIFY(!part<QPushButton>("pictureExport")->isEnabled());
        QVERIFY(part<QLabel>("pictureMessage")->text().contains(QStringLiteral("268 million")));
        setSize(2000, 1000);
        QVERIFY(part<QPushButton>("pictureExport")->isEnabled());
        QTest::keyClick(m_window->findChild<PictureDialog*>(), Qt::Key_Escape);
        QTRY_VERIFY(m_window->findChild<PictureDialog*>() == nullptr);
    }

    void whatCantBeWrittenIsReported()
    {
        ask();
        setSize(20, 20);
        writeFile(filePath("folder"), "no folder");
        QTest::mouseClick(part<QPushButton>("pictureExport"), Qt::LeftButton);
        auto* const dialog = part<QFileDialog>("pictureFileDialog");
        QVERIFY(dialog != nullptr);
        Q_EMIT dialog->fileSelected(filePath("folder") + QStringLiteral("/out.png"));
        dialog->reject();
        const QStringList texts = m_window->findChild<MessageBar*>()->texts();
        QVERIFY2(texts.join(u' ').contains(QStringLiteral("out.png")), qPrintable(texts.join(u' ')));
    }

    void withoutASceneThereIsNone()
    {
        QVERIFY(action()->isEnabled());
        m_window->document().close();
        QVERIFY(!action()->isEnabled());
    }
};

QTEST_MAIN(TestPictureExport)
#include "tst_PictureExport.moc"
