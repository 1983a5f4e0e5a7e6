#include "app/AppScenes.h"
#include "app/StepClock.h"

#include "orvane/app/actions/PlaceSearch.h"
#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/fields/NxField.h"

#include <QTest>

#include <limits>

class TestPlaceSearch : public QObject {
    Q_OBJECT

private:
    static QStringList found(PlaceSearch& search)
    {
        while (!search.isDone())
            search.work();
        QStringList names;
        for (const PlaceSearch::Hit& hit : search.hits()) {
            QStringList steps;
            for (const NxNode* const node : hit.path)
                steps.append(PlaceSearch::nameOf(*node));
            QString name = steps.join(u'/');
            if (hit.field != nullptr)
                name += u'.' + orvane::toQString(hit.path.back()->getFieldName(hit.field));
            names.append(name);
        }
        return names;
    }

private Q_SLOTS:
    void findsNodesAndFields_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("never");
        const auto row = [](const char* name, const char* text, const char* first, const char* never) {
            QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(first)
                                << QString::fromLatin1(never);
        };
        row("node", "hnd", "robot/hand", "robot/arm");
        row("class of a node without a name", "mesh", "robot/Mesh", "sun");
        row("parent", "rob/arm", "robot/arm", "robot/hand");
        row("slash at the beginning", "/sun", "sun", "robot");
        row("another parent", "sun/arm", "", "robot/arm");
        row("field of a node", "sun.int", "sun.intensity", "sun");
        row("field of any node", ".intens", "sun.intensity", "robot");
        row("field alone", "intensity", "sun.intensity", "robot/arm");
        row("nothing", "zzz", "", "robot");
    }
    void findsNodesAndFields()
    {
        QFETCH(QString, text);
        QFETCH(QString, first);
        QFETCH(QString, never);
        const NxRef<NxGroup> scene = AppScenes::robot();
        PlaceSearch search;
        search.start(scene.get(), text);
        const QStringList names = found(search);
        QCOMPARE(names.value(0), first);
        QVERIFY2(!names.contains(never), qPrintable(names.join(u' ')));
    }

    void withoutLettersTheSceneComesInItsOrder()
    {
        const NxRef<NxGroup> scene = AppScenes::robot();
        PlaceSearch search;
        search.start(scene.get(), {});
        QCOMPARE(found(search),
            QStringList({QStringLiteral("robot"), QStringLiteral("robot/arm"), QStringLiteral("robot/hand"),
                QStringLiteral("robot/Mesh"), QStringLiteral("sun")}));
    }

    void whatIsPreferredComesFirst()
    {
        const NxRef<NxGroup> scene = AppScenes::robot();
        const NxNode* const hand = scene->getChild(0)->getChildren()[1];
        PlaceSearch search;
        search.start(scene.get(), QStringLiteral("a"), {{hand, 1000}});
        QCOMPARE(found(search).value(0), QStringLiteral("robot/hand"));
    }

    void theBestOfManyAreKept()
    {
        const NxRef<NxGroup> scene = AppScenes::wide(5000);
        auto* const group = static_cast<NxGroup*>(scene->getChild(0));
        for (int i = 0; i < group->getNumChildren(); ++i)
            group->getChild(i)->setName(i == 4321 ? "needle" : "nearly edible");
        PlaceSearch search;
        search.start(scene.get(), QStringLiteral("needle"));
        const QStringList names = found(search);
        QCOMPARE(names.value(0), QStringLiteral("Group/needle"));
        search.start(scene.get(), QStringLiteral("nedle"));
        QCOMPARE(found(search).size(), qsizetype{PlaceSearch::mostHits});
    }

    void worksInSlices()
    {
        const NxRef<NxGroup> scene = AppScenes::wide(1000);
        scene->getChild(0)->setName("first");
        PlaceSearch search(&StepClock::now);
        search.start(scene.get(), QStringLiteral("first"));
        int slices = 0;
        while (!search.isDone()) {
            const int before = StepClock::readings();
            search.work();
            QVERIFY(StepClock::readings() - before <= 6);
            if (++slices == 1)
                QCOMPARE(search.hits().size(), std::size_t{1}); // long before the end
        }
        QVERIFY2(slices > 5, qPrintable(QString::number(slices)));
    }

    void noSceneHasNothing()
    {
        PlaceSearch search;
        QVERIFY(search.isDone());
        search.start(nullptr, QStringLiteral("a"));
        QVERIFY(search.isDone());
        QVERIFY(!search.work());
        QVERIFY(search.hits().empty());
    }
};

QTEST_GUILESS_MAIN(TestPlaceSearch)
#include "tst_PlaceSearch.moc"
