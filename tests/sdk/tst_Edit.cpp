#include "plugin/ToolHarness.h"
#include "sdk/Angle.h"

#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvStepList.h"

#include <stdexcept>
#include <string>
#include <vector>

// Changes of the scene by a plug-in, and their undo.
class TestEdit : public QObject {
    Q_OBJECT

    /// The services, with a scene that has a signpost.
    struct Tool : ToolHarness {
        Tool() { root->addChild(post.get()); }
        void open() { services.document().open(OrvDocument::makeJournal(*root)); }

        NxRef<NxGroup> root = new NxGroup;
        NxRef<Signpost> post = new Signpost;
    };

private Q_SLOTS:
    void aWriteIsUndoneAndRedone()
    {
        Tool tool;
        QVERIFY(orv::edit(tool.post->heading, Angle{10}));
        QVERIFY(orv::edit(tool.post->heading, {20}));
        QCOMPARE(tool.services.pushed, 2);
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 10.0F);
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
        tool.services.redo();
        tool.services.redo();
        QCOMPARE(tool.post->heading.getValue().degrees, 20.0F);
    }

    void aListIsWrittenAsAWhole()
    {
        Tool tool;
        QVERIFY(orv::edit(tool.post->places, {Place{"inn"}, Place{"well"}}));
        QCOMPARE(tool.post->places.getNum(), 2);
        tool.services.undo();
        QCOMPARE(tool.post->places.getNum(), 0);
    }

    /// And no copy of the list.
    void inTheOpenSceneTheHistoryKeepsTheRowsThatAreWritten()
    {
        Tool tool;
        constexpr int count = 100'000;
        MFPlace& places = tool.post->places;
        QVERIFY(places.setValues(std::vector<Place>(count, Place{"somewhere"})));
        tool.open();
        QVERIFY(orv::editBy(places, [&] { return places.set1Value(5, Place{"inn"}); }));
        QCOMPARE(tool.services.pushed, 1);
        constexpr std::size_t fewBytes = 10'000;
        QVERIFY(tool.services.steps().bytes() < fewBytes);
        tool.services.undo();
        QCOMPARE(places[5].name, std::string("somewhere"));
        tool.services.redo();
        QCOMPARE(places[5].name, std::string("inn"));
        QVERIFY(orv::edit(places, {Place{"well"}}));
        tool.services.undo();
        QCOMPARE(places.getNum(), count);
        QCOMPARE(places[5].name, std::string("inn"));
        tool.services.clearHistory();
        tool.services.document().close();
    }

    void aTextThatIsRefusedPushesNothing()
    {
        Tool tool;
        QVERIFY(!orv::editText(tool.post->heading, QStringLiteral("north")));
        QCOMPARE(tool.services.pushed, 0);
        QVERIFY(orv::editText(tool.post->heading, QStringLiteral("5")));
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
    }

    void theDefaultIsRestoredOnce()
    {
        Tool tool;
        QVERIFY(!orv::editToDefault(tool.post->heading));
        tool.post->heading.setValue({10});
        QVERIFY(orv::editToDefault(tool.post->heading));
        QVERIFY(tool.post->heading.isDefault());
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 10.0F);
    }

    void theIgnoredFlagIsUndone()
    {
        Tool tool;
        QVERIFY(orv::editIgnored(tool.post->lit, true));
        QVERIFY(!orv::editIgnored(tool.post->lit, true));
        QCOMPARE(tool.services.pushed, 1);
        tool.services.undo();
        QVERIFY(!tool.post->lit.isIgnored());
        tool.services.redo();
        QVERIFY(tool.post->lit.isIgnored());
    }

    void theCommandKeepsTheNodeAlive()
    {
        Tool tool;
        QVERIFY(orv::edit(tool.post->heading, {10}));
        const Signpost* const post = tool.post.get();
        tool.root->removeChild(0);
        tool.post = {};
        QCOMPARE(post->getRefCount(), 1);
        tool.services.undo();
        QCOMPARE(post->heading.getValue().degrees, 90.0F);
        tool.services.clearHistory();
    }

    void aFieldWithoutANodeIsJustWritten()
    {
        const Tool tool;
        NxSFFloat field(nullptr, "loose");
        QVERIFY(orv::edit(field, 3));
        QCOMPARE(field.getValue(), 3.0F);
        QCOMPARE(tool.services.pushed, 0);
        QVERIFY(!orv::editToDefault(field));
        QVERIFY(!orv::editIgnored(field, true));
    }

    void severalChangesAreOneStep()
    {
        Tool tool;
        tool.open();
        orv::edit(QStringLiteral("Turn and light"), [&] {
            orv::edit(tool.post->heading, {10});
            orv::edit(QStringLiteral("Light"), [&] { orv::edit(tool.post->lit, true); });
            tool.root->addChild(new NxGroup);
        });
        QCOMPARE(tool.services.undoDepth(), 1);
        QCOMPARE(tool.services.undoText(), QStringLiteral("Turn and light"));
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
        QVERIFY(!tool.post->lit.getValue());
        QCOMPARE(tool.root->getNumChildren(), 1);
    }

    void whatThrowsEndsTheStep()
    {
        Tool tool;
        tool.open();
        const auto fail = [&] {
            orv::edit(tool.post->heading, {10});
            throw std::runtime_error("no");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, orv::edit(QStringLiteral("Fail"), fail));
        orv::edit(tool.post->heading, {20});
        QCOMPARE(tool.services.undoDepth(), 2);
        tool.services.undo();
        tool.services.undo();
        QCOMPARE(tool.post->heading.getValue().degrees, 90.0F);
    }
};

QTEST_MAIN(TestEdit)
#include "tst_Edit.moc"
