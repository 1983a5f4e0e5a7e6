#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/NxBounds.h"

#include <QTest>

#include <cmath>

/// Where a scene is looked at from when it is opened: from outside of all of it, whatever it is.
class TestFirstView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theViewerIsOutside_data()
    {
        QTest::addColumn<QByteArray>("scene");
        QTest::newRow("a room") << room("10", "0 0 0");
        QTest::newRow("a room with a camera inside")
            << room("10", "0 0 0") + "PerspectiveCamera { position = 1 0 2 }\n";
        QTest::newRow("a sky dome around a small thing") << room("1e6", "0 0 0") + room("0.01", "3 0 0");
        QTest::newRow("a small thing") << room("1e-5", "0 0 0");
        QTest::newRow("a single point") << cloud("5 6 7", "0");
        QTest::newRow("a point at the viewer's usual place") << cloud("1 0.7 1.4", "0");
        QTest::newRow("a flat plane") << mesh("-4 0 -4, 4 0 -4, 4 0 4, -4 0 4", "0, 1, 2, 0, 2, 3");
        QTest::newRow("a flat wall seen from its edge")
            << mesh("0 0 0, -100 0 -140, -100 100 -140, 0 100 0", "0, 1, 2, 0, 2, 3");
        QTest::newRow("a line along the line of sight") << line("0 0 0, 100 70 140");
        QTest::newRow("a long bar") << mesh("-1000 0 0, 1000 0 0, 1000 1 0, -1000 1 0", "0, 1, 2, 0, 2, 3");
        QTest::newRow("far from the origin") << room("2", "10000000 0 0");
        QTest::newRow("two things far apart") << room("1", "-100000 0 0") + room("1", "100000 0 0");
    }

    void theViewerIsOutside()
    {
        QFETCH(QByteArray, scene);
        for (const QSize size : {QSize(400, 300), QSize(120, 400)}) {
            for (const auto projection : {NxViewpoint::PERSPECTIVE, NxViewpoint::ORTHOGRAPHIC}) {
                SceneView view;
                view.resize(size);
                const NxRef<NxGroup> content = AppScenes::read(("#mrd 1.0\n" + scene).constData());
                view.setScene(content.get(), QString());
                view.setProjection(projection);
                view.show();
                QTRY_VERIFY(view.drawing().isStarted());
                static_cast<void>(view.grab());
                checkOutside(view);
                view.frameSelection();
                checkOutside(view);
            }
        }
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

private:
    static void checkOutside(SceneView& view)
    {
        const NxBounds bounds = view.drawing().bounds();
        QVERIFY(!bounds.isEmpty());
        const VbVec3d eye = view.viewpoint().position;
        bool isOutside = false;
        for (std::size_t axis = 0; axis < 3; ++axis)
            isOutside = isOutside || eye[axis] < static_cast<double>(bounds.min[axis])
                || eye[axis] > static_cast<double>(bounds.max[axis]);
        QVERIFY2(isOutside, qPrintable(QStringLiteral("%1 %2 %3").arg(eye[0]).arg(eye[1]).arg(eye[2])));
        // All of it is before the viewer.
        for (unsigned corner = 0; corner < 8; ++corner) {
            VbVec3d place;
            for (std::size_t axis = 0; axis < 3; ++axis)
                place[axis] = static_cast<double>((corner >> axis & 1U) != 0 ? bounds.max[axis] : bounds.min[axis]);
            QVERIFY(view.viewpoint().distanceTo(place) > 0);
        }
    }

    static QByteArray mesh(const char* positions, const char* indices, const char* more = "")
    {
        return QByteArray("Mesh { positions = [") + positions + "]; indices = [" + indices + "]" + more + " }\n";
    }
    static QByteArray cloud(const char* positions, const char* indices)
    {
        return mesh(positions, indices, "; primitive = POINTS");
    }
    static QByteArray line(const char* positions) { return mesh(positions, "0, 1", "; primitive = LINES"); }
    /// A box of that half size, which faces inwards too.
    static QByteArray room(const char* size, const char* place)
    {
        return QByteArray("Transform { translation = ") + place + "; scaleFactor = " + size + ' ' + size + ' ' + size
            + '\n'
            + mesh("-1 -1 -1, 1 -1 -1, 1 1 -1, -1 1 -1, -1 -1 1, 1 -1 1, 1 1 1, -1 1 1",
                "0, 1, 2, 0, 2, 3, 4, 5, 6, 4, 6, 7, 0, 1, 5, 0, 5, 4, 2, 3, 7, 2, 7, 6, 0, 3, 7, 0, 7, 4, 1, 2, 6, 1, "
                "6, 5")
            + "}\n";
    }
};

QTEST_MAIN(TestFirstView)
#include "tst_FirstView.moc"
