#pragma once

#include "orvane/app/lists/jobs/ListJob.h"
#include "orvane/app/lists/rows/RowMap.h"
#include "orvane/app/lists/rows/RowRuns.h"

#include "meridane/base/values/VbVec.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <utility>
#include <vector>

/// Collects the positions that rows of a list of a mesh belong to, each once. The mesh may change meanwhile.
class MarkedPointsJob : public ListJob {
    Q_OBJECT

public:
    /// What a row is of.
    enum class Rows {
        OfVertices, ///< the position of the same number
        OfIndices, ///< the position that the index refers to
    };

    /// `places` are those of the map.
    MarkedPointsJob(const NxRef<NxMesh>& mesh, Rows rows, RowRuns places, RowMap map,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~MarkedPointsJob() override;

    /// The positions, once the job has finished. Rows that refer to none are left out.
    [[nodiscard]] std::vector<VbVec3f> takePoints() { return std::move(m_points); }

private:
    bool runPart() override;
    [[nodiscard]] double share() const override;
    void addRow(int row);

    NxRef<NxMesh> m_mesh;
    Rows m_rows;
    RowRuns m_places;
    RowMap m_map;
    std::size_t m_run = 0;
    int m_next = 0; // in the run
    std::vector<bool> m_isAdded; // by position, for indices
    std::vector<VbVec3f> m_points;
};
