#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/marks/MarkedRows.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

using namespace Qt::StringLiterals;

/// Rows of lists of a mesh that are marked in the view, and vertices that are clicked there.
class TestMarkedRows : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        const QString squares = filePath("two squares.mrd");
        writeFile(squares, ViewScenes::squaresText);
        QCOMPARE(open(squares), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        NxDrawingStyle style = ViewScenes::withoutLines(view()->style());
        style.markColor = VbColor(1, 0, 1);
        style.markSize = 12;
        view()->setStyle(style);
        QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(panel()->isVisible());
        select(green()->positions);
    }
    void cleanup() { endTool(); }

    void selectedRowsAreMarked()
    {
        QVERIFY(marked().isEmpty());
        clickRow(0);
        QCOMPARE(marked(), QList<int>({0}));
        clickRow(2, Qt::ShiftModifier);
        QCOMPARE(marked(), QList<int>({0, 1, 2}));
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(marked(), QList<int>({0, 1, 2, 3}));
        panel()->view()->clearSelection();
        QVERIFY(marked().isEmpty());
    }

    void marksFollowTheValuesAndTheTransforms()
    {
        clickRow(1);
        QCOMPARE(marked(), QList<int>({1}));
        green()->positions.set1Value(1, VbVec3f(0.5F, 0.5F, 0));
        QCOMPARE(marked(), QList<int>({1}));
        auto& right = dynamic_cast<NxTransform&>(*scene()->getChild(2));
        right.translation.setValue(VbVec3f(1, 0.2F, 0));
        QCOMPARE(marked(), QList<int>({1}));
        // The row moves in the list, and is deleted.
        green()->positions.insertSpace(0, 1);
        QCOMPARE(marked(), QList<int>({2}));
        green()->positions.deleteValues(2, 1);
        QVERIFY(marked().isEmpty());
    }

    void rowsOfTheOtherListsOfVerticesAreMarkedToo()
    {
        green()->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0, 0, 1)));
        select(green()->normals);
        clickRow(3);
        QCOMPARE(marked(), QList<int>({3}));
        select(green()->indices);
        clickRow(4); // 0, 1, 2, 0, 2, 3
        QCOMPARE(marked(), QList<int>({2}));
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(marked(), QList<int>({0, 1, 2, 3}));
        green()->indices.set1Value(5, 2);
        QCOMPARE(marked(), QList<int>({0, 1, 2}));
        // A colour for all vertices is that of none in particular.
        green()->colors.insertSpace(0, 1);
        select(green()->colors);
        clickRow(0);
        QVERIFY(marked().isEmpty());
    }

    void rowsThatReferToNothingAreLeftOut()
    {
        green()->indices.setValues(std::vector<int>{0, -1, 4, 2147483647, 3});
        select(green()->indices);
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(marked(), QList<int>({0, 3}));
    }

    void filteredRowsAreMarkedWhereTheyAre()
    {
        auto* const filter = panel()->findChild<QLineEdit*>(u"listFilter"_s);
        QVERIFY(filter != nullptr);
        filter->setFocus();
        QTest::keyClicks(filter, u"y > 0"_s);
        QTest::keyClick(filter, Qt::Key_Return);
        QTRY_COMPARE(panel()->model()->rowCount(), 2);
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(marked(), QList<int>({2, 3}));
    }

    void marksGoWithTheListAndTheDock()
    {
        clickRow(0);
        QCOMPARE(marked(), QList<int>({0}));
        QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!panel()->isVisible());
        QVERIFY(marked().isEmpty());
        QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(marked(), QList<int>({0}));
        m_session->services().selectNode(scene()->getChild(0));
        QVERIFY(marked().isEmpty());
        select(green()->positions);
        clickRow(0);
        m_window->document().newScene();
        settle();
        QCOMPARE(markPixels(picture()), 0);
    }

    void aMillionRowsAreMarkedInTheBackground()
    {
        constexpr int count = 1'000'000;
        std::vector<VbVec3f> positions(count, VbVec3f(0, 0, 0));
        positions.front() = VbVec3f(-1, -1, 0);
        positions.back() = VbVec3f(1, 1, 0);
        green()->positions.setValues(std::move(positions));
        green()->indices.setValues(std::vector<int>{0, count - 1, 1});
        NxDelayQueue::getDefault().process();
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QVERIFY(!marks()->isFresh());
        settle();
        const QImage image = picture();
        for (const VbVec3f& place : {VbVec3f(1, -1, 0), VbVec3f(2, 0, 0), VbVec3f(3, 1, 0)})
            QVERIFY2(hasSmallMark(image, at(place)), qPrintable(QString::number(place[0])));
    }

    void aClickShowsTheRowOfTheNearestVertex_data()
    {
        QTest::addColumn<VbVec3f>("place");
        QTest::addColumn<int>("row");
        QTest::newRow("lower left") << VbVec3f(1.2F, -0.8F, 0) << 0;
        QTest::newRow("lower right") << VbVec3f(2.9F, -0.7F, 0) << 1;
        QTest::newRow("upper left") << VbVec3f(1.3F, 0.7F, 0) << 3;
    }
    void aClickShowsTheRowOfTheNearestVertex()
    {
        QFETCH(const VbVec3f, place);
        QFETCH(const int, row);
        QTest::mouseClick(view(), Qt::LeftButton, {}, at(place));
        QCOMPARE(panel()->view()->selectedListRows(), RowRuns({{row, 1}}));
        QCOMPARE(panel()->view()->currentIndex().row(), row);
        QCOMPARE(marked(), QList<int>({row}));
        const QString text = m_window->findChild<QLabel*>(u"pickedPoint"_s)->text();
        const VbVec3f position = green()->positions[row];
        QVERIFY2(text.endsWith(u"vertex %1 (%2 %3 0)"_s.arg(row).arg(double{position[0]}).arg(double{position[1]})),
            qPrintable(text));
    }

    void aClickShowsTheRowOfTheIndex()
    {
        select(green()->indices);
        QTest::mouseClick(view(), Qt::LeftButton, {}, at(VbVec3f(2.9F, 0.7F, 0)));
        QCOMPARE(panel()->view()->selectedListRows(), RowRuns({{2, 1}}));
    }

    void aClickOnAnotherMeshShowsItsRow()
    {
        clickRow(1);
        QTest::mouseClick(view(), Qt::LeftButton, {}, at(VbVec3f(-1.2F, 0.8F, 0)));
        const auto* const red = dynamic_cast<NxMesh*>(dynamic_cast<NxGroup&>(*scene()->getChild(1)).getChild(1));
        settle();
        QCOMPARE(panel()->list(), &red->positions);
        QCOMPARE(panel()->view()->selectedListRows(), RowRuns({{2, 1}}));
        QVERIFY(!marked().contains(1));
    }

