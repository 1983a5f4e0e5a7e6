#include "Patience.h"
#include "app/StepClock.h"

#include "orvane/app/log/LogBook.h"

#include <QSignalSpy>
#include <QTest>

#include <thread>
#include <vector>

/// What the log keeps.
class TestLogBook : public QObject {
    Q_OBJECT

private:
    static void add(LogBook& book, const QString& text, NxSeverity severity = NxSeverity::Information)
    {
        book.add(severity, QStringLiteral("test"), text);
    }
    static void addLines(LogBook& book, int count)
    {
        for (int i = 0; i < count; ++i)
            add(book, QStringLiteral("line %1").arg(i));
    }
    static QStringList texts(const LogBook& book)
    {
        QStringList result;
        for (std::uint64_t number = book.firstNumber(); number < book.endNumber(); ++number)
            result.append(book.record(number)->text);
        return result;
    }

private Q_SLOTS:
    void linesAreTakenInFromTheEventLoop()
    {
        LogBook book;
        add(book, QStringLiteral("one"));
        add(book, QStringLiteral("two"), NxSeverity::Error);
        QCOMPARE(book.lineCount(), std::size_t(0));
        QTRY_COMPARE(texts(book), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
        QCOMPARE(book.count(NxSeverity::Error), std::size_t(1));
        QCOMPARE(book.count(NxSeverity::Information), std::size_t(1));
    }

    void equalLinesAreOneRecord()
    {
        LogBook book;
        for (const char* const text : {"a", "a", "b", "a", "a", "a"})
            add(book, QLatin1String(text));
        QTRY_COMPARE(book.lineCount(), std::size_t(6));
        QCOMPARE(texts(book), QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a")}));
        QCOMPARE(book.record(0)->times.size(), std::size_t(2));
        QCOMPARE(book.record(2)->times.size(), std::size_t(3));
        // Those that come later join them.
        add(book, QStringLiteral("a"));
        QTRY_COMPARE(book.record(2)->times.size(), std::size_t(4));
        add(book, QStringLiteral("a"), NxSeverity::Error);
        QTRY_COMPARE(book.endNumber(), std::uint64_t(4));
    }

    void theOldestLinesAreDropped()
    {
        LogBook book;
        book.setLimits({.lines = 100, .bytes = 1U << 20U});
        addLines(book, 250);
        QTRY_COMPARE(book.droppedCount(), std::size_t(150));
        QCOMPARE(book.lineCount(), std::size_t(100));
        QCOMPARE(texts(book).first(), QStringLiteral("line 150"));
        QCOMPARE(texts(book).last(), QStringLiteral("line 249"));
        QCOMPARE(book.count(NxSeverity::Information), std::size_t(100));
        book.setLimits({.lines = 10, .bytes = 1U << 20U});
        QCOMPARE(texts(book).first(), QStringLiteral("line 240"));
    }

    void equalLinesAreDroppedOneByOne()
    {
        LogBook book;
        book.setLimits({.lines = 100, .bytes = 1U << 20U});
        for (int i = 0; i < 1000; ++i)
            add(book, QStringLiteral("again"));
        QTRY_COMPARE(book.lineCount() + book.droppedCount(), std::size_t(1000));
        QCOMPARE(book.lineCount(), std::size_t(100));
        QCOMPARE(texts(book), QStringList({QStringLiteral("again")}));
    }

    void memoryIsBounded()
    {
        LogBook book;
        constexpr std::size_t bytes = 100'000;
        book.setLimits({.lines = 100'000, .bytes = bytes});
        for (int i = 0; i < 100; ++i)
            add(book, QString(5000, QChar(u'a' + i % 26)));
        QTRY_VERIFY(book.droppedCount() > 0 && book.lineCount() + book.droppedCount() == 100);
        QVERIFY(book.lineCount() * 5000 * sizeof(QChar) <= bytes);
        QVERIFY(book.lineCount() >= 8);
    }

    void aLineOfAnyLengthIsCut()
    {
        LogBook book;
        add(book, QString(LogBook::longestText + 10, u'x'));
        QTRY_COMPARE(book.lineCount(), std::size_t(1));
        QCOMPARE(book.record(0)->text.size(), LogBook::longestText + 1);
    }

    void linesOfAllThreadsArrive()
    {
        LogBook book;
        constexpr int threadCount = 4;
        constexpr int lineCount = 5000;
        std::vector<std::thread> threads;
        threads.reserve(threadCount);
        for (int i = 0; i < threadCount; ++i)
            threads.emplace_back([&book] { addLines(book, lineCount); });
        for (std::thread& thread : threads)
            thread.join();
        QTRY_COMPARE_WITH_TIMEOUT(book.lineCount(), std::size_t(threadCount * lineCount), testPatience);
    }

    /// Two slices at least, and the events between them are handled.
    void manyLinesAreTakenInBySlices()
    {
        LogBook book(nullptr, &StepClock::now);
        book.setLimits({.lines = 1'000'000, .bytes = std::size_t(1) << 30U});
        addLines(book, 300'000);
        QSignalSpy changes(&book, &LogBook::changed);
        QTRY_COMPARE_WITH_TIMEOUT(book.lineCount(), std::size_t(300'000), testPatience);
        QVERIFY(changes.size() > 1);
    }

    void clearForgetsAllLines()
    {
        LogBook book;
        addLines(book, 10);
        QTRY_COMPARE(book.lineCount(), std::size_t(10));
        addLines(book, 5);
        book.clear();
        QCOMPARE(book.lineCount(), std::size_t(0));
        QCOMPARE(book.count(NxSeverity::Information), std::size_t(0));
        add(book, QStringLiteral("new"));
        QTRY_COMPARE(texts(book), QStringList({QStringLiteral("new")}));
    }
};

QTEST_GUILESS_MAIN(TestLogBook)
#include "tst_LogBook.moc"
