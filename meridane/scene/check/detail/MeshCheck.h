#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/scene/check/NxSceneProblem.h"

#include <cstddef>
#include <span>
#include <vector>

class NxMesh;
class NxMField;

namespace meridane {

class WorkMeter;

/// Finds what is wrong with the lists of a mesh, in slices.
class MeshCheck {
public:
    /// Works on. True when done; then the problems have been appended.
    bool step(NxMesh& mesh, WorkMeter& meter, std::vector<NxSceneProblem>& problems);

private:
    enum class Stage { Positions, Normals, Indices, Faces, Done };

    /// The rows of a list that have a problem.
    struct Rows {
        std::size_t count = 0;
        std::size_t first = 0;

        void add(std::size_t row)
        {
            if (count++ == 0)
                first = row;
        }
    };

    void checkPosition(const VbVec3f& position, std::size_t row);
    void checkNormal(const VbVec3f& normal, std::size_t row);
    void checkFace(
        std::span<const VbVec3f> positions, std::span<const int> indices, std::size_t first, std::size_t corners);
    [[nodiscard]] bool isDegenerate(std::span<const VbVec3f> corners) const;
    void report(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const;
    void reportFaces(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const;
    void reportCounts(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const;

    Stage m_stage = Stage::Positions;
    std::size_t m_at = 0; // the next row or corner of the stage
    Rows m_uselessPositions;
    Rows m_zeroNormals;
    Rows m_longNormals;
    Rows m_outOfRange;
    Rows m_degenerate;
    std::size_t m_usableFaces = 0;
};

} // namespace meridane