private:
    void select(NxMField& list)
    {
        const NxNode& node = dynamic_cast<const NxNode&>(*list.getContainer());
        QVERIFY(&node == green());
        QVERIFY(m_window->selectPath(u"/right/greenSquare"_s));
        m_session->services().selectField(&list);
        settle();
        QCOMPARE(panel()->list(), &list);
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        ListView* const table = panel()->view();
        const QPoint place(
            table->verticalHeader()->width() / 2, table->rowViewportPosition(row) + table->rowHeight(row) / 2);
        QTest::mouseClick(table->verticalHeader()->viewport(), Qt::LeftButton, keys, place);
    }
    void settle()
    {
        NxDelayQueue::getDefault().process();
        QTRY_VERIFY(marks()->isFresh());
    }
    QImage picture() { return view()->grab().toImage(); }
    /// Where a point of the scene is in the view.
    QPoint at(const VbVec3f& point)
    {
        const NxViewpoint& viewpoint = view()->viewpoint();
        const double units
            = static_cast<double>(viewpoint.heightAt(static_cast<float>(viewpoint.position[2]) - point[2]));
        const double scale = view()->height() / units;
        return {static_cast<int>(std::lround(
                    view()->width() / 2.0 + (static_cast<double>(point[0]) - viewpoint.position[0]) * scale)),
            static_cast<int>(
                std::lround(view()->height() / 2.0 - (static_cast<double>(point[1]) - viewpoint.position[1]) * scale))};
    }
    static int markPixels(const QImage& image) { return ViewScenes::count(image, QColor(255, 0, 255)); }
    bool isMarked(const QImage& image, const VbVec3f& point)
    {
        return ViewScenes::isLike(image.pixelColor(at(point)), QColor(255, 0, 255));
    }
    /// Many marks are small: their colour is blended with that of the border.
    static bool hasSmallMark(const QImage& image, const QPoint& place)
    {
        bool isFound = false;
        for (int y = -2; y <= 2; ++y) {
            for (int x = -2; x <= 2; ++x) {
                const QColor color = image.pixelColor(place + QPoint(x, y));
                isFound = isFound || (color.red() > 100 && color.blue() > 100 && color.green() < 40);
            }
        }
        return isFound;
    }
    /// The vertices of the green square that have marks in the picture, which has no others.
    QList<int> marked()
    {
        settle();
        const QImage image = picture();
        const VbVec3f moved = dynamic_cast<NxTransform&>(*scene()->getChild(2)).translation.getValue();
        QList<int> vertices;
        for (int vertex = 0; vertex < green()->positions.getNum(); ++vertex) {
            const VbVec3f position = green()->positions[vertex];
            if (isMarked(image, VbVec3f(position[0] + moved[0], position[1] + moved[1], position[2] + moved[2])))
                vertices.append(vertex);
        }
        if (vertices.isEmpty() && markPixels(image) > 0)
            vertices.append(-1);
        return vertices;
    }

    NxGroup* scene() { return m_window->document().scene(); }
    NxMesh* green() { return dynamic_cast<NxMesh*>(dynamic_cast<NxGroup&>(*scene()->getChild(2)).getChild(1)); }
    SceneView* view() { return m_window->findChild<SceneView*>(); }
    ListPanel* panel() { return m_window->findChild<ListPanel*>(); }
    MarkedRows* marks() { return m_window->findChild<MarkedRows*>(); }
};

QTEST_MAIN(TestMarkedRows)
#include "tst_MarkedRows.moc"
