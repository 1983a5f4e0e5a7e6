#include "app/view/handles/HandleCase.h"

#include "orvane/app/view/handles/HoverTool.h"

using namespace meridane;

namespace {

/// Three squares behind each other.
const char* const stackText
    = "#mrd 1.0\n"
      "Mesh \"back\" { positions = [-3 -3 -2, 3 -3 -2, 3 3 -2, -3 3 -2]; indices = [0, 1, 2, 0, 2, 3] }\n"
      "Mesh \"front\" { positions = [-1 -1 2, 1 -1 2, 1 1 2, -1 1 2]; indices = [0, 1, 2, 0, 2, 3] }\n"
      "Mesh \"middle\" { positions = [-2 -2 0, 2 -2 0, 2 2 0, -2 2 0]; indices = [0, 1, 2, 0, 2, 3] }\n";

} // namespace

/// What a click would pick, and how a user gets to what lies behind.
class TestHoverTool : public HandleCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        writeFile(filePath("stack.mrd"), stackText);
        show("stack.mrd");
        hoverTool()->setMostMilliseconds(60000);
    }
    void cleanup() { endTool(); }

    void outlinesWhatAClickWouldPick()
    {
        const QImage before = picture();
        hover(middle());
        QTRY_VERIFY(picture() != before);
        const QImage front = picture();
        hover(beside());
        QTRY_VERIFY(picture() != front);
        hover(QPoint(2, 2)); // nothing is there
        QTRY_COMPARE(picture(), before);
    }

    void theOutlineGoesWithThePointer()
    {
        const QImage before = picture();
        hover(middle());
        QTRY_VERIFY(picture() != before);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view(), &leave);
        QTRY_COMPARE(picture(), before);
    }

    void doesNotLookWhereThatWouldBeFelt()
    {
        hoverTool()->setMostMilliseconds(-1); // any picture takes longer
        const QImage before = picture();
        hover(middle());
        QTRY_VERIFY(!hoverTool()->isResting());
        QCOMPARE(picture(), before);
        hoverTool()->setMostMilliseconds(60000);
        hover(middle());
        QTRY_VERIFY(picture() != before);
    }

    void clicksOnTheSamePlaceGoBehind()
    {
        for (const char* name : {"front", "middle", "back", "front"}) {
            QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, middle());
            QCOMPARE(nameOfSelected(), QLatin1String(name));
        }
        // Elsewhere it begins with the front.
        QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, beside());
        QCOMPARE(nameOfSelected(), QStringLiteral("middle"));
        QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, middle());
        QCOMPARE(nameOfSelected(), QStringLiteral("front"));
        // And after the view has moved.
        QTest::keyClick(view(), Qt::Key_Plus);
        QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, middle());
        QCOMPARE(nameOfSelected(), QStringLiteral("front"));
    }

    void tabGoesBehindAsLongAsThePointerIsThere()
    {
        view()->setFocus();
        QTest::mouseClick(view(), Qt::LeftButton, Qt::NoModifier, middle());
        for (const char* name : {"middle", "back", "front"}) {
            QTest::keyClick(view(), Qt::Key_Tab);
            QCOMPARE(nameOfSelected(), QLatin1String(name));
        }
        QTest::keyClick(view(), Qt::Key_Backtab);
        QCOMPARE(nameOfSelected(), QStringLiteral("back"));
        QVERIFY(view()->hasFocus());
        hover(QPoint(2, 2));
        QTest::keyClick(view(), Qt::Key_Tab); // leaves the view, as everywhere
        QCOMPARE(nameOfSelected(), QStringLiteral("back"));
        QVERIFY(!view()->hasFocus());
    }

private:
    HoverTool* hoverTool() { return view()->findChild<HoverTool*>(); }
    [[nodiscard]] QPoint placeOf(const VbVec3d& point)
    {
        const auto place = projection().placeOf(point);
        return {qRound((*place)[0]), qRound((*place)[1])};
    }
    [[nodiscard]] QPoint middle() { return placeOf(VbVec3d(0.3, 0.3, 2)); }
    [[nodiscard]] QPoint beside() { return placeOf(VbVec3d(1.8, 1.8, 0)); }
    [[nodiscard]] QString nameOfSelected()
    {
        const NxNode* const node = tree()->selectedNode();
        return node != nullptr ? QString::fromStdString(std::string(node->getName().view())) : QString();
    }
    void hover(const QPoint& place) { move(place, Qt::NoModifier, Qt::NoButton); }
};

QTEST_MAIN(TestHoverTool)
#include "tst_HoverTool.moc"
