#include "app/AppScenes.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/SceneWalk.h"

#include <QTest>

class TestSceneWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void visitsInTheOrderOfTheSceneWhatIsEntered()
    {
        const NxRef<NxGroup> scene = AppScenes::read("#mrd 1.0\n"
                                                     "Group \"a\" { Group \"b\" { Mesh \"c\" {} } Mesh \"d\" {} }\n"
                                                     "Group \"closed\" { Mesh \"hidden\" {} }\n"
                                                     "Mesh \"e\" {}\n");
        QStringList visits;
        SceneWalk walk(*scene);
        while (NxNode* const node = walk.next()) {
            QStringList names;
            for (NxNode* const step : walk.path())
                names += orvane::toQString(step->getName());
            QStringList indices;
            for (const int index : walk.indices())
                indices += QString::number(index);
            visits += names.join(u'/') + u' ' + indices.join(u'/');
            if (node->getName() != VbString("closed"))
                walk.enter();
        }
        QCOMPARE(visits,
            QStringList({QStringLiteral("a 0"), QStringLiteral("a/b 0/0"), QStringLiteral("a/b/c 0/0/0"),
                QStringLiteral("a/d 0/1"), QStringLiteral("closed 1"), QStringLiteral("e 2")}));
        QVERIFY(walk.next() == nullptr);
    }

    void entersASharedGroupOnceIfAsked()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxGroup> shared(new NxGroup);
        const NxRef<NxGroup> leaf(new NxGroup);
        shared->addChild(leaf.get());
        scene->addChild(shared.get());
        scene->addChild(shared.get());
        std::vector<NxNode*> visits;
        SceneWalk walk(*scene);
        while (NxNode* const node = walk.next()) {
            visits.push_back(node);
            walk.enterOnce();
        }
        QCOMPARE(visits, (std::vector<NxNode*>{shared.get(), leaf.get(), shared.get()}));
    }

    void anEmptySceneHasNothingToVisit()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        SceneWalk walk(*scene);
        QVERIFY(walk.next() == nullptr);
    }
};

QTEST_GUILESS_MAIN(TestSceneWalk)
#include "tst_SceneWalk.moc"
