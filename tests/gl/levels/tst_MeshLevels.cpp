#include "meridane/gl/gpu/detail/MeshLevels.h"
#include "meridane/gl/places/detail/PlacedScene.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace meridane;

namespace {

constexpr int meshes = 7;
constexpr std::size_t points = 1'000'000;
constexpr std::size_t pointsOfFirst = 50'000;
/// What the copy of one mesh takes: its positions and their numbers.
constexpr std::size_t bytesOfOne = points * (sizeof(VbVec3f) + sizeof(std::uint32_t));

/// Meshes of many points, all copies of which don't fit in the memory for those that wait. The first one keeps the
/// thread busy for a while; the points of the others are all at the same place, which takes no time.
class Clouds {
public:
    Clouds()
    {
        const NxRef<NxGroup> group = new NxGroup;
        for (int i = 0; i < meshes; ++i) {
            std::vector<VbVec3f> positions(i == 0 ? pointsOfFirst : points);
            for (std::size_t point = 0; i == 0 && point < positions.size(); ++point)
                positions[point] = VbVec3f(static_cast<float>(point % 100), static_cast<float>(point / 100), 0);
            NxRef<NxMesh> mesh = new NxMesh;
            mesh->primitive.setValue(NxMesh::POINTS);
            mesh->positions.setValues(std::move(positions));
            group->addChild(mesh.get());
        }
        m_scene.setRoot(group.get());
        m_scene.update();
        m_scene.forEach<MeshRecord>(NodeKind::Mesh, [this](MeshRecord& mesh) {
            mesh.areLevelsStale = false;
            m_records.push_back(&mesh);
        });
    }

    [[nodiscard]] const std::vector<MeshRecord*>& records() const { return m_records; }

private:
    PlacedScene m_scene{{[] {}, [](MeshRecord&) {}, [](TextureRecord&) {}}};
    std::vector<MeshRecord*> m_records;
};

} // namespace

class TestMeshLevels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void copiesThatWaitTakeBoundedMemory()
    {
        static_assert((meshes - 1) * bytesOfOne > MeshLevels::mostWaitingBytes + bytesOfOne);
        const Clouds clouds;
        QCOMPARE(clouds.records().size(), std::size_t{meshes});
        MeshLevels levels;
        for (MeshRecord* const mesh : clouds.records())
            levels.want(*mesh);
        std::size_t most = 0;
        const auto work = [&] {
            levels.proceed([] { return false; });
            most = std::max(most, levels.bytes());
            return !levels.isBusy();
        };
        QTRY_VERIFY_WITH_TIMEOUT(work(), 120'000);
        QVERIFY(most >= bytesOfOne);
        QVERIFY2(most < MeshLevels::mostWaitingBytes + bytesOfOne, qPrintable(QString::number(most)));
        QCOMPARE(levels.bytes(), std::size_t{0});
        for (const MeshRecord* const mesh : clouds.records())
            QVERIFY(mesh->reduction != nullptr);
    }

    void aMeshThatGoesGivesItsMemoryBack()
    {
        const Clouds clouds;
        MeshLevels levels;
        for (MeshRecord* const mesh : clouds.records())
            levels.want(*mesh);
        levels.proceed([] { return false; });
        for (MeshRecord* const mesh : clouds.records())
            levels.release(*mesh);
        QTRY_VERIFY_WITH_TIMEOUT((levels.proceed([] { return false; }), !levels.isBusy()), 120'000);
        QCOMPARE(levels.bytes(), std::size_t{0});
        for (const MeshRecord* const mesh : clouds.records())
            QVERIFY(mesh->reduction == nullptr);
    }
};

QTEST_APPLESS_MAIN(TestMeshLevels)
#include "tst_MeshLevels.moc"
