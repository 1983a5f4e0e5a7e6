#include "base/HandlerGuard.h"
#include "scene/FieldCatalogue.h"
#include "scene/NotificationCount.h"
#include "scene/journal/JournalRun.h"

#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxMField.h"

#include <QScopeGuard>
#include <QTest>

#include <limits>
#include <set>

/// Rows of lists of numbers as bytes.
class TestPlainRows : public QObject {
    Q_OBJECT

private:
    static void addPlainLists()
    {
        QTest::addColumn<const FieldKind*>("kind");
        for (const FieldKind& kind : fieldCatalogue()) {
            const NxRef<NxFieldContainer> node = kind.makeNode();
            const auto* const list = dynamic_cast<const NxMField*>(&fieldOf(node));
            if (list != nullptr && list->plainRowBytes() > 0)
                QTest::newRow(kind.type.getName().getString()) << &kind;
        }
    }
    /// A list of some random rows.
    static NxMField& fill(const FieldKind& kind, const NxRef<NxFieldContainer>& node, unsigned int seed)
    {
        auto& list = static_cast<NxMField&>(fieldOf(node));
        RandomValues random(seed);
        while (list.getNum() < 6)
            kind.setRandom(list, random);
        return list;
    }

private Q_SLOTS:
    void theOtherListsHaveNone()
    {
        const std::set<std::string> others{"MFBool", "MFEnum", "MFName", "MFString"};
        std::set<std::string> found;
        for (const FieldKind& kind : fieldCatalogue()) {
            const NxRef<NxFieldContainer> node = kind.makeNode();
            auto* const list = dynamic_cast<NxMField*>(&fieldOf(node));
            if (list == nullptr || list->plainRowBytes() > 0)
                continue;
            found.insert(kind.type.getName().getString());
            QVERIFY(!list->replacePlainRows(0, 0, {}));
        }
        QVERIFY(found == others);
    }

    void rowsGoToAnotherListToTheBit_data() { addPlainLists(); }

    void rowsGoToAnotherListToTheBit()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        const NxRef<NxFieldContainer> otherNode = kind->makeNode();
        const NxMField& list = fill(*kind, node, 1);
        NxMField& other = fill(*kind, otherNode, 2);
        std::string bytes;
        list.appendPlainRows(bytes, 0, list.getNum());
        QCOMPARE(bytes.size(), list.plainRowBytes() * static_cast<std::size_t>(list.getNum()));
        NotificationCount notifications(other);
        QVERIFY(other.replacePlainRows(0, other.getNum(), bytes));
        QCOMPARE(notifications.take(), 1);
        QVERIFY(other.isSame(list));
    }

    void rowsReplaceFewerAndMore_data() { addPlainLists(); }

    void rowsReplaceFewerAndMore()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxMField& list = fill(*kind, node, 1);
        const NxRef<NxFieldContainer> copyNode = kind->makeNode();
        NxMField& copy = fill(*kind, copyNode, 2);
        QVERIFY(copy.copyFrom(list));
        const int rows = list.getNum();
        std::string bytes;
        list.appendPlainRows(bytes, 1, 3);
        QVERIFY(copy.replacePlainRows(2, 1, bytes));
        QCOMPARE(copy.getNum(), rows + 2);
        QVERIFY(
            copy.replacePlainRows(2, 3, std::string_view(bytes).substr(list.plainRowBytes(), list.plainRowBytes())));
        QVERIFY(copy.isSame(list));
        QVERIFY(copy.replacePlainRows(rows, 0, bytes));
        QCOMPARE(copy.getNum(), rows + 3);
        QVERIFY(copy.replacePlainRows(rows, 3, {}));
        QVERIFY(copy.isSame(list));
    }

    void rowsThatDoNotFitChangeNothing_data() { addPlainLists(); }

    void rowsThatDoNotFitChangeNothing()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxMField& list = fill(*kind, node, 1);
        const int rows = list.getNum();
        std::string bytes;
        list.appendPlainRows(bytes, 0, 1);
        NotificationCount notifications(list);
        QVERIFY(!list.replacePlainRows(-1, 1, bytes));
        QVERIFY(!list.replacePlainRows(0, -1, bytes));
        QVERIFY(!list.replacePlainRows(rows + 1, 0, bytes));
        QVERIFY(!list.replacePlainRows(1, rows, bytes));
        QVERIFY(!list.replacePlainRows(0, std::numeric_limits<int>::max(), bytes));
        QVERIFY(!list.replacePlainRows(0, 1, bytes + "x"));
        TextRecorder errors;
        const HandlerGuard<NxMemoryError> guard(&TextRecorder::record, &errors);
        const auto reset = qScopeGuard([] { NxMField::setMaximumNum(std::numeric_limits<int>::max()); });
        NxMField::setMaximumNum(rows);
        QVERIFY(!list.replacePlainRows(0, 0, bytes));
        QCOMPARE(list.getNum(), rows);
        QCOMPARE(notifications.take(), 0);
        QCOMPARE(errors.texts().size(), std::size_t{1});
    }

    void theJournalRecordsThem()
    {
        const auto kind = std::ranges::find_if(
            fieldCatalogue(), [](const FieldKind& other) { return other.type.getName() == VbName("MFVec3f"); });
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxMField& list = fill(*kind, node, 1);
        const NxRef<NxGroup> scene(new NxGroup);
        scene->addChild(static_cast<NxNode*>(node.get()));
        JournalRun run(*scene);
        const std::string before = run.text();
        std::string bytes;
        list.appendPlainRows(bytes, 0, 4);
        QVERIFY(list.replacePlainRows(3, 1, bytes));
        const std::string after = run.text();
        auto* const step = run.finish();
        step->undo();
        QCOMPARE(run.text(), before);
        step->redo();
        QCOMPARE(run.text(), after);
    }
};

QTEST_APPLESS_MAIN(TestPlainRows)
#include "tst_PlainRows.moc"
