#include "extender/HistoryCase.h"
#include "extender/SetValueCommand.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QTest>

#include <cstddef>
#include <utility>

#include <malloc.h>

using namespace Qt::StringLiterals;

class TestOrvHistoryLimit : public HistoryCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void beyondTheLimitTheOldestStepsAreGone()
    {
        OrvHistory history;
        push(history, "a");
        const std::size_t bytesOfStep = history.bytes();
        QVERIFY(bytesOfStep > 0);
        history.setLimit(3 * bytesOfStep);
        push(history, "b");
        push(history, "c");
        QCOMPARE(history.undoDepth(), 3);
        taken(m_calls);
        push(history, "d");
        QCOMPARE(taken(m_calls), pairs("execute d destroy a"));
        QCOMPARE(history.undoDepth(), 3);
        QCOMPARE(history.bytes(), 3 * bytesOfStep);
        for (int i = 0; i < 4; ++i)
            history.undo();
        QCOMPARE(taken(m_calls), pairs("undo d undo c undo b"));
        QVERIFY(!history.canUndo());
        QVERIFY(!history.isClean());
        for (int i = 0; i < 4; ++i)
            history.redo();
        QCOMPARE(taken(m_calls), pairs("redo b redo c redo d"));
    }

    void aLowerLimitActsAtOnceButKeepsTheNewestStep()
    {
        OrvHistory history;
        push(history, "a");
        push(history, "b");
        push(history, "c");
        taken(m_calls);
        history.setLimit(1);
        QCOMPARE(taken(m_calls), pairs("destroy a destroy b"));
        QCOMPARE(history.undoDepth(), 1);
        history.undo();
        QCOMPARE(taken(m_calls), pairs("undo c"));
        QVERIFY(!history.canUndo());
    }

    void droppingGoesOnAfterTheHistoryWasCleared()
    {
        OrvHistory history;
        history.setLimit(1);
        push(history, "a");
        push(history, "b");
        history.clear();
        QCOMPARE(history.bytes(), std::size_t(0));
        push(history, "c");
        QCOMPARE(history.undoDepth(), 1);
        push(history, "d");
        QCOMPARE(history.undoDepth(), 1);
    }

    void theNumberOfStepsIsBounded()
    {
        OrvHistory history;
        for (std::size_t i = 0; i < OrvHistory::maximumSteps + 10; ++i)
            history.push(std::make_unique<TestCommand>(QString(), m_calls), {alone, nullptr, nullptr, nullptr});
        QCOMPARE(history.undoDepth(), static_cast<int>(OrvHistory::maximumSteps));
    }

    void theEstimateGrowsWithTheValueAndWithTheRowsRemoved()
    {
        const NxRef<NxFieldGallery> node(new NxFieldGallery);
        NxSFString text(nullptr, "text");
        const auto costOf = [&](NxField& field, const TestCommand::Action& action) {
            OrvHistory history;
            auto command = std::make_unique<TestCommand>(u"a"_s, m_calls);
            command->whenExecuted = action;
            history.push(std::move(command), {alone, &field, nullptr, nullptr});
            return history.bytes();
        };
        const std::size_t small = costOf(text, {});
        text.setValue(VbString(std::string_view(std::string(1000000, 'x'))));
        const std::size_t large = costOf(text, {});
        QVERIFY2(large - small >= 2000000, "two texts of a million characters");

        NxMFFloat list(nullptr, "list");
        list.insertSpace(0, 1000000);
        const std::size_t row = costOf(list, {});
        QVERIFY2(row < 1000, "one row of a long list is cheap");
        const std::size_t removal = costOf(list, [&] { list.deleteValues(0, 1000000); });
        QVERIFY2(removal > std::size_t(40) * 1000000, "each removed row has a text");
    }

    void aLongDragTakesLittleMemoryAStep()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer's allocator doesn't count");
#endif
        constexpr int steps = 100000;
        const NxRef<NxPointLight> light(new NxPointLight);
        OrvHistory history;
        const auto usedBytes = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
        const std::size_t before = usedBytes();
        for (int i = 0; i < steps; ++i) {
            light->intensity.setValue(static_cast<float>(i) * 1.00001e-5F);
            history.push(
                std::make_unique<SetValueCommand>(light->intensity), {1, &light->intensity, light.get(), light.get()});
        }
        const double bytesPerStep = static_cast<double>(usedBytes() - before) / steps;
        const double estimate = static_cast<double>(history.bytes()) / steps;
        qInfo("%.1f bytes a step, estimated at %.1f", bytesPerStep, estimate);
        QCOMPARE(history.undoDepth(), 1);
        QVERIFY2(bytesPerStep <= 200, "a drag of many steps must stay small");
        QVERIFY2(estimate >= bytesPerStep && estimate <= 2 * bytesPerStep, "the estimate is honest");
    }
};

QTEST_APPLESS_MAIN(TestOrvHistoryLimit)
#include "tst_OrvHistoryLimit.moc"
