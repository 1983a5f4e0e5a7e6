#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/LogModel.h"
#include "orvane/app/log/LogSearch.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <memory>

/// The rows of the log.
class TestLogModel : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<LogBook> m_book;
    std::unique_ptr<LogModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    int m_added = 0;

    void add(const char* text, NxSeverity severity = NxSeverity::Information, const char* source = "test")
    {
        m_book->add(severity, QLatin1String(source), QLatin1String(text));
        ++m_added;
    }
    void settle() { QTRY_COMPARE(m_book->lineCount() + m_book->droppedCount(), static_cast<std::size_t>(m_added)); }
    [[nodiscard]] QString texts() const
    {
        QStringList result;
        for (int row = 0; row < m_model->rowCount(); ++row)
            result.append(m_model->index(row, LogModel::TextColumn).data().toString());
        return result.join(u' ');
    }
    [[nodiscard]] QString count(int row) const { return m_model->index(row, LogModel::CountColumn).data().toString(); }

private Q_SLOTS:
    void init()
    {
        m_added = 0;
        m_book = std::make_unique<LogBook>();
        m_model = std::make_unique<LogModel>(*m_book);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_book.reset();
    }

    void linesAreRows()
    {
        add("a");
        settle();
        add("b", NxSeverity::Error, "other");
        settle();
        QCOMPARE(texts(), QStringLiteral("a b"));
        QCOMPARE(m_model->index(1, LogModel::SourceColumn).data().toString(), QStringLiteral("other"));
        QVERIFY(!m_model->index(1, LogModel::TimeColumn).data().toString().isEmpty());
        QCOMPARE(count(1), QString());
    }

    void equalLinesAreCountedUnfoldedAndFolded()
    {
        for (const char* const text : {"a", "b", "b", "b", "c"})
            add(text);
        settle();
        QCOMPARE(texts(), QStringLiteral("a b c"));
        QVERIFY(count(1).endsWith(QStringLiteral("3")));
        QVERIFY(m_model->canUnfold(1));
        QVERIFY(!m_model->canUnfold(0));
        m_model->unfold(1);
        QCOMPARE(texts(), QStringLiteral("a b b b c"));
        QVERIFY(m_model->canFold(3));
        QCOMPARE(m_model->fold(3), 1);
        QCOMPARE(texts(), QStringLiteral("a b c"));
    }

    void equalLinesThatComeLaterAreCounted()
    {
        add("a");
        settle();
        add("a");
        settle();
        QCOMPARE(texts(), QStringLiteral("a"));
        QVERIFY(count(0).endsWith(QStringLiteral("2")));
        m_model->unfold(0);
        add("a");
        add("b");
        settle();
        QCOMPARE(texts(), QStringLiteral("a a a b"));
    }

    void withoutFoldingEachLineIsARow()
    {
        add("a");
        add("a");
        settle();
        m_model->setFolding(false);
        QCOMPARE(texts(), QStringLiteral("a a"));
        add("a");
        settle();
        QCOMPARE(texts(), QStringLiteral("a a a"));
        QCOMPARE(count(0), QString());
        m_model->setFolding(true);
        QCOMPARE(texts(), QStringLiteral("a"));
    }

    void whatIsFilteredIsNotLost()
    {
        add("red apple", NxSeverity::Error);
        add("green apple", NxSeverity::Warning);
        add("green pear");
        settle();
        m_model->setShown(NxSeverity::Warning, false);
        QCOMPARE(m_model->rowCount(), 2);
        add("hidden", NxSeverity::Warning);
        settle();
        QCOMPARE(m_model->rowCount(), 2);
        m_model->setShown(NxSeverity::Warning, true);
        QCOMPARE(m_model->rowCount(), 4);
        m_model->setFilter(QStringLiteral(" APPLE  green"));
        QCOMPARE(texts(), QStringLiteral("green apple"));
        m_model->setFilter({});
        QCOMPARE(m_model->rowCount(), 4);
    }

    void droppedLinesLeaveTheRows_data()
    {
        QTest::addColumn<bool>("folds");
        QTest::newRow("folded") << true;
        QTest::newRow("unfolded") << false;
    }
    void droppedLinesLeaveTheRows()
    {
        QFETCH(bool, folds);
        m_model->setFolding(folds);
        m_book->setLimits({.lines = 4, .bytes = 1U << 20U});
        for (const char* const text : {"a", "a", "a", "b"})
            add(text);
        settle();
        add("c");
        settle();
        QCOMPARE(texts(), folds ? QStringLiteral("a b c") : QStringLiteral("a a b c"));
        add("d");
        add("e");
        settle();
        QCOMPARE(texts(), QStringLiteral("b c d e"));
        for (const char* const text : {"f", "g", "h", "i", "j", "j"})
            add(text);
        settle();
        QCOMPARE(texts(), folds ? QStringLiteral("h i j") : QStringLiteral("h i j j"));
    }

    void clearRemovesAllRows()
    {
        add("a");
        settle();
        m_book->clear();
        m_added = 0;
        QCOMPARE(m_model->rowCount(), 0);
        add("b");
        settle();
        QCOMPARE(texts(), QStringLiteral("b"));
    }

    void aLineIsFoundAmongOtherRows()
    {
        for (const char* const text : {"a", "b", "c", "d"})
            add(text);
        settle();
        const auto line = m_model->lineAt(2);
        QVERIFY(line.has_value());
        m_model->setFilter(QStringLiteral("c"));
        QCOMPARE(m_model->rowNear(*line), 0);
        m_model->setFilter(QStringLiteral("d"));
        QCOMPARE(m_model->rowNear(*line), 0); // the next one below
        m_model->setFilter({});
        QCOMPARE(m_model->rowNear(*line), 2);
    }

    void textsOfSeveralLinesAreOneRow()
    {
        add("first\nsecond");
        settle();
        QCOMPARE(m_model->rowCount(), 1);
        QVERIFY(!texts().contains(u'\n'));
        QVERIFY(m_model->lineText(0).contains(QStringLiteral("first\nsecond")));
    }

    void aSearchFindsRowsAndKeepsTheOthers()
    {
        LogSearch search(*m_model);
        for (const char* const text : {"Apple", "pear", "apple pie"})
            add(text);
        settle();
        search.setText(QStringLiteral("apple"));
        QCOMPARE(search.hitCount(), std::size_t(2));
        QCOMPARE(m_model->rowCount(), 3);
        QCOMPARE(search.next(-1), 0);
        QCOMPARE(search.next(0), 2);
        QCOMPARE(search.next(2), 0);
        QCOMPARE(search.previous(0), 2);
        QCOMPARE(search.previous(-1), 2);
        QCOMPARE(search.hitsUpTo(1), std::size_t(1));
        add("another apple");
        settle();
        QCOMPARE(search.hitCount(), std::size_t(3));
        m_book->setLimits({.lines = 2, .bytes = 1U << 20U});
        QCOMPARE(search.hitCount(), std::size_t(2));
        QCOMPARE(search.next(0), 1);
        m_model->setFilter(QStringLiteral("another"));
        QCOMPARE(search.hitCount(), std::size_t(1));
        search.setText({});
        QCOMPARE(search.next(0), -1);
    }
};

QTEST_MAIN(TestLogModel)
#include "tst_LogModel.moc"
