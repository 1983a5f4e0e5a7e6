#include "extender/HistoryCase.h"
#include "extender/SetValueCommand.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QTest>

#include <array>
#include <cstddef>
#include <new>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A node that reports its death.
class MortalNode : public NxPointLight {
public:
    explicit MortalNode(bool& isDead)
        : m_isDead(isDead)
    {
    }

private:
    ~MortalNode() override { m_isDead = true; }

    bool& m_isDead;
};

// A list without a node, in memory that it clears at its end, so that a later use ends at a null pointer.
class MortalList {
public:
    MortalList() { m_field->insertSpace(0, 100); }
    MortalList(const MortalList&) = delete;
    MortalList& operator=(const MortalList&) = delete;
    ~MortalList() { destroy(); }

    [[nodiscard]] NxField* field() const { return m_field; }
    [[nodiscard]] bool isAlive() const { return m_field != nullptr; }
    void destroy()
    {
        if (m_field == nullptr)
            return;
        std::exchange(m_field, nullptr)->~NxMFFloat();
        m_memory.fill(std::byte());
    }

private:
    alignas(NxMFFloat) std::array<std::byte, sizeof(NxMFFloat)> m_memory{};
    NxMFFloat* m_field = new (m_memory.data()) NxMFFloat(nullptr, "list");
};

} // namespace

class TestOrvHistoryLifetime : public HistoryCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_calls.clear(); }

    void theEndDestroysEverything()
    {
        {
            OrvHistory history;
            push(history, "a");
            taken(m_calls);
        }
        QCOMPARE(m_calls, pairs("destroy a"));
    }

    void nodesLiveAsLongAsTheCommandAndNoLonger()
    {
        bool nodeIsDead = false;
        bool ownerIsDead = false;
        OrvHistory history;
        {
            const NxRef<NxFieldContainer> node(new MortalNode(nodeIsDead));
            const NxRef<MortalNode> owner(new MortalNode(ownerIsDead));
            auto command = std::make_unique<SetValueCommand>(owner->intensity);
            owner->intensity.setValue(0.5F);
            history.push(std::move(command), {alone, &owner->intensity, node.get(), owner.get()});
        }
        QVERIFY(!nodeIsDead && !ownerIsDead);
        history.undo();
        QVERIFY(!nodeIsDead && !ownerIsDead);
        push(history, "next");
        QVERIFY(nodeIsDead && ownerIsDead);
    }

    void nodesOfMergedCommandsLiveAsLongAsTheStep()
    {
        bool firstIsDead = false;
        bool secondIsDead = false;
        OrvHistory history;
        for (bool* isDead : {&firstIsDead, &secondIsDead}) {
            const NxRef<NxFieldContainer> node(new MortalNode(*isDead));
            history.push(std::make_unique<TestCommand>(u"a"_s, m_calls), {3, nullptr, node.get(), node.get()});
        }
        QCOMPARE(history.undoDepth(), 1);
        QVERIFY(!firstIsDead && !secondIsDead);
        history.clear();
        QVERIFY(firstIsDead && secondIsDead);
    }

    void aFieldMayDieWhileTheCommandIsExecuted()
    {
        OrvHistory history;
        MortalList list;
        history.push(std::make_unique<TestCommand>(u"a"_s, m_calls), {alone, list.field(), nullptr, nullptr});
        const std::size_t bytes = history.bytes();
        auto command = std::make_unique<TestCommand>(u"b"_s, m_calls);
        command->whenExecuted = [&] { list.destroy(); };
        history.push(std::move(command), {alone, list.field(), nullptr, nullptr});
        QCOMPARE(history.undoDepth(), 2);
        QCOMPARE(history.bytes(), 2 * bytes);
    }

    void aFieldMayDieWhileACommandOfACommandIsExecuted()
    {
        OrvHistory history;
        MortalList list;
        pushDoing(history, "a", [&] {
            auto inner = std::make_unique<TestCommand>(u"b"_s, m_calls);
            inner->whenExecuted = [&] { list.destroy(); };
            history.push(std::move(inner), {alone, list.field(), nullptr, nullptr});
        });
        QCOMPARE(history.undoDepth(), 1);
    }

    void aFieldMayDieWithTheStepsThatAPushCutsOff()
    {
        class OwningCommand : public TestCommand {
        public:
            OwningCommand(QStringList& calls, MortalList& list)
                : TestCommand(u"owner"_s, calls)
                , m_list(list)
            {
            }
            ~OwningCommand() override { m_list.destroy(); }

        private:
            MortalList& m_list;
        };
        OrvHistory history;
        MortalList list;
        history.push(std::make_unique<OwningCommand>(m_calls, list), {alone, list.field(), nullptr, nullptr});
        history.undo();
        push(history, "a", alone, list.field());
        QVERIFY(!list.isAlive());
        QCOMPARE(history.undoDepth(), 1);
    }
};

QTEST_APPLESS_MAIN(TestOrvHistoryLifetime)
#include "tst_OrvHistoryLifetime.moc"
