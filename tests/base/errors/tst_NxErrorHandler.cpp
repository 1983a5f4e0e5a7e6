#include "base/HandlerGuard.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QTemporaryFile>
#include <QTest>

#include <atomic>
#include <functional>
#include <latch>
#include <memory>
#include <thread>

#include <unistd.h>

namespace {

void runOnEightThreads(const std::function<void(int)>& work)
{
    std::vector<std::jthread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back(work, i);
}

/// Handler data that dies: its count is plain, so that the thread sanitizer sees a call that comes too late.
struct MortalCounter {
    std::mutex mutex;
    int calls = 0;

    static void count(const NxError*, void* data)
    {
        auto* const counter = static_cast<MortalCounter*>(data);
        const std::lock_guard lock(counter->mutex);
        ++counter->calls;
    }
};

/// Sends the process's standard error to an open file for as long as it lives.
class StandardErrorToFile {
public:
    explicit StandardErrorToFile(int file)
        : m_former(dup(STDERR_FILENO))
    {
        dup2(file, STDERR_FILENO);
    }
    StandardErrorToFile(const StandardErrorToFile&) = delete;
    StandardErrorToFile& operator=(const StandardErrorToFile&) = delete;
    ~StandardErrorToFile()
    {
        dup2(m_former, STDERR_FILENO);
        close(m_former);
    }

private:
    int m_former;
};

} // namespace

