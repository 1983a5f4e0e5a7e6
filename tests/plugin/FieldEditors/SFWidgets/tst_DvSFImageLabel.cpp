#include "FieldEditors/SFWidgets/DvSFImageLabel.h"
#include "Patience.h"
#include "plugin/ToolHarness.h"

#include <QScreen>
#include <QWindow>

class TestDvSFImageLabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tool = std::make_unique<ToolHarness>();
        m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
        m_window->setGeometry(100, 100, 200, 60);
        m_label = new DvSFImageLabel(16, 18, m_window.get(), "thumbnail");
        m_label->move(30, 20);
        QPixmap pixmap(300, 100);
        pixmap.fill(Qt::red);
        m_label->showPixmap(pixmap);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
    }

    void cleanup()
    {
        m_window.reset();
        m_tool.reset();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void thumbnailHasItsSizeAndTakesNoFocus()
    {
        QCOMPARE(m_label->objectName(), QStringLiteral("thumbnail"));
        QCOMPARE(m_label->parentWidget(), m_window.get());
        QCOMPARE(m_label->minimumSize(), QSize(16, 18));
        QCOMPARE(m_label->maximumSize(), QSize(16, 18));
        QVERIFY(m_label->hasScaledContents());
        QVERIFY(m_label->testAttribute(Qt::WA_MouseTracking));
        QCOMPARE(m_label->focusPolicy(), Qt::NoFocus);
        QCOMPARE(m_label->metaObject(), &QLabel::staticMetaObject);
    }

    void enlargedPictureIsAHiddenPopup()
    {
        QCOMPARE(picture()->parentWidget(), m_label);
        QCOMPARE(picture()->windowType(), Qt::Popup);
        QVERIFY(!picture()->isVisible());
        QCOMPARE(picture()->frameShape(), QFrame::StyledPanel);
        QCOMPARE(picture()->frameShadow(), QFrame::Raised);
        QVERIFY(picture()->hasScaledContents());
    }

    void pixmapFillsBothLabels_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("small") << QSize(24, 10) << QSize(24, 10);
        QTest::newRow("wide") << QSize(300, 100) << QSize(256, 100);
        QTest::newRow("high") << QSize(100, 300) << QSize(100, 256);
        QTest::newRow("large") << QSize(257, 1000) << QSize(256, 256);
        QTest::newRow("just fitting") << QSize(256, 256) << QSize(256, 256);
        QTest::newRow("none") << QSize(0, 0) << QSize(0, 0);
    }

    void pixmapFillsBothLabels()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, shown);
        m_label->showPixmap(QPixmap(size));
        QCOMPARE(picture()->size(), shown);
        QCOMPARE(picture()->minimumSize(), shown);
        QCOMPARE(picture()->maximumSize(), shown);
        QCOMPARE(picture()->pixmap(Qt::ReturnByValue).size(), size);
        QCOMPARE(m_label->pixmap(Qt::ReturnByValue).size(), size);
        QCOMPARE(m_label->size(), QSize(16, 18));
        move();
        QVERIFY(picture()->isVisible()); // even without any extent
    }

    void pixmapIsSharedByBothLabels()
    {
        QCOMPARE(m_label->pixmap(Qt::ReturnByValue).cacheKey(), picture()->pixmap(Qt::ReturnByValue).cacheKey());
    }

    void moveShowsThePictureAtTwiceTheOffset()
    {
        move();
        QVERIFY(picture()->isVisible());
        QCOMPARE(place(), QPoint(100 + 2 * 30, 100 + 2 * 20));
        QCOMPARE(picture()->grab().toImage().pixel(128, 50), QColor(Qt::red).rgb());
    }

    void pictureStaysOnTheScreen_data()
    {
        // In steps from where it would reach to the edge.
        QTest::addColumn<QPoint>("beyond");
        QTest::addColumn<QPoint>("moved");
        QTest::newRow("at the edges") << QPoint(0, 0) << QPoint(0, 0);
        QTest::newRow("beyond the right one") << QPoint(1, 0) << QPoint(-256, 0);
        QTest::newRow("beyond the bottom one") << QPoint(0, 1) << QPoint(0, -100);
        QTest::newRow("beyond both") << QPoint(7, 9) << QPoint(-256, -100);
    }

    void pictureStaysOnTheScreen()
    {
        QFETCH(QPoint, beyond);
        QFETCH(QPoint, moved);
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint position = QPoint(screen.width() - 256, screen.height() - 100) + beyond;
        m_window->move(position - 2 * m_label->pos());
        move();
        QCOMPARE(place(), position + moved);
    }

    void movesWhileItIsShownDoNothing()
    {
        move();
        const QPoint position = place();
        m_window->move(0, 0);
        QMouseEvent event(
            QEvent::MouseMove, QPointF(2, 2), m_label->mapToGlobal(QPointF(2, 2)), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(m_label, &event);
        QVERIFY(picture()->isVisible());
        QCOMPARE(place(), position);
    }

    void nextClickTakesThePictureAway_data()
    {
        QTest::addColumn<QPoint>("position"); // in the picture
        QTest::newRow("on the picture") << QPoint(10, 10);
        QTest::newRow("on the thumbnail") << QPoint(-25, -15);
        QTest::newRow("elsewhere in the window") << QPoint(-50, -35);
    }

    void nextClickTakesThePictureAway()
    {
        QFETCH(QPoint, position);
        move();
        QCOMPARE(QApplication::activePopupWidget(), picture());
        // Through the window system, which gives every click to the popup.
        const QPoint global = picture()->mapToGlobal(position);
        QWindow* const window = m_window->windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
        QVERIFY(!picture()->isVisible());
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void clickOutsideAllWindowsTakesThePictureAway()
    {
        move();
        // The popup holds the mouse and so gets what falls on no window of the program.
        const QPointF position(400, 300);
        QMouseEvent press(
            QEvent::MouseButtonPress, position, picture()->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(picture(), &press);
        QVERIFY(!picture()->isVisible());
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void pictureComesBackAtTheNextMove()
    {
        move();
        QTest::mouseClick(picture(), Qt::RightButton);
        QVERIFY(!picture()->isVisible());
        move();
        QVERIFY(picture()->isVisible());
    }

private:
    [[nodiscard]] QLabel* picture() const { return m_label->findChild<QLabel*>(QStringLiteral("pixmapLabel")); }
    // The platform without a display gives popups a frame.
    [[nodiscard]] QPoint place() const { return picture()->windowHandle()->framePosition(); }
    void move() { QTest::mouseMove(m_label, QPoint(m_x++ % 16, 8)); }

    std::unique_ptr<ToolHarness> m_tool;
    std::unique_ptr<QWidget> m_window;
    DvSFImageLabel* m_label = nullptr; // the window's
    int m_x = 0;
};

QTEST_MAIN(TestDvSFImageLabel)
#include "tst_DvSFImageLabel.moc"
