#include "scene/RandomValues.h"

#include "meridane/scene/recovery/detail/DirtyRows.h"

#include <QTest>

#include <vector>

using meridane::DirtyRows;

namespace {

/// A list with its copy in a file, both of numbers that never come twice.
class Lists {
public:
    Lists(DirtyRows::Joining joining, unsigned int seed)
        : m_random(seed)
        , m_rows(joining)
        , m_removesAtOnce(joining == DirtyRows::Joining::Never)
    {
        insert(0, 20);
        m_logged = m_list;
    }

    void change()
    {
        const std::size_t start = m_random.below(m_list.size() + 1);
        const std::size_t removed = m_random.below(std::min<std::size_t>(4, m_list.size() - start + 1));
        const std::size_t inserted = m_random.below(2) == 0 ? removed : m_random.below(4);
        replace(start, removed, inserted);
    }
    void replace(std::size_t start, std::size_t removed, std::size_t inserted)
    {
        m_rows.replace(start, removed, inserted);
        if (m_removesAtOnce) {
            if (const auto part = m_rows.takeStale())
                erase(m_logged, part->logged, part->stale);
        }
        erase(m_list, start, removed);
        insert(start, inserted);
    }
    void replaceAll()
    {
        m_rows.replaceAll(m_list.size());
        m_list.clear();
        insert(0, m_random.below(30));
    }
    /// Copies some rows to the file. Returns false if there are none.
    bool log(std::size_t count)
    {
        if (m_rows.isWhole())
            m_rows.setCount(m_list.size());
        if (m_rows.isEmpty())
            return false;
        const DirtyRows::Part part = m_rows.take(count);
        erase(m_logged, part.logged, part.stale);
        const auto first = m_list.begin() + static_cast<std::ptrdiff_t>(part.start);
        m_logged.insert(m_logged.begin() + static_cast<std::ptrdiff_t>(part.logged), first,
            first + static_cast<std::ptrdiff_t>(part.count));
        m_loggedRows += part.count;
        return true;
    }
    [[nodiscard]] bool areSame() const { return m_list == m_logged; }
    [[nodiscard]] std::size_t size() const { return m_list.size(); }
    [[nodiscard]] std::size_t loggedRows() const { return m_loggedRows; }
    [[nodiscard]] RandomValues& random() { return m_random; }

private:
    static void erase(std::vector<int>& list, std::size_t start, std::size_t count)
    {
        const auto first = list.begin() + static_cast<std::ptrdiff_t>(start);
        list.erase(first, first + static_cast<std::ptrdiff_t>(count));
    }
    void insert(std::size_t start, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            m_list.insert(m_list.begin() + static_cast<std::ptrdiff_t>(start), ++m_latest);
    }

    RandomValues m_random;
    DirtyRows m_rows;
    bool m_removesAtOnce;
    std::vector<int> m_list;
    std::vector<int> m_logged;
    std::size_t m_loggedRows = 0;
    int m_latest = 0;
};

} // namespace
Q_DECLARE_METATYPE(DirtyRows::Joining)

/// Which rows are to be logged, against lists that are compared as a whole.
class TestDirtyRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLoggedListBecomesTheSame_data()
    {
        QTest::addColumn<DirtyRows::Joining>("joining");
        QTest::newRow("a list") << DirtyRows::Joining::Allowed;
        QTest::newRow("children") << DirtyRows::Joining::Never;
    }

    void theLoggedListBecomesTheSame()
    {
        QFETCH(DirtyRows::Joining, joining);
        for (unsigned int seed = 0; seed < 50; ++seed) {
            Lists lists(joining, seed);
            for (int i = 0; i < 200; ++i) {
                lists.change();
                if (joining == DirtyRows::Joining::Allowed && lists.random().below(20) == 0)
                    lists.replaceAll();
                if (lists.random().below(3) == 0)
                    lists.log(1 + lists.random().below(4));
                if (lists.random().below(20) != 0)
                    continue;
                while (lists.log(1 + lists.random().below(4))) { }
                QVERIFY(lists.areSame());
            }
        }
    }

    void manyPartsAreJoined()
    {
        Lists lists(DirtyRows::Joining::Allowed, 1);
        lists.replace(0, 0, 20'000);
        while (lists.log(10'000)) { }
        const std::size_t before = lists.loggedRows();
        // Rows that are close together in the first half, and far from each other in the second.
        for (std::size_t row = 0; row < 10'000; row += 2)
            lists.replace(row, 1, 1);
        for (std::size_t row = 10'000; row < 20'000; row += 100)
            lists.replace(row, 1, 1);
        while (lists.log(10'000)) { }
        QVERIFY(lists.areSame());
        QVERIFY(lists.loggedRows() - before <= 10'100);
    }

    void theSameRowTwiceIsLoggedOnce()
    {
        Lists lists(DirtyRows::Joining::Allowed, 1);
        for (int i = 0; i < 5; ++i)
            lists.replace(3, 1, 1);
        while (lists.log(100)) { }
        QVERIFY(lists.areSame());
        QCOMPARE(lists.loggedRows(), std::size_t{1});
    }
};

QTEST_APPLESS_MAIN(TestDirtyRows)
#include "tst_DirtyRows.moc"
