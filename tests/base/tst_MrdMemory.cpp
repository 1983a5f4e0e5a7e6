#include "base/HandlerGuard.h"

#include "meridane/base/MrdMemory.h"
#include "meridane/base/errors/NxMemoryError.h"

#include <QTest>

#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

namespace {

// More than any machine has, yet no size that the sanitizers refuse to see in a call.
constexpr std::size_t tooMuch = std::numeric_limits<std::ptrdiff_t>::max() / 2;

} // namespace

class TestMrdMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlockIsCountedUntilItIsReleased()
    {
        TMrdMemCnt counter;
        void* const block = safeMalloc(nullptr, 0, 100, &counter);
        QVERIFY(block != nullptr);
        QCOMPARE(counter.blocks.load(), 1);
        QVERIFY(counter.bytes.load() >= 100);
        std::memset(block, 1, 100);
        safeFree(block, &counter);
        QCOMPARE(counter.blocks.load(), 0);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void noBytesStillGiveABlock()
    {
        TMrdMemCnt counter;
        void* const block = safeMalloc(nullptr, 0, 0, &counter);
        QVERIFY(block != nullptr);
        QCOMPARE(counter.blocks.load(), 1);
        safeFree(block, &counter);
        QCOMPARE(counter.blocks.load(), 0);
    }

    void releasingNullCountsNothing()
    {
        TMrdMemCnt counter;
        safeFree(nullptr, &counter);
        QCOMPARE(counter.blocks.load(), 0);
    }

    void aCounterMayBeNull()
    {
        void* block = safeMalloc(nullptr, 0, 10, nullptr);
        block = safeRealloc(nullptr, 0, block, 1000, nullptr);
        QVERIFY(block != nullptr);
        safeFree(block, nullptr);
    }

    void blocksOfTheCLibraryAreReleasedAndCountBelowZero()
    {
        TMrdMemCnt counter;
        safeFree(std::malloc(100), &counter);
        QCOMPARE(counter.blocks.load(), -1);
        QVERIFY(counter.bytes.load() <= -100);
    }

    void theCLibraryReleasesOurBlocks()
    {
        TMrdMemCnt counter;
        std::free(safeMalloc(nullptr, 0, 100, &counter)); // the memory checker would complain
        QCOMPARE(counter.blocks.load(), 1);
    }

    void resizingKeepsTheContentAndCountsTheDifference_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("grown") << 100000;
        QTest::newRow("shrunk") << 10;
        QTest::newRow("same") << 1000;
    }
    void resizingKeepsTheContentAndCountsTheDifference()
    {
        QFETCH(const int, size);
        TMrdMemCnt counter;
        void* block = safeMalloc(nullptr, 0, 1000, &counter);
        std::memcpy(block, "content", 8);
        block = safeRealloc(nullptr, 0, block, static_cast<std::size_t>(size), &counter);
        QVERIFY(block != nullptr);
        QCOMPARE(static_cast<const char*>(block), "content");
        QCOMPARE(counter.blocks.load(), 1);
        QVERIFY(counter.bytes.load() >= size);
        safeFree(block, &counter);
        QCOMPARE(counter.blocks.load(), 0);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void resizingNullAllocates()
    {
        TMrdMemCnt counter;
        void* const block = safeRealloc(nullptr, 0, nullptr, 100, &counter);
        QVERIFY(block != nullptr);
        QCOMPARE(counter.blocks.load(), 1);
        safeFree(block, &counter);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void resizingToNothingReleases()
    {
        TMrdMemCnt counter;
        void* const block = safeMalloc(nullptr, 0, 100, &counter);
        QVERIFY(safeRealloc(nullptr, 0, block, 0, &counter) == nullptr);
        QCOMPARE(counter.blocks.load(), 0);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void aFailedResizeLeavesBlockAndCounts()
    {
        TMrdMemCnt counter;
        void* const block = safeMalloc(nullptr, 0, 100, &counter);
        std::memcpy(block, "content", 8);
        const std::int64_t bytes = counter.bytes;
        QVERIFY(safeRealloc(nullptr, 0, block, tooMuch, &counter) == nullptr);
        QCOMPARE(counter.blocks.load(), 1);
        QCOMPARE(counter.bytes.load(), bytes);
        QCOMPARE(static_cast<const char*>(block), "content");
        safeFree(block, &counter);
    }

    void aFailureIsPostedWhenItsPlaceIsKnown()
    {
        TMrdMemCnt counter;
        TextRecorder recorder;
        const HandlerGuard<NxMemoryError> guard(TextRecorder::record, &recorder);
        QVERIFY(safeMalloc(nullptr, 0, tooMuch, &counter) == nullptr);
        QVERIFY(recorder.texts().empty());
        QVERIFY(safeMalloc("image.cpp", 5, tooMuch, &counter) == nullptr);
        QVERIFY(safeRealloc("image.cpp", 6, nullptr, tooMuch, &counter) == nullptr);
        QCOMPARE(recorder.texts().size(), std::size_t(2));
        std::string expected = "image.cpp:5: no memory for ";
        expected.append(std::to_string(tooMuch)).append(" bytes");
        QCOMPARE(recorder.texts()[0], expected);
        QCOMPARE(counter.blocks.load(), 0);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void aMessageThatFindsNoRoomItselfIsDropped()
    {
        const HandlerGuard<NxMemoryError> guard([](const NxError*, void*) { throw std::bad_alloc(); }, nullptr);
        QVERIFY(safeMalloc("image.cpp", 5, tooMuch, nullptr) == nullptr);
    }

    void anotherExceptionOfTheHandlerIsPassedOn()
    {
        const HandlerGuard<NxMemoryError> guard(
            [](const NxError*, void*) { throw std::runtime_error("of the handler"); }, nullptr);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, static_cast<void>(safeMalloc("image.cpp", 5, tooMuch, nullptr)));
    }

    void eightThreadsCountTogether()
    {
        TMrdMemCnt counter;
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < 8; ++i) {
                threads.emplace_back([&counter] {
                    for (int n = 0; n < 2000; ++n) {
                        void* block = safeMalloc(nullptr, 0, 16, &counter);
                        block = safeRealloc(nullptr, 0, block, 200, &counter);
                        safeFree(block, &counter);
                    }
                });
            }
        }
        QCOMPARE(counter.blocks.load(), 0);
        QCOMPARE(counter.bytes.load(), 0);
    }

    void theProcessHasACounter()
    {
        QVERIFY(pMrd_memCnt != nullptr);
        const std::int64_t blocks = pMrd_memCnt->blocks;
        void* const block = safeMalloc(nullptr, 0, 1, pMrd_memCnt);
        QCOMPARE(pMrd_memCnt->blocks.load(), blocks + 1);
        safeFree(block, pMrd_memCnt);
        QCOMPARE(pMrd_memCnt->blocks.load(), blocks);
    }
};

QTEST_APPLESS_MAIN(TestMrdMemory)
#include "tst_MrdMemory.moc"
