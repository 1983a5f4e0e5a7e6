#pragma once

#include "meridane/gl/levels/detail/ReductionThread.h"
#include "meridane/gl/places/detail/MeshRecord.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>

namespace meridane {

/// Has the meshes reduced that a picture wants with less detail. The lists of a mesh are copied in slices, between
/// other work of the thread that calls; a thread of its own does the rest. The results are in the records.
class MeshLevels {
public:
    /// Meshes with fewer vertices aren't reduced.
    static constexpr std::uint32_t leastVertices = 500;
    /// What the copies of the meshes that wait for the thread take together, apart from one that is larger alone.
    static constexpr std::size_t mostWaitingBytes = 64U << 20U;
    /// Larger meshes aren't reduced: the thread needs about three times as much for a while.
    static constexpr std::size_t mostBytesOfMesh = std::size_t{1} << 30U;

    /// Puts a mesh on the list of those to be reduced, unless it is there or done.
    void want(MeshRecord& mesh);
    /// Takes a mesh from the list, and forgets how far it was.
    void release(MeshRecord& mesh);
    /// Goes on with the work until `isTimeOver`, which is asked about every millisecond. The lists of the meshes must
    /// be those that their shapes describe; a mesh that is pending is left for later.
    void proceed(const std::function<bool()>& isTimeOver);

    /// Whether there are meshes to be copied, or to be reduced by the thread.
    [[nodiscard]] bool isBusy() const noexcept { return !m_wanted.empty() || !m_given.empty(); }
    /// Whether `proceed` can only wait for the thread now.
    [[nodiscard]] bool isWaiting() const noexcept { return m_wanted.empty() || !hasRoom(); }
    /// What the copies take in memory now.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_waitingBytes; }

private:
    /// A mesh that is being copied.
    struct Copying {
        MeshRecord* mesh = nullptr;
        MeshCopy copy;
        std::size_t positions = 0; // copied so far
        std::size_t primitives = 0;
    };
    struct Given {
        MeshRecord* mesh;
        std::shared_ptr<ReductionJob> job;
        std::size_t bytes;
    };

    [[nodiscard]] bool hasRoom() const noexcept { return m_waitingBytes < mostWaitingBytes; }
    void takeResults();
    void copyMeshes(const std::function<bool()>& isTimeOver);
    void start(MeshRecord& mesh);
    /// False when the mesh is copied.
    bool copySome();
    void give();

    std::deque<MeshRecord*> m_wanted;
    Copying m_copying;
    std::vector<Given> m_given;
    std::size_t m_waitingBytes = 0;
    ReductionThread m_thread; // last: its jobs end before the rest goes
};

} // namespace meridane
