#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/OrvMFAddRowsCommand.h"
#include "FieldEditors/OrvMFDeleteRowsCommand.h"
#include "FieldEditors/OrvMFSetFieldValueCommand.h"
#include "FieldEditors/OrvMFSetValueCommand.h"
#include "FieldEditors/OrvMFSwapRowsCommand.h"
#include "plugin/ToolHarness.h"
#include "plugin/WriteCounter.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A list that records its notifications, and can refuse to grow as if memory were full.
class RecordingList final : public NxMFInt32 {
public:
    RecordingList()
        : NxMFInt32(nullptr, "list")
    {
    }
    void insertSpace(int start, int count) override
    {
        ++insertions;
        if (!full)
            NxMFInt32::insertSpace(start, count);
    }

    int insertions = 0;
    bool full = false;
};

/// A list that is changed at random through the history, and a plain vector to which the same happens.
class ModelledList {
public:
    /// Returns a random number from 0 to below its argument.
    using Random = std::function<int(int)>;

    ModelledList()
    {
        m_tool.services.selectField(&m_list);
        m_list.setValues(std::span<const int>());
    }

    void addRows(const Random& below)
    {
        const int start = below(rows() + 1);
        const int count = 1 + below(3);
        Values after = m_model;
        after.insert(after.begin() + start, static_cast<std::size_t>(count), 0);
        push(new OrvMFAddRowsCommand(&m_list, start, count), std::move(after));
    }

    void deleteRows(const Random& below)
    {
        if (rows() == 0)
            return;
        const int start = below(rows());
        const int count = 1 + below(rows() - start);
        Values after = m_model;
        after.erase(after.begin() + start, after.begin() + start + count);
        push(new OrvMFDeleteRowsCommand(&m_list, start, count), std::move(after));
    }

    void swapRows(const Random& below)
    {
        if (rows() == 0)
            return;
        const int first = below(rows());
        const int second = below(rows());
        Values after = m_model;
        std::swap(after[static_cast<std::size_t>(first)], after[static_cast<std::size_t>(second)]);
        push(new OrvMFSwapRowsCommand(&m_list, first, second), std::move(after));
    }

    /// The command of an edit only repeats it. The steps before it would restore older values around it.
    void editARow(const Random& below)
    {
        if (rows() == 0)
            return;
        const int row = below(rows());
        const int value = below(1000);
        m_model[static_cast<std::size_t>(row)] = value;
        m_list.set1(row, std::to_string(value).c_str());
        m_tool.services.clearHistory();
        orvane::pushSetRowCommand(&m_list, row);
        m_steps = {{m_model, m_model}};
        m_done = 1;
    }

    void undo(const Random& /*below*/)
    {
        if (m_done == 0)
            return;
        m_model = m_steps[--m_done].first;
        m_tool.services.undo();
    }

    void redo(const Random& /*below*/)
    {
        if (m_done == m_steps.size())
            return;
        m_model = m_steps[m_done++].second;
        m_tool.services.redo();
    }

    [[nodiscard]] bool equalsItsModel() const { return std::ranges::equal(m_model, m_list.getValues()); }

private:
    using Values = std::vector<int>;

    [[nodiscard]] int rows() const { return static_cast<int>(m_model.size()); }

    void push(OrvCommand* command, Values after)
    {
        m_steps.resize(m_done++);
        m_steps.emplace_back(m_model, after);
        m_model = std::move(after);
        m_tool.services.pushCommand(command);
    }

    ToolHarness m_tool;
    NxMFInt32& m_list = m_tool.node->mfInt32;
    Values m_model;
    std::vector<std::pair<Values, Values>> m_steps; // of the history, the values before and after each
    std::size_t m_done = 0; // steps that aren't undone
};

QString textOf(const NxField& field)
{
    return ToolHarness::textOf(field);
}

} // namespace

class TestRowCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addedRowsOfAStringListAreEmpty()
    {
        NxMFString list(nullptr, "list");
        list.set("[\"a\", \"b\"]");
        OrvMFAddRowsCommand command(&list, 1, 2);
        QCOMPARE(list.getNum(), 2); // the command itself makes the change
        command.execute();
        QCOMPARE(textOf(list), QStringLiteral("[\"a\", \"\", \"\", \"b\"]"));
    }

    void addedRowsOfANumberListKeepWhatTheyAreMadeWith()
    {
        NxMFFloat list(nullptr, "list");
        list.set("[1, 2]");
        OrvMFAddRowsCommand command(&list, 0, 1);
        command.execute();
        QCOMPARE(textOf(list), QStringLiteral("[0, 1, 2]"));
    }

    void addTellsTheObserversEvenWhenNothingIsAdded()
    {
        NxMFFloat list(nullptr, "list");
        WriteCounter counter(list);
        OrvMFAddRowsCommand(&list, 0, 0).execute();
        QCOMPARE(counter.writes, 1);
    }

    void undoOfAddRemovesTheRows()
    {
        NxMFFloat list(nullptr, "list");
        list.set("[1, 2]");
        OrvMFAddRowsCommand command(&list, 1, 3);
        command.execute();
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 0, 0, 0, 2]"));
    }

    void deleteSavesTheRowsAheadOfAnyChange()
    {
        NxMFFloat list(nullptr, "list");
        list.set("[1, 2, 3]");
        OrvMFDeleteRowsCommand command(&list, 1, 1);
        list.set("[1, 9, 3]");
        command.execute();
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2, 3]"));
    }

    void undoOfDeletePutsTheRowsBack()
    {
        NxMFString list(nullptr, "list");
        list.set("[\"a\", \"b\", \"c, d\", \"\\\"\", \"\", \"f\"]");
        const QString before = textOf(list);
        OrvMFDeleteRowsCommand command(&list, 2, 3);
        command.execute();
        QCOMPARE(textOf(list), QStringLiteral("[\"a\", \"b\", \"f\"]"));
        WriteCounter counter(list);
        command.undo();
        QCOMPARE(textOf(list), before);
        QCOMPARE(counter.writes, 4); // the room, and each of the rows
        command.redo();
        QCOMPARE(list.getNum(), 3);
    }

    void deleteOfNoRowRemovesNothing()
    {
        NxMFFloat list(nullptr, "list");
        list.set("[1, 2]");
        OrvMFDeleteRowsCommand command(&list, 1, 0);
        command.execute();
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
    }

    void undoOfDeletingManyRowsOpensThemAtOnce()
    {
        constexpr int rows = 100'000;
        RecordingList list;
        std::vector<int> values(rows);
        std::mt19937 random(7);
        std::generate(values.begin(), values.end(), [&random] { return static_cast<int>(random()); });
        list.setValues(std::span<const int>(values));
        OrvMFDeleteRowsCommand command(&list, 0, rows);
        command.execute();
        QCOMPARE(list.getNum(), 0);
        command.undo();
        QCOMPARE(list.insertions, 1);
        QVERIFY(std::equal(values.begin(), values.end(), list.getValues().begin(), list.getValues().end()));
    }

    void swapUndoesItself()
    {
        NxMFDouble list(nullptr, "list");
        list.set("[0.1, 2, 1e300]");
        const QString before = textOf(list);
        OrvMFSwapRowsCommand command(&list, 0, 2);
        command.execute();
        QCOMPARE(textOf(list), QStringLiteral("[1e+300, 2, 0.1]"));
        command.undo();
        QCOMPARE(textOf(list), before);
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1e+300, 2, 0.1]"));
    }

    void swapOfARowWithItselfWritesItTwice()
    {
        NxMFDouble list(nullptr, "list");
        list.set("[1, 2]");
        WriteCounter counter(list);
        OrvMFSwapRowsCommand(&list, 1, 1).execute();
        QCOMPARE(counter.writes, 2);
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
    }

    void setFieldValueWritesTheValueThatItFound()
    {
        NxMFDouble list(nullptr, "list");
        list.set("[1, 2]");
        OrvMFSetFieldValueCommand command(&list, 1);
        WriteCounter counter(list);
        command.execute();
        QCOMPARE(counter.writes, 0);
        list.set("[1, 5]");
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
        list.set("[1, 5]");
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
    }

    void setValueTakesASnapshotOnce()
    {
        NxMFDouble list(nullptr, "list");
        list.set("[1, 2]");
        VbString snapshot("7");
        OrvMFSetValueCommand command(&list, 1, snapshot);
        QVERIFY(snapshot.isNull());
        command.execute();
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 7]"));
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
    }

    void setValueWithoutASnapshotKeepsTheNewValue_data()
    {
        QTest::addColumn<bool>("null");
        QTest::newRow("empty") << false;
        QTest::newRow("null") << true;
    }

    void setValueWithoutASnapshotKeepsTheNewValue()
    {
        QFETCH(const bool, null);
        NxMFDouble list(nullptr, "list");
        list.set("[1, 2]");
        VbString snapshot;
        if (null)
            snapshot.makeNull();
        OrvMFSetValueCommand command(&list, 1, snapshot);
        QCOMPARE(snapshot.isNull(), null);
        command.execute();
        list.set("[1, 9]");
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2]"));
    }

    void pushedRowCommandHasNoMemory()
    {
        ToolHarness tool;
        tool.services.selectField(&tool.node->mfString);
        tool.node->mfString.set("[\"a\", \"b\"]");
        tool.node->mfString.set1(1, "\"new\"");
        orvane::pushSetRowCommand(&tool.node->mfString, 1);
        QCOMPARE(tool.services.pushed, 1);
        tool.services.undo();
        QCOMPARE(textOf(tool.node->mfString), QStringLiteral("[\"a\", \"new\"]"));
        tool.services.redo();
        QCOMPARE(textOf(tool.node->mfString), QStringLiteral("[\"a\", \"new\"]"));
    }

    void rowsThatDoNotFitLeaveTheValues()
    {
        RecordingList list;
        list.set("[1, 2, 3]");
        list.full = true;
        OrvMFAddRowsCommand command(&list, 1, 2);
        command.execute();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2, 3]"));
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2, 3]"));
        list.full = false;
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 0, 0, 2, 3]"));
    }

    void deletedRowsThatDoNotFitAnyMoreStayAway()
    {
        RecordingList list;
        list.set("[1, 2, 3, 4]");
        OrvMFDeleteRowsCommand command(&list, 1, 2);
        command.execute();
        list.full = true;
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 4]"));
        command.redo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 4]"));
        list.full = false;
        command.undo();
        QCOMPARE(textOf(list), QStringLiteral("[1, 2, 3, 4]"));
    }

    void historyFollowsAModel()
    {
        ModelledList list;
        std::mt19937 random(20261121);
        const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
        const std::array changes{&ModelledList::addRows, &ModelledList::deleteRows, &ModelledList::swapRows,
            &ModelledList::editARow, &ModelledList::undo, &ModelledList::redo};
        for (int i = 0; i < 4000; ++i) {
            (list.*changes[static_cast<std::size_t>(below(static_cast<int>(changes.size())))])(below);
            QVERIFY2(list.equalsItsModel(), qPrintable(QStringLiteral("after step %1").arg(i)));
        }
    }
};

QTEST_MAIN(TestRowCommands)
#include "tst_RowCommands.moc"
