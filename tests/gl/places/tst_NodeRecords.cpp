#include "base/FailingMemory.h"

#include "meridane/gl/places/detail/MeshRecord.h"
#include "meridane/gl/places/detail/NodeRecords.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

using namespace meridane;

namespace {

class DeafListener final : public NodeRecordListener {
public:
    void nodeTouched(NodeRecord& /*record*/) override { }
    void nodeChanged(NodeRecord& /*record*/) override { }
    void nodeDied(NodeRecord& /*record*/) override { }
};

int count(NodeRecords& records)
{
    int count = 0;
    records.forEach([&count](const NodeRecord& record) { count += record.node() != nullptr ? 1 : 0; });
    return count;
}

} // namespace

class TestNodeRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNodeHasOneRecord()
    {
        NodeRecords records;
        const NxRef<NxMesh> mesh = new NxMesh;
        const NxRef<NxMesh> other = new NxMesh;
        auto& record = records.of<MeshRecord>(*mesh, m_listener);
        QCOMPARE(&records.of<MeshRecord>(*mesh, m_listener), &record);
        QVERIFY(&records.of<MeshRecord>(*other, m_listener) != &record);
        QCOMPARE(records.find(mesh.get()), &record);
        QCOMPARE(count(records), 2);
        QVERIFY(records.bytes() > 0);
    }

    void recordsThatNobodyUsesAreBuried()
    {
        NodeRecords records;
        const NxRef<NxMesh> mesh = new NxMesh;
        const NxRef<NxMesh> other = new NxMesh;
        auto& record = records.of<MeshRecord>(*mesh, m_listener);
        NodeRecords::retain(record);
        records.of<MeshRecord>(*other, m_listener);
        records.destroyUnused([](const NodeRecord&) {});
        QCOMPARE(count(records), 1);
        records.release(record);
        records.destroyUnused([](const NodeRecord&) {});
        QCOMPARE(count(records), 0);
        QCOMPARE(records.bytes(), std::size_t{0});
    }

    void aRecordThatThereIsNoMemoryForLeavesNothing()
    {
        const NxRef<NxMesh> mesh = new NxMesh;
        int failures = 0;
        for (long succeed = 0;; ++succeed) {
            NodeRecords records;
            bool failed = false;
            FailingMemory::allocationsLeft = succeed;
            try {
                records.of<MeshRecord>(*mesh, m_listener);
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            FailingMemory::allocationsLeft = -1;
            if (!failed)
                break;
            ++failures;
            QVERIFY(records.find(mesh.get()) == nullptr);
            QCOMPARE(count(records), 0);
            QCOMPARE(records.bytes(), std::size_t{0});
        }
        QVERIFY(failures >= 3); // the record, its entry in the table, and that among the unused ones
    }

    void releasingTakesNoMemory()
    {
        NodeRecords records;
        std::vector<NxRef<NxMesh>> meshes;
        std::vector<NodeRecord*> made;
        for (int i = 0; i < 100; ++i) {
            meshes.emplace_back(new NxMesh);
            made.push_back(&records.of<MeshRecord>(*meshes.back(), m_listener));
            NodeRecords::retain(*made.back());
            if (i % 10 == 0)
                records.destroyUnused([](const NodeRecord&) {});
        }
        records.destroyUnused([](const NodeRecord&) {});
        FailingMemory::allocationsLeft = 0;
        for (NodeRecord* record : made)
            records.release(*record);
        const bool tookNone = FailingMemory::allocationsLeft == 0;
        FailingMemory::allocationsLeft = -1;
        QVERIFY(tookNone);
        records.destroyUnused([](const NodeRecord&) {});
        QCOMPARE(count(records), 0);
    }

private:
    DeafListener m_listener;
};

QTEST_APPLESS_MAIN(TestNodeRecords)
#include "tst_NodeRecords.moc"
