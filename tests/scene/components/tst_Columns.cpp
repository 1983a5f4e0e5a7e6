#include "base/HandlerGuard.h"
#include "scene/NotificationCount.h"
#include "scene/components/NumericKinds.h"
#include "scene/journal/JournalRun.h"

#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <limits>

using components::addNumericKinds;
using components::fill;
using components::isList;
using components::textOf;
using meridane::FieldComponents;

/// Writes of a component of many rows at once, and the records of writes.
class TestColumns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aColumnIsOneNotification_data() { addNumericKinds(true); }

    void aColumnIsOneNotification()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        const int component = components.count() - 1;
        fill(field, components, 20);
        for (const std::vector<int>& rows : {std::vector{3}, std::vector{0, 19}, std::vector{4, 5, 8}}) {
            NotificationCount notifications(field);
            std::vector<double> values;
            for (std::size_t i = 0; i < rows.size(); ++i)
                values.push_back(static_cast<double>(i % 2));
            std::vector<double> expected(20);
            components.read(field, 0, component, expected);
            QVERIFY(components.setColumn(field, rows, component, values));
            QCOMPARE(notifications.take(), 1);
            for (std::size_t i = 0; i < rows.size(); ++i)
                expected[static_cast<std::size_t>(rows[i])] = values[i];
            std::vector<double> read(20);
            components.read(field, 0, component, read);
            QCOMPARE(read, expected);
        }
    }

    void rowsOfAColumnMustBeSortedAndUnique_data() { addNumericKinds(true); }

    void rowsOfAColumnMustBeSortedAndUnique()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        fill(field, components, 6);
        NotificationCount notifications(field);
        const std::string before = textOf(field);
        const std::array values{1.0, 1.0};
        for (const std::vector<int>& rows :
            {std::vector{1, 1}, std::vector{2, 1}, std::vector{-1, 1}, std::vector{1, 6}, std::vector{1}, {}})
            QVERIFY(!components.setColumn(field, rows, 0, values));
        QVERIFY(components.setColumn(field, {}, 0, {}));
        QCOMPARE(notifications.take(), 0);
        QCOMPARE(textOf(field), before);
    }

    void theJournalHasOneRecordOfEachWrite_data() { addNumericKinds(); }

    void theJournalHasOneRecordOfEachWrite()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        const int component = components.count() - 1;
        fill(field, components, 50);
        const NxRef<NxGroup> scene(new NxGroup);
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        std::vector<std::vector<int>> writes{{0}};
        if (isList(*kind))
            writes.insert(writes.end(), {{7, 9}, {0, 25, 49}});
        for (const std::vector<int>& rows : writes) {
            const std::string before = run.text();
            std::vector<double> values;
            for (const int row : rows)
                values.push_back(1 - std::min(components.get(field, row, component), 1.0));
            QVERIFY(components.setColumn(field, rows, component, values));
            const std::string after = run.text();
            auto* const step = run.finish();
            QVERIFY(step != nullptr);
            QCOMPARE(step->records().size(), std::size_t{1});
            step->undo();
            QCOMPARE(run.text(), before);
            step->redo();
            QCOMPARE(run.text(), after);
        }
    }

    void aDragOverALongListKeepsOneCopy()
    {
        const NxRef<NxFieldContainer> node
            = std::ranges::find(fieldCatalogue(), NxMFVec3f::getClassTypeId(), &FieldKind::type)->makeNode();
        auto& list = dynamic_cast<NxMFVec3f&>(fieldOf(node));
        list.insertSpace(0, 100'000);
        const NxRef<NxGroup> scene(new NxGroup);
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        const FieldComponents& components = *FieldComponents::of(list);
        for (int i = 1; i <= 100; ++i) {
            const std::array values{1.0 * i, 2.0 * i};
            QVERIFY(components.setColumn(list, std::array{0, 99'999}, 0, values));
        }
        QVERIFY(run.journal().bytes() < 2 * list.valueBytes());
        run.finish()->undo();
        QCOMPARE(components.get(list, 99'999, 0), 0.0);
    }

    void aListThatDoesNotFitTwiceIsReported()
    {
        NxMFVec3f list(nullptr, "list", {{1, 2, 3}, {4, 5, 6}});
        TextRecorder errors;
        const HandlerGuard<NxMemoryError> guard(&TextRecorder::record, &errors);
        NxMField::setMaximumNum(1);
        const bool isWritten = FieldComponents::of(list)->setColumn(list, std::array{0, 1}, 0, std::array{7.0, 7.0});
        NxMField::setMaximumNum(std::numeric_limits<int>::max());
        QVERIFY(!isWritten);
        QCOMPARE(errors.texts().size(), std::size_t{1});
        QCOMPARE(textOf(list), std::string("[1 2 3, 4 5 6]"));
    }
};

QTEST_APPLESS_MAIN(TestColumns)
#include "tst_Columns.moc"
