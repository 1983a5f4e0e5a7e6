#include "extender/HistoryWalk.h"
#include "scene/FieldCatalogue.h"

#include "orvane/app/lists/rows/ListRows.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <numeric>

using ListChange = std::function<bool(NxFieldGallery& node)>;
Q_DECLARE_METATYPE(RowRuns)
Q_DECLARE_METATYPE(ListChange)

namespace {

using Texts = std::vector<std::string>;

Texts textsOf(const NxMField& list)
{
    Texts texts;
    for (int row = 0; row < list.getNum(); ++row) {
        VbString text;
        list.get1(row, text);
        texts.emplace_back(text.view());
    }
    return texts;
}

/// The rows by themselves, for the reference.
Texts picked(const Texts& texts, const RowRuns& rows)
{
    Texts result;
    for (const int row : orvane::rowsOf(rows))
        result.push_back(texts[static_cast<std::size_t>(row)]);
    return result;
}

Texts without(const Texts& texts, const RowRuns& rows, int begin, int end)
{
    const std::vector<int> gone = orvane::rowsOf(rows);
    Texts result;
    for (int row = begin; row < end; ++row) {
        if (!std::ranges::binary_search(gone, row))
            result.push_back(texts[static_cast<std::size_t>(row)]);
    }
    return result;
}

RowRuns randomRows(RandomValues& random, int count, std::size_t most)
{
    std::vector<int> rows;
    for (std::size_t i = 1 + random.below(most); i > 0; --i)
        rows.push_back(static_cast<int>(random.below(static_cast<std::size_t>(count))));
    return orvane::rowRuns(std::move(rows));
}

} // namespace

