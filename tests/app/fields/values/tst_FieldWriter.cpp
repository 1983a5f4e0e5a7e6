#include "app/fields/values/ManyNodes.h"
#include "scene/FieldCatalogue.h"

#include "orvane/app/fields/values/FieldWriter.h"

#include "meridane/query/Expression.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxMaterial.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// Writing the fields of several nodes: all or none, in one step that can be undone to the bit.
class TestFieldWriter : public QObject {
    Q_OBJECT

private:
    static std::vector<NxRef<NxNode>> galleries(int count)
    {
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < count; ++i)
            nodes.emplace_back(new NxFieldGallery);
        return nodes;
    }
    static meridane::Expression expression(std::string_view text)
    {
        return std::get<meridane::Expression>(meridane::Expression::parse(text));
    }
    static std::string textOf(const NxField& field)
    {
        VbString text;
        field.get(text);
        return std::string(text.view());
    }

private Q_SLOTS:
    void aTextOfEachClassIsOneStepOfAllNodes_data() { addFieldKindRows(); }
    void aTextOfEachClassIsOneStepOfAllNodes()
    {
        QFETCH(const FieldKind*, kind);
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < 3; ++i) {
            const NxRef<NxFieldContainer> made = kind->makeNode();
            nodes.emplace_back(dynamic_cast<NxNode*>(made.get()));
        }
        ManyNodes many(nodes);
        FieldWriter writer(many.services());
        const FieldSet set = many.set("field");
        QCOMPARE(set.count(), 3);
        RandomValues random(1);
        for (NxField* const field : set.fields())
            kind->setRandom(*field, random);
        const std::string before = many.text();
        int steps = many.services().undoDepth();
        for (const FieldKind::Accepted& accepted : kind->accepted) {
            const std::string last = many.text();
            QVERIFY(writer.setText(set, QString::fromStdString(accepted.text)));
            for (const NxField* const field : set.fields())
                QCOMPARE(textOf(*field), accepted.canonical);
            QVERIFY(!set.isMixed());
            const bool changed = many.text() != last;
            steps += changed ? 1 : 0;
            QCOMPARE(many.services().undoDepth(), steps);
            if (!changed)
                continue;
            many.services().undo();
            QCOMPARE(many.text(), last);
            many.services().redo();
            QVERIFY(many.text() != last);
        }
        const std::string after = many.text();
        for (const std::string& refused : kind->refused) {
            const auto result = writer.setText(set, QString::fromStdString(refused));
            QVERIFY2(!result, refused.c_str());
            QVERIFY2(result.error().contains(u"field"_s), qPrintable(result.error()));
            QCOMPARE(many.text(), after);
            QCOMPARE(many.services().undoDepth(), steps);
        }
        while (many.services().undoDepth() > 1)
            many.services().undo();
        QCOMPARE(many.text(), before);
    }

    void stepsAreNamedAfterTheFieldAndTheNumberOfNodes()
    {
        std::vector<NxRef<NxNode>> nodes = galleries(12);
        ManyNodes many(nodes);
        nodes.front()->setName("arm");
        FieldWriter writer(many.services());
        QVERIFY(writer.setText(many.set("sfFloat"), u"7.5"_s));
        ManyNodes::finish();
        QVERIFY(writer.setText(FieldSet(many.field(0, "sfFloat")), u"8"_s));
        ManyNodes::finish();
        QVERIFY(writer.setIgnored(many.set("sfFloat"), true));
        ManyNodes::finish();
        QVERIFY(writer.setIgnored(many.set("sfFloat"), false));
        ManyNodes::finish();
        QVERIFY(writer.reset(many.set("sfFloat")));
        const QStringList expected{u"Rename arm"_s, u"Set sfFloat of 12 nodes"_s, u"Set arm.sfFloat"_s,
            u"Ignore sfFloat of 12 nodes"_s, u"Use sfFloat of 12 nodes"_s, u"Reset sfFloat of 12 nodes"_s};
        QStringList labels = many.labels();
        if (labels.front() != expected.front())
            labels.push_front(expected.front());
        QCOMPARE(labels, expected);
    }

    void aRefusalSaysWhatTheFieldTakes()
    {
        ManyNodes many(galleries(2));
        FieldWriter writer(many.services());
        QCOMPARE(writer.setText(many.set("sfFloat"), u"about 3"_s).error(),
            u"\"about 3\" isn't a value for sfFloat, a field of type SFFloat. The default is an example of one: 0"_s);
        const QString choices = writer.setText(many.set("sfEnum"), u"best"_s).error();
        QVERIFY2(choices.contains(u"It takes: LOW, "_s), qPrintable(choices));
        QVERIFY(!writer.setText(FieldSet(), u"1"_s));
        QCOMPARE(many.services().undoDepth(), 0);
    }

    void aValueIsCopiedToAllNodesOnlyFromItsOwnClass()
    {
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        many.field(0, "sfVec3f").set("4 5 6");
        const std::string before = many.text();
        QVERIFY(writer.copy(many.set("sfVec3f"), many.field(0, "sfVec3f")));
        QCOMPARE(textOf(many.field(2, "sfVec3f")), std::string("4 5 6"));
        ManyNodes::finish();
        many.services().undo();
        QCOMPARE(many.text(), before);
        const auto refused = writer.copy(many.set("sfVec3f"), many.field(0, "sfFloat"));
        QVERIFY2(refused.error().contains(u"SFVec3f"_s) && refused.error().contains(u"SFFloat"_s),
            qPrintable(refused.error()));
        QCOMPARE(many.text(), before);
    }

    void aResetGivesEachNodeTheDefaultOfItsOwnClass()
    {
        NxFieldGallery* const gallery = new NxFieldGallery;
        NxMaterial* const material = new NxMaterial;
        ManyNodes many({gallery, material});
        FieldWriter writer(many.services());
        material->transparency.setValue(0.5F);
        ManyNodes::finish();
        QVERIFY(writer.reset(FieldSet(material->transparency)));
        QVERIFY(material->transparency.isDefault());
        ManyNodes::finish();
        many.services().undo();
        QCOMPARE(material->transparency.getValue(), 0.5F);
    }

    void ignoringNodesOfWhichSomeAreIgnoredCanBeUndone()
    {
        ManyNodes many(galleries(3));
        many.field(1, "sfFloat").setIgnored(1);
        const std::string before = many.text();
        FieldWriter writer(many.services());
        const FieldSet set = many.set("sfFloat");
        QVERIFY(set.isIgnoredMixed() && !set.isIgnored());
        QVERIFY(writer.setIgnored(set, true));
        QVERIFY(set.isIgnored() && !set.isIgnoredMixed());
        ManyNodes::finish();
        many.services().undo();
        QCOMPARE(many.text(), before);
    }

    void withoutAJournalTheCommandUndoesAll()
    {
        OrvServices services;
        FieldWriter writer(services);
        auto nodes = std::make_shared<FieldSet::Nodes>();
        for (int i = 0; i < 3; ++i) {
            nodes->emplace_back(new NxFieldGallery);
            nodes->back()->getField("sfInt32")->set(std::to_string(i).c_str());
        }
        const FieldSet set(*nodes->front()->getField("sfInt32"), nodes);
        QVERIFY(writer.setText(set, u"9"_s));
        QVERIFY(!set.isMixed());
        services.undo();
        QCOMPARE(textOf(*set.fields()[2]), std::string("2"));
        services.redo();
        QCOMPARE(textOf(*set.fields()[2]), std::string("9"));
    }

    void anExpressionWorksOnEachFieldsOwnValue()
    {
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        many.field(0, "sfVec3f").set("1 2 3");
        many.field(1, "sfVec3f").set("10 20 30");
        const std::string before = many.text();
        QVERIFY(writer.setNumber(many.set("sfVec3f"), 1, expression("x*2 + 1")));
        QCOMPARE(textOf(many.field(0, "sfVec3f")), std::string("1 5 3"));
        QCOMPARE(textOf(many.field(1, "sfVec3f")), std::string("10 41 30"));
        QCOMPARE(textOf(many.field(2, "sfVec3f")), std::string("0 1 0"));
        ManyNodes::finish();
        many.services().undo();
        QCOMPARE(many.text(), before);
    }

    void aNumberThatOneFieldCannotTakeChangesNone_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reason");
        QTest::newRow("out of the type") << u"sfShort"_s << u"30000 + x"_s << u"32767"_s;
        QTest::newRow("not whole") << u"sfInt32"_s << u"x / 7"_s << u"whole"_s;
        QTest::newRow("not defined") << u"sfFloat"_s << u"1 / (x - 5000)"_s << u"division"_s;
        QTest::newRow("no numbers") << u"sfString"_s << u"1"_s << u"numbers"_s;
    }
    void aNumberThatOneFieldCannotTakeChangesNone()
    {
        QFETCH(const QString, field);
        QFETCH(const QString, text);
        QFETCH(const QString, reason);
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        const QByteArray name = field.toLatin1();
        if (field != u"sfString"_s)
            many.field(1, name.constData()).set("5000");
        const std::string before = many.text();
        const int steps = many.services().undoDepth();
        const auto result = writer.setNumber(many.set(name.constData()), 0, expression(text.toStdString()));
        QVERIFY(!result);
        QVERIFY2(result.error().contains(reason), qPrintable(result.error()));
        QCOMPARE(many.text(), before);
        QCOMPARE(many.services().undoDepth(), steps);
    }

    void aLiveEditOfManyActionsIsOneStep()
    {
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        const FieldSet set = many.set("sfInt32");
        many.field(1, "sfInt32").set("70");
        const std::string before = many.text();
        QVERIFY(writer.begin(set));
        for (const char* const value : {"1", "2", "3"}) {
            QVERIFY(writer.setText(set, QString::fromLatin1(value)));
            ManyNodes::finish();
            QCOMPARE(many.services().undoDepth(), 2);
        }
        QVERIFY(!writer.setText(set, u"four"_s));
        writer.end();
        const std::string after = many.text();
        QCOMPARE(many.labels().back(), u"Set sfInt32 of 3 nodes"_s);
        // What follows is another step.
        QVERIFY(writer.setText(set, u"4"_s));
        ManyNodes::finish();
        QCOMPARE(many.services().undoDepth(), 3);
        many.services().undo();
        QCOMPARE(many.text(), after);
        many.services().undo();
        QCOMPARE(many.text(), before);
        many.services().redo();
        QCOMPARE(many.text(), after);
    }

    void aCancelledEditLeavesNoStep_data()
    {
        QTest::addColumn<bool>("inOneAction");
        QTest::newRow("one action") << true;
        QTest::newRow("several actions") << false;
    }
    void aCancelledEditLeavesNoStep()
    {
        QFETCH(const bool, inOneAction);
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        const FieldSet set = many.set("sfInt32");
        many.field(1, "sfInt32").set("70");
        const std::string before = many.text();
        QVERIFY(writer.begin(set));
        QVERIFY(writer.isLive());
        for (const char* const value : {"1", "2", "3"}) {
            QVERIFY(writer.setText(set, QString::fromLatin1(value)));
            if (!inOneAction)
                ManyNodes::finish();
        }
        writer.cancel();
        QVERIFY(!writer.isLive());
        QCOMPARE(many.text(), before);
        QCOMPARE(many.services().undoDepth(), 1);
        QVERIFY(!many.services().canRedo());
    }

    void aDragMovesEachFieldFromItsOwnValue()
    {
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        many.field(0, "sfVec3f").set("1 2 3");
        many.field(1, "sfVec3f").set("1 5 3");
        const std::string before = many.text();
        const FieldSet set = many.set("sfVec3f");
        QVERIFY(set.isMixed(1) && set.isMixed(0) && !set.isMixed(3));
        writer.beginDrag(set, 1);
        writer.drag(0.25);
        ManyNodes::finish();
        writer.drag(0.5);
        writer.end();
        QCOMPARE(textOf(many.field(0, "sfVec3f")), std::string("1 2.5 3"));
        QCOMPARE(textOf(many.field(1, "sfVec3f")), std::string("1 5.5 3"));
        QCOMPARE(textOf(many.field(2, "sfVec3f")), std::string("0 0.5 0"));
        const std::string after = many.text();
        const int steps = many.services().undoDepth();
        writer.beginDrag(set, 1);
        writer.drag(100);
        ManyNodes::finish();
        writer.cancel();
        QCOMPARE(many.text(), after);
        QCOMPARE(many.services().undoDepth(), steps);
        many.services().undo();
        QCOMPARE(many.text(), before);
    }

    void aDragStaysInTheRangeOfTheType()
    {
        ManyNodes many(galleries(2));
        FieldWriter writer(many.services());
        writer.beginDrag(many.set("sfShort"), 0);
        writer.drag(2.6);
        QCOMPARE(textOf(many.field(0, "sfShort")), std::string("3"));
        writer.drag(1e9);
        QCOMPARE(textOf(many.field(1, "sfShort")), std::string("32767"));
        writer.drag(0);
        writer.end();
        ManyNodes::finish();
        QCOMPARE(many.services().undoDepth(), 0);
        writer.beginDrag(many.set("sfString"), 0);
        QVERIFY(!writer.isLive());
        writer.drag(1);
        QCOMPARE(many.services().undoDepth(), 0);
    }

    void aLiveEditWithoutAJournalCanBeUndone()
    {
        OrvServices services;
        FieldWriter writer(services);
        const NxRef<NxFieldContainer> gallery(new NxFieldGallery);
        const FieldSet set(*gallery->getField("sfInt32"));
        QVERIFY(writer.begin(set));
        QVERIFY(writer.setText(set, u"5"_s));
        QVERIFY(writer.setText(set, u"6"_s));
        writer.end();
        services.undo();
        QVERIFY(!set.isChanged());
        services.redo();
        QCOMPARE(textOf(set.first()), std::string("6"));
    }

    void aFunctionChangesEachFieldOrNone()
    {
        ManyNodes many(galleries(3));
        FieldWriter writer(many.services());
        const std::string before = many.text();
        int calls = 0;
        QVERIFY(
            !writer.change(many.set("sfInt32"), [&calls](NxField& field) { return ++calls < 3 && field.set("1"); }));
        QCOMPARE(many.text(), before);
        QCOMPARE(many.services().undoDepth(), 0);
        QVERIFY(writer.change(
            many.set("sfInt32"), [&calls](NxField& field) { return field.set(std::to_string(++calls).c_str()); }));
        QCOMPARE(textOf(many.field(2, "sfInt32")), std::string("6"));
        QVERIFY(many.set("sfInt32").isMixed());
    }
};

QTEST_MAIN(TestFieldWriter)
#include "tst_FieldWriter.moc"
