#include "scene/FieldCatalogue.h"
#include "scene/RandomScene.h"
#include "scene/TestNodes.h"
#include "scene/journal/JournalRun.h"
#include "scene/journal/RandomChanges.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QTest>

#include <ranges>

using meridane::JournalStep;

/// That steps undo and redo exactly.
class TestJournalStep : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFieldClassIsPutBackExactly_data() { addFieldKindRows(); }

    void everyFieldClassIsPutBackExactly()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        RandomValues random(3);
        std::vector<NxRef<NxFieldContainer>> states;
        NxField& field = fieldOf(node);
        const auto keepState = [&] {
            states.push_back(kind->makeNode());
            fieldOf(states.back()).copyFrom(field);
        };
        keepState();
        while (run.steps().size() < 30) {
            kind->setRandom(field, random);
            if (run.steps().size() % 3 == 0)
                kind->setRandom(field, random); // the second write of a step
            if (run.finish() != nullptr)
                keepState();
        }
        for (std::size_t i = run.steps().size(); i-- > 0;) {
            run.steps()[i]->undo();
            QVERIFY(field.isSame(fieldOf(states[i])));
        }
        for (std::size_t i = 0; i < run.steps().size(); ++i) {
            run.steps()[i]->redo();
            QVERIFY(field.isSame(fieldOf(states[i + 1])));
        }
    }

    void whatIsRecordedIsShownInItsPlace_data() { addFieldKindRows(); }

    void whatIsRecordedIsShownInItsPlace()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        const NxRef<NxFieldContainer> copies[] = {kind->makeNode(), kind->makeNode()};
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        RandomValues random(5);
        NxField& field = fieldOf(node);
        for (int i = 0; i < 20; ++i) {
            fieldOf(copies[0]).copyFrom(field);
            NxField& other = fieldOf(copies[1]);
            other.copyFrom(field);
            kind->setRandom(other, random);
            field.copyFrom(other);
            const JournalStep* const step = run.finish();
            if (step == nullptr)
                continue;
            QCOMPARE(step->records().size(), 1U);
            meridane::ChangeRecord& record = *step->records().front();
            record.show();
            QVERIFY(field.isSame(fieldOf(copies[0])));
            record.show();
            QVERIFY(field.isSame(other));
        }
    }

    void rowsAreShownAsAListOfTheirOwn()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        scene->addChild(gallery.get());
        gallery->mfInt32.set("[1, 2, 3, 4, 5]");
        JournalRun run(*scene);
        gallery->mfInt32.deleteValues(1, 2);
        const JournalStep* const step = run.finish();
        gallery->mfInt32.deleteValues(0, -1); // a state that the record doesn't fit
        meridane::ChangeRecord& record = *step->records().front();
        QCOMPARE(record.extent().start, 1U);
        QCOMPARE(record.extent().recorded, 2U);
        QCOMPARE(record.extent().present, 0U);
        VbString text;
        record.show();
        gallery->mfInt32.get(text);
        QCOMPARE(text, VbString("[2, 3]"));
        record.show();
        QCOMPARE(gallery->mfInt32.getNum(), 0);
    }

    void aWriteThatDoesTheUndoIsTakenOver()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        scene->addChild(gallery.get());
        JournalRun run(*scene);
        gallery->sfInt32.setValue(1);
        static_cast<void>(run.finish());
        gallery->sfInt32.setValue(2);
        meridane::JournalStep* const step = run.finish();
        const std::string after = run.text();
        gallery->sfInt32.setValue(1);
        const std::string before = run.text();
        QVERIFY(run.journal().giveMove(*step));
        QVERIFY(!run.journal().hasRecords());
        for (int i = 0; i < 2; ++i) {
            step->redo();
            QCOMPARE(run.text(), after);
            step->undo();
            QCOMPARE(run.text(), before);
        }
        gallery->sfInt32.setValue(2); // the same for redo
        QVERIFY(run.journal().giveMove(*step));
        step->undo();
        QCOMPARE(run.text(), before);
        // The next write is recorded again.
        gallery->sfInt32.setValue(5);
        QVERIFY(run.finish() != nullptr);
    }

    void aWriteThatDoesSomethingElseIsNotTakenOver()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldGallery> gallery(new NxFieldGallery);
        scene->addChild(gallery.get());
        JournalRun run(*scene);
        gallery->sfInt32.setValue(2);
        meridane::JournalStep* const single = run.finish();
        QVERIFY(!run.journal().giveMove(*single)); // nothing was written
        gallery->sfInt32.setValue(7); // another value
        QVERIFY(!run.journal().giveMove(*single));
        run.journal().revertStep();
        gallery->sfUInt32.setValue(0); // the same in another field
        QVERIFY(!run.journal().giveMove(*single));
        run.journal().revertStep();
        gallery->sfInt32.setIgnored(1); // the flag of that field
        QVERIFY(!run.journal().giveMove(*single));
        run.journal().revertStep();
        gallery->sfInt32.setValue(0); // and something else
        gallery->sfBool.setValue(!gallery->sfBool.getValue());
        QVERIFY(!run.journal().giveMove(*single));
        run.journal().revertStep();
        QCOMPARE(gallery->sfInt32.getValue(), 2);

        gallery->mfInt32.insertSpace(0, 1);
        meridane::JournalStep* const rows = run.finish();
        gallery->mfInt32.deleteValues(0, 1);
        QVERIFY(!run.journal().giveMove(*rows));
        run.journal().revertStep();
        gallery->setName("a");
        gallery->sfInt32.setValue(3);
        meridane::JournalStep* const several = run.finish();
        gallery->setName("");
        QVERIFY(!run.journal().giveMove(*several));
        run.journal().revertStep();
        QCOMPARE(gallery->sfInt32.getValue(), 3);
    }

    void anOlderValueIsWrittenAsAChange_data() { addFieldKindRows(); }

    void anOlderValueIsWrittenAsAChange()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        const NxRef<NxFieldContainer> copies[] = {kind->makeNode(), kind->makeNode()};
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        RandomValues random(7);
        NxField& field = fieldOf(node);
        for (int i = 0; i < 20; ++i) {
            fieldOf(copies[0]).copyFrom(field);
            const auto older = field.recordOfValue();
            kind->setRandom(field, random);
            fieldOf(copies[1]).copyFrom(field);
            static_cast<void>(run.finish());
            QVERIFY(field.exchangeValue(*older));
            QVERIFY(field.isSame(fieldOf(copies[0])));
            if (JournalStep* const step = run.finish()) {
                step->undo();
                QVERIFY(field.isSame(fieldOf(copies[1])));
                step->redo();
                QVERIFY(field.isSame(fieldOf(copies[0])));
            }
            QVERIFY(field.exchangeValue(*older));
            QVERIFY(field.isSame(fieldOf(copies[1])));
            static_cast<void>(run.finish());
        }
    }

    void randomChangesAreUndoneAndRedoneExactly_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void randomChangesAreUndoneAndRedoneExactly()
    {
        QFETCH(unsigned int, seed);
        const NxRef<NxGroup> scene = makeRandomScene(seed);
        JournalRun run(*scene);
        RandomChanges changes(*scene, seed);
        std::vector<std::string> texts{run.text()};
        for (int i = 0; i < 200; ++i) {
            changes.makeSome();
            if (run.finish() != nullptr)
                texts.push_back(run.text());
            else
                QCOMPARE(run.text(), texts.back());
        }
        auto& steps = run.steps();
        QVERIFY(steps.size() > 100);
        // A walk: back to the beginning, to some places, to the end.
        std::mt19937 random(seed);
        std::size_t place = steps.size();
        std::vector<std::size_t> targets{0, steps.size()};
        for (int i = 0; i < 20; ++i)
            targets.push_back(random() % (steps.size() + 1));
        targets.push_back(0);
        for (const std::size_t target : targets) {
            for (; place > target; --place)
                steps[place - 1]->undo();
            for (; place < target; ++place)
                steps[place]->redo();
            QVERIFY2(run.text() == texts[place], qPrintable(QString::number(place)));
        }
        QVERIFY(!run.journal().hasRecords());
    }

    void appendedStepsAreUndoneTogether_data() { randomChangesAreUndoneAndRedoneExactly_data(); }

    void appendedStepsAreUndoneTogether()
    {
        QFETCH(unsigned int, seed);
        const NxRef<NxGroup> scene = makeRandomScene(seed);
        JournalRun run(*scene);
        RandomChanges changes(*scene, seed);
        const std::string before = run.text();
        scene->addChild(new ProbeNode);
        auto* const first = run.finish();
        for (int i = 0; i < 50; ++i) {
            changes.makeSome();
            if (auto next = run.journal().finishStep())
                QVERIFY(first->append(std::move(*next)));
        }
        const std::string after = run.text();
        first->undo();
        QCOMPARE(run.text(), before);
        first->redo();
        QCOMPARE(run.text(), after);
    }

    void typingIntoOneFieldStaysOneRecord()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<ProbeNode> probe(new ProbeNode);
        scene->addChild(probe.get());
        JournalRun run(*scene);
        probe->title.setValue("a");
        auto* const step = run.finish();
        const std::size_t bytes = step->bytes();
        for (int i = 0; i < 100; ++i) {
            probe->title.setValue(std::to_string(i).c_str());
            QVERIFY(step->append(std::move(*run.journal().finishStep())));
        }
        QCOMPARE(step->records().size(), std::size_t{1});
        QCOMPARE(step->bytes(), bytes);
        probe->title.setValue("untitled");
        QVERIFY(!step->append(std::move(*run.journal().finishStep())));
    }

    void typingIntoOneRowStaysOneRecord()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<ProbeNode> probe(new ProbeNode);
        scene->addChild(probe.get());
        JournalRun run(*scene);
        probe->weights.set1Value(1, 9);
        auto* const step = run.finish();
        for (int i = 0; i < 100; ++i) {
            probe->weights.set1Value(1, static_cast<float>(i + 10));
            QVERIFY(step->append(std::move(*run.journal().finishStep())));
        }
        QCOMPARE(step->records().size(), std::size_t{1});
        probe->weights.set1Value(1, 2);
        QVERIFY(!step->append(std::move(*run.journal().finishStep())));
    }

    void aRowAndRowsThatOverlapAreUndoneTogether()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<ProbeNode> probe(new ProbeNode);
        scene->addChild(probe.get());
        JournalRun run(*scene);
        const std::string before = run.text();
        std::string rows;
        probe->weights.appendPlainRows(rows, 0, 3);
        probe->weights.set1Value(1, 9);
        probe->size.setValue(2);
        auto* const step = run.finish();
        const std::string row = rows.substr(0, sizeof(float));
        QVERIFY(probe->weights.replacePlainRows(1, 1, row));
        QVERIFY(step->append(std::move(*run.journal().finishStep())));
        QVERIFY(probe->weights.replacePlainRows(0, 3, rows));
        probe->weights.set1Value(0, 7);
        QVERIFY(step->append(std::move(*run.journal().finishStep())));
        const std::string after = run.text();
        step->undo();
        QCOMPARE(run.text(), before);
        step->redo();
        QCOMPARE(run.text(), after);
    }

    void recordsOfNumbersAreSmall()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        for (int i = 0; i < 10'000; ++i)
            scene->addChild(new ProbeNode);
        JournalRun run(*scene);
        for (NxNode* node : scene->getChildren())
            static_cast<ProbeNode*>(node)->size.setValue(2);
        const auto* const step = run.finish();
        QCOMPARE(step->records().size(), std::size_t{10'000});
        QVERIFY(step->bytes() < 80 * step->records().size());
    }
};

QTEST_APPLESS_MAIN(TestJournalStep)
#include "tst_JournalStep.moc"