class TestNxErrorHandler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void postsOfEightThreadsAllArriveInTheOrderOfEachThread()
    {
        constexpr int perThread = 500;
        TextRecorder recorder;
        {
            const HandlerGuard<NxError> guard(TextRecorder::record, &recorder);
            runOnEightThreads([](int thread) {
                for (int i = 0; i < perThread; ++i)
                    NxError::post(VbString(std::to_string(thread) + " " + std::to_string(i)));
            });
        }
        std::vector<int> next(8, 0);
        for (const std::string& text : recorder.texts()) {
            auto& expected = next[static_cast<std::size_t>(text[0] - '0')];
            QCOMPARE(text.substr(2), std::to_string(expected));
            ++expected;
        }
        QCOMPARE(next, std::vector<int>(8, perThread));
    }

    void aHandlerIsCalledOnThePostingThread()
    {
        std::thread::id called;
        const HandlerGuard<NxError> guard(
            [](const NxError*, void* data) { *static_cast<std::thread::id*>(data) = std::this_thread::get_id(); },
            &called);
        std::thread::id poster;
        std::jthread([&poster] {
            poster = std::this_thread::get_id();
            NxError::post("text");
        }).join();
        QVERIFY(called == poster);
    }

    void replacedDataMayBeDestroyedWhileEightThreadsPost()
    {
        const HandlerGuard<NxError> restore(nullptr, nullptr);
        auto counter = std::make_unique<MortalCounter>();
        NxError::setHandlerCallback(MortalCounter::count, counter.get());
        std::atomic<bool> isOver = false;
        std::atomic<int> posted = 0;
        int counted = 0;
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < 8; ++i) {
                threads.emplace_back([&] {
                    while (!isOver) {
                        NxError::post("text");
                        ++posted;
                    }
                });
            }
            for (int i = 0; i < 200; ++i) {
                auto successor = std::make_unique<MortalCounter>();
                NxError::setHandlerCallback(MortalCounter::count, successor.get());
                counted += counter->calls; // unguarded on purpose: no call is in progress any more
                counter = std::move(successor);
            }
            isOver = true;
        }
        counted += counter->calls;
        QCOMPARE(counted, posted.load());
    }

    void replacingWaitsForACallOnAnotherThread()
    {
        struct Gate {
            std::latch isInside{1};
            std::latch mayLeave{1};
            std::atomic<bool> hasLeft = false;
        } gate;
        const HandlerGuard<NxError> guard(
            [](const NxError*, void* data) {
                auto* const g = static_cast<Gate*>(data);
                g->isInside.count_down();
                g->mayLeave.wait();
                g->hasLeft = true;
            },
            &gate);
        std::jthread poster([] { NxError::post("text"); });
        gate.isInside.wait();
        std::jthread opener([&gate] { gate.mayLeave.count_down(); });
        NxError::setHandlerCallback(nullptr, nullptr);
        QVERIFY(gate.hasLeft);
    }

    void replacingTheHandlerOfOneClassDoesNotWaitForAnother()
    {
        struct Gate {
            std::latch isInside{1};
            std::latch mayLeave{1};
        } gate;
        const HandlerGuard<NxError> guard(
            [](const NxError*, void* data) {
                auto* const g = static_cast<Gate*>(data);
                g->isInside.count_down();
                g->mayLeave.wait();
            },
            &gate);
        std::jthread poster([] { NxError::post("text"); });
        gate.isInside.wait();
        NxReadError::setHandlerCallback(nullptr, nullptr); // would hang
        QVERIFY(NxReadError::getHandlerCallback() == nullptr);
        gate.mayLeave.count_down();
    }

    void aHandlerMayReplaceItself()
    {
        TextRecorder successor;
        const HandlerGuard<NxError> guard(
            [](const NxError*, void* data) { NxError::setHandlerCallback(TextRecorder::record, data); }, &successor);
        NxError::post("first");
        QVERIFY(successor.texts().empty());
        NxError::post("second");
        QCOMPARE(successor.texts(), std::vector<std::string>{"second"});
    }

    void aHandlerMayPost()
    {
        TextRecorder recorder;
        const HandlerGuard<NxDebugError> inner(TextRecorder::record, &recorder);
        const HandlerGuard<NxError> outer(
            [](const NxError* error, void*) { NxDebugError::post(NxDebugError::Warning, error->getDebugString()); },
            nullptr);
        NxError::post("passed on");
        QCOMPARE(recorder.texts(), std::vector<std::string>{"passed on"});
    }

    void handlersThatReplaceEachOtherDoNotWaitForEver()
    {
        struct Meeting {
            std::latch isComplete{2};
            std::atomic<int> ended = 0;
        } meeting;
        const HandlerGuard<NxError> guard(
            [](const NxError*, void* data) {
                auto* const m = static_cast<Meeting*>(data);
                m->isComplete.arrive_and_wait();
                NxError::setHandlerCallback(nullptr, nullptr);
                ++m->ended;
            },
            &meeting);
        {
            const std::jthread first([] { NxError::post("first"); });
            const std::jthread second([] { NxError::post("second"); });
        }
        QCOMPARE(meeting.ended.load(), 2);
    }

    void aThrowingHandlerIsNotWaitedForAfterwards()
    {
        const HandlerGuard<NxError> guard([](const NxError*, void*) { throw 1; }, nullptr);
        std::jthread([] {
            try {
                NxError::post("text");
            } catch (int) {
            }
        }).join();
        NxError::setHandlerCallback(nullptr, nullptr); // would hang
        QVERIFY(NxError::getHandlerCallback() == nullptr);
    }

    void linesOfEightThreadsDoNotMix()
    {
        constexpr int perThread = 200;
        QTemporaryFile file;
        QVERIFY(file.open());
        {
            const StandardErrorToFile redirection(file.handle());
            runOnEightThreads([](int thread) {
                for (int i = 0; i < perThread; ++i)
                    NxError::post(VbString(std::string(40, static_cast<char>('a' + thread))));
            });
        }
        file.seek(0);
        int lines = 0;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            QCOMPARE(line, "error: " + QByteArray(40, line.at(line.size() - 2)) + '\n');
            ++lines;
        }
        QCOMPARE(lines, 8 * perThread);
    }
};

QTEST_APPLESS_MAIN(TestNxErrorHandler)
#include "tst_NxErrorHandler.moc"
