#include "base/FolderCase.h"

#include "meridane/base/FileHasher.h"

#include <QTest>

using meridane::ContentHash;
using meridane::FileHasher;
using State = FileHasher::State;

class TestFileHasher : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFolder(); }

    void findsTheHashOfAFile_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("empty") << 0;
        QTest::newRow("short") << 7;
        QTest::newRow("some slices") << 1'500'000;
    }

    void findsTheHashOfAFile()
    {
        QFETCH(int, size);
        const std::string content(static_cast<std::size_t>(size), 'x');
        QVERIFY(!replace(path("file"), content));
        FileHasher hasher(path("file"));
        int slices = 0;
        static std::chrono::steady_clock::time_point now;
        const auto clock = [] { return now += std::chrono::milliseconds(1); };
        while (hasher.step(meridane::WorkBudget(std::chrono::milliseconds(2), clock)) == State::Working)
            ++slices;
        QVERIFY(hasher.state() == State::Done);
        QVERIFY(hasher.failure().empty());
        QVERIFY(hasher.hash() == ContentHash::of(content));
        QCOMPARE(slices > 1, size > 1'000'000);
        QVERIFY(hasher.step(std::chrono::hours(1)) == State::Done);
    }

    void refusesWhatIsNoFile()
    {
        FileHasher missing(path("missing"));
        QVERIFY(missing.step(std::chrono::hours(1)) == State::Failed);
        QCOMPARE(missing.failure(), path("missing") + ": No such file or directory");
        FileHasher folder(path(""));
        QVERIFY(folder.step(std::chrono::hours(1)) == State::Failed);
        QVERIFY(folder.failure().ends_with("is a directory"));
    }
};

QTEST_APPLESS_MAIN(TestFileHasher)
#include "tst_FileHasher.moc"