/// Changes of the rows of lists, against the same changes of vectors of texts.
class TestListRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyClassDoesWhatAVectorDoes_data()
    {
        QTest::addColumn<const FieldKind*>("kind");
        for (const FieldKind& kind : fieldCatalogue()) {
            if (kind.type.isDerivedFrom(NxMField::getClassTypeId()))
                QTest::newRow(kind.type.getName().getString()) << &kind;
        }
    }
    void everyClassDoesWhatAVectorDoes()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        auto& list = dynamic_cast<NxMField&>(fieldOf(node));
        RandomValues random(7);
        for (int round = 0; round < 60; ++round) {
            do
                kind->setRandom(list, random);
            while (list.getNum() == 0);
            const int count = list.getNum();
            const Texts before = textsOf(list);
            const RowRuns rows = randomRows(random, count, 12);
            const int target = static_cast<int>(random.below(static_cast<std::size_t>(count) + 1));
            Texts expected;
            switch (round % 3) {
            case 0:
                QVERIFY(orvane::removeRows(list, rows));
                expected = without(before, rows, 0, count);
                break;
            case 1: {
                QVERIFY(orvane::moveRows(list, rows, target));
                expected = without(before, rows, 0, target);
                const Texts moved = picked(before, rows);
                expected.insert(expected.end(), moved.begin(), moved.end());
                const Texts rest = without(before, rows, target, count);
                expected.insert(expected.end(), rest.begin(), rest.end());
                break;
            }
            default: {
                QVERIFY(orvane::insertCopies(list, rows, target));
                expected = before;
                const Texts copies = picked(before, rows);
                expected.insert(expected.begin() + target, copies.begin(), copies.end());
            }
            }
            QCOMPARE(textsOf(list), expected);
        }
    }

    void aRandomSequenceIsUndoneAndRedone()
    {
        OrvServices services;
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldGallery> node(new NxFieldGallery);
        scene->addChild(node.get());
        services.document().open(OrvDocument::makeJournal(*scene));
        HistoryWalk walk(services, 3);
        RandomValues random(11);
        NxMFVec3f& list = node->mfVec3f;
        std::vector<VbVec3f> reference;
        for (int step = 0; step < 150; ++step) {
            changeAtRandom(list, reference, random);
            HistoryWalk::settle();
            QVERIFY(std::ranges::equal(list.getValues(), reference));
            walk.check();
        }
        walk.walk();
        QVERIFY(walk.steps() > 100);
        services.document().close();
        services.clearHistory();
    }

    void fewRowsAreRecordedAsRows_data()
    {
        QTest::addColumn<ListChange>("change");
        const std::vector<int> few{3, 500'000, 999'990};
        const std::vector<double> values{1, 2, 3};
        QTest::newRow("cells far apart") << ListChange(
            [=](NxFieldGallery& node) { return orvane::writeColumn(node.mfVec3f, few, 1, values); });
        QTest::newRow("cells of booleans") << ListChange([=](NxFieldGallery& node) {
            return orvane::writeColumn(node.mfBool, few, 0, std::vector<double>{1, 1, 1});
        });
        QTest::newRow("texts far apart") << ListChange([=](NxFieldGallery& node) {
            return orvane::writeTexts(node.mfString, few, {QStringLiteral("a"), QStringLiteral("b"), {}});
        });
        QTest::newRow("ten thousand cells") << ListChange([](NxFieldGallery& node) {
            std::vector<int> rows(10'000);
            std::iota(rows.begin(), rows.end(), 100);
            return orvane::writeColumn(node.mfVec3f, rows, 0, std::vector<double>(rows.size(), 7));
        });
        QTest::newRow("rows removed") << ListChange([](NxFieldGallery& node) {
            return orvane::removeRows(node.mfVec3f, {{10, 2}, {999'000, 5}});
        });
        QTest::newRow("a row moved up") << ListChange([](NxFieldGallery& node) {
            return orvane::moveRows(node.mfVec3f, {{800'000, 1}}, 799'999);
        });
        QTest::newRow("rows copied") << ListChange([](NxFieldGallery& node) {
            return orvane::insertCopies(node.mfVec3f, {{10, 3}, {999'000, 1}}, 50);
        });
    }
    void fewRowsAreRecordedAsRows()
    {
        QFETCH(ListChange, change);
        constexpr std::size_t million = 1'000'000;
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxFieldGallery> node(new NxFieldGallery);
        scene->addChild(node.get());
        node->mfVec3f.setValues(std::vector<VbVec3f>(million));
        node->mfBool.setValues(std::vector<meridane::Flag>(million));
        node->mfString.setValues(std::vector<VbString>(million));
        const auto journal = OrvDocument::makeJournal(*scene);
        journal->record();
        QVERIFY(change(*node));
        QVERIFY(journal->hasRecords());
        QVERIFY2(journal->bytes() < 200'000, qPrintable(QString::number(journal->bytes())));
    }

    void manyScatteredRowsAreRemovedQuickly()
    {
        NxMFInt32 list(nullptr, "list");
        std::vector<int> values(400'000);
        std::iota(values.begin(), values.end(), 0);
        list.setValues(values);
        RowRuns rows;
        for (int row = 0; row < 400'000; row += 2)
            rows.push_back({row, 1});
        QVERIFY(orvane::removeRows(list, rows));
        QCOMPARE(list.getNum(), 200'000);
        QCOMPARE(list[1], 3);
    }

    void aRefusedTextChangesNothing()
    {
        NxMFInt32 list(nullptr, "list", {1, 2, 3});
        const std::vector<int> rows{0};
        QVERIFY(!orvane::writeTexts(list, rows, {QStringLiteral("words")}));
        QCOMPARE(list[0], 1);
    }

    void runsFollowChangesOfTheList_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("removed");
        QTest::addColumn<int>("inserted");
        QTest::addColumn<RowRuns>("runs");
        QTest::newRow("as many") << 3 << 4 << 4 << RowRuns{{2, 3}, {8, 2}};
        QTest::newRow("inserted before") << 0 << 0 << 5 << RowRuns{{7, 3}, {13, 2}};
        QTest::newRow("inserted within") << 4 << 0 << 2 << RowRuns{{2, 2}, {6, 1}, {10, 2}};
        QTest::newRow("inserted behind") << 10 << 0 << 2 << RowRuns{{2, 3}, {8, 2}};
        QTest::newRow("removed before") << 0 << 2 << 0 << RowRuns{{0, 3}, {6, 2}};
        QTest::newRow("removed within") << 3 << 1 << 0 << RowRuns{{2, 2}, {7, 2}};
        QTest::newRow("removed between") << 5 << 3 << 0 << RowRuns{{2, 5}};
        QTest::newRow("removed across") << 3 << 6 << 1 << RowRuns{{2, 1}, {4, 1}};
        QTest::newRow("removed all") << 0 << 20 << 0 << RowRuns{};
    }
    void runsFollowChangesOfTheList()
    {
        QFETCH(int, start);
        QFETCH(int, removed);
        QFETCH(int, inserted);
        QFETCH(RowRuns, runs);
        QVERIFY(orvane::spliced({{2, 3}, {8, 2}}, start, removed, inserted) == runs);
    }

private:
    static void changeAtRandom(NxMFVec3f& list, std::vector<VbVec3f>& reference, RandomValues& random)
    {
        const int count = list.getNum();
        if (count < 5 || random.below(5) == 0) {
            const int added = 1 + static_cast<int>(random.below(30));
            const int place = static_cast<int>(random.below(static_cast<std::size_t>(count) + 1));
            list.insertSpace(place, added);
            reference.insert(reference.begin() + place, static_cast<std::size_t>(added), VbVec3f());
            return;
        }
        const RowRuns rows = randomRows(random, count, 15);
        const std::vector<int> all = orvane::rowsOf(rows);
        switch (random.below(4)) {
        case 0: {
            QVERIFY(orvane::removeRows(list, rows));
            for (auto row = all.rbegin(); row != all.rend(); ++row)
                reference.erase(reference.begin() + *row);
            break;
        }
        case 1: {
            const int before = static_cast<int>(random.below(static_cast<std::size_t>(count) + 1));
            QVERIFY(orvane::moveRows(list, rows, before));
            const auto isMoved = [&](const VbVec3f& value) {
                return std::ranges::binary_search(all, static_cast<int>(&value - reference.data()));
            };
            std::vector<VbVec3f> moved;
            for (int part = 0; part < 3; ++part) {
                for (int row = 0; row < count; ++row) {
                    const VbVec3f& value = reference[static_cast<std::size_t>(row)];
                    const int own = isMoved(value) ? 1 : row < before ? 0 : 2;
                    if (own == part)
                        moved.push_back(value);
                }
            }
            reference = moved;
            break;
        }
        default: {
            const int component = static_cast<int>(random.below(3));
            std::vector<double> values;
            for (const int row : all) {
                values.push_back(static_cast<double>(random.below(1000)));
                reference[static_cast<std::size_t>(row)][static_cast<std::size_t>(component)]
                    = static_cast<float>(values.back());
            }
            QVERIFY(orvane::writeColumn(list, all, component, values));
        }
        }
    }
};

QTEST_MAIN(TestListRows)
#include "tst_ListRows.moc"
