#include "app/view/SceneViewCase.h"

#include "orvane/app/view/ViewTool.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>

using namespace meridane;

namespace {

/// Takes what is pressed in the left half of the view, and the key X.
class LeftHalf : public ViewTool {
public:
    bool mousePress(const QMouseEvent& event) override
    {
        calls.append(QStringLiteral("press"));
        return event.position().x() < 300;
    }
    bool mouseMove(const QMouseEvent& event) override
    {
        calls.append(event.buttons() == Qt::NoButton ? QStringLiteral("hover") : QStringLiteral("drag"));
        return event.position().x() < 300;
    }
    void mouseRelease(const QMouseEvent& /*event*/) override { calls.append(QStringLiteral("release")); }
    void cancel() override { calls.append(QStringLiteral("cancel")); }
    void leave() override { calls.append(QStringLiteral("leave")); }
    [[nodiscard]] bool wantsKey(const QKeyEvent& event) const override { return event.key() == Qt::Key_X; }
    bool keyPress(const QKeyEvent& event) override
    {
        calls.append(QStringLiteral("key"));
        return event.key() == Qt::Key_X;
    }
    void paint(QPainter& painter) const override { painter.fillRect(QRect(10, 10, 20, 20), Qt::magenta); }

    QStringList calls;
};

} // namespace

/// What tools of the view get, and what the view does without them.
class TestViewTool : public SceneViewCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        showSquares();
        m_view->input().addTool(&m_tool);
        m_tool.calls.clear();
    }
    void cleanup() { endView(); }

    void aToolThatTakesThePressHasTheMouse()
    {
        const NxViewpoint before = m_view->viewpoint();
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        const QSignalSpy menu(m_view.get(), &SceneView::menuRequested);
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(100, 100), QPoint(500, 200));
        QCOMPARE(m_tool.calls,
            (QStringList{QStringLiteral("press"), QStringLiteral("drag"), QStringLiteral("drag"),
                QStringLiteral("drag"), QStringLiteral("drag"), QStringLiteral("release")}));
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, at(-2, 0));
        QCOMPARE(m_view->viewpoint(), before);
        QCOMPARE(picked.size(), 0);
        // Neither does the view open its menu where the tool takes the right button.
        QTest::mouseClick(m_view.get(), Qt::RightButton, Qt::NoModifier, at(-2, 0));
        QContextMenuEvent event(QContextMenuEvent::Mouse, at(-2, 0), m_view->mapToGlobal(at(-2, 0)));
        QApplication::sendEvent(m_view.get(), &event);
        QCOMPARE(menu.size(), 0);
    }

    void theViewNavigatesAndPicksWhereNoToolTakesThePress()
    {
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, at(2, 0));
        QCOMPARE(picked.size(), 1);
        const NxViewpoint before = m_view->viewpoint();
        drag(Qt::LeftButton, Qt::NoModifier, QPoint(500, 200), QPoint(400, 200));
        QVERIFY(!(m_view->viewpoint() == before));
        QVERIFY(!m_tool.calls.contains(QStringLiteral("drag")));
        QVERIFY(!m_tool.calls.contains(QStringLiteral("release")));
    }

    void theLatestToolIsAskedFirst()
    {
        LeftHalf second;
        m_view->input().addTool(&second);
        QTest::mouseMove(m_view.get(), QPoint(100, 100));
        QCOMPARE(second.calls, QStringList{QStringLiteral("hover")});
        QCOMPARE(m_tool.calls, QStringList{QStringLiteral("leave")});
        QTest::mouseMove(m_view.get(), QPoint(400, 100));
        QCOMPARE(
            second.calls, (QStringList{QStringLiteral("hover"), QStringLiteral("hover"), QStringLiteral("leave")}));
        QCOMPARE(
            m_tool.calls, (QStringList{QStringLiteral("leave"), QStringLiteral("hover"), QStringLiteral("leave")}));
        m_view->input().removeTool(&second);
        m_tool.calls.clear();
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        QCOMPARE(m_tool.calls, (QStringList{QStringLiteral("press"), QStringLiteral("release")}));
        QCOMPARE(second.calls.size(), 3);
    }

    void keysOfAToolAreNoShortcuts()
    {
        QShortcut shortcut(QKeySequence(Qt::Key_X), m_view.get());
        QShortcut other(QKeySequence(Qt::Key_Y), m_view.get());
        const QSignalSpy taken(&shortcut, &QShortcut::activated);
        const QSignalSpy left(&other, &QShortcut::activated);
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        QTest::keyClick(m_view.get(), Qt::Key_X);
        QTest::keyClick(m_view.get(), Qt::Key_Y);
        QCOMPARE(m_tool.calls.count(QStringLiteral("key")), 1);
        QCOMPARE(taken.size(), 0);
        QCOMPARE(left.size(), 1);
    }

    void paintsOverThePicture() { QCOMPARE(picture().pixelColor(20, 20), QColor(Qt::magenta)); }

    void aDragEndsWithTheScene()
    {
        QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        m_view->setScene(nullptr, QString());
        QCOMPARE(m_tool.calls, (QStringList{QStringLiteral("press"), QStringLiteral("cancel")}));
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
        QCOMPARE(m_tool.calls.size(), 2);
    }

private:
    LeftHalf m_tool;
};

QTEST_MAIN(TestViewTool)
#include "tst_ViewTool.moc"
