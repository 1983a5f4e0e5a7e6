#pragma once

#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/detail/GLErrors.h"
#include "meridane/gl/gpu/detail/MeshLevels.h"
#include "meridane/gl/gpu/detail/MeshSimplification.h"
#include "meridane/gl/gpu/detail/RangeList.h"
#include "meridane/gl/gpu/detail/SurfaceShaders.h"
#include "meridane/gl/places/detail/MeshRecord.h"
#include "meridane/gl/places/detail/SlotTable.h"

#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace meridane {

/// The GPU buffers of the meshes. Meshes with the same kinds of lists share buffers, so that many small meshes are
/// drawn without a change of state; a buffer is just large enough for the meshes that are uploaded together.
class MeshStore {
public:
    MeshStore(const NxGLFunctions& gl, GLErrors& errors)
        : m_gl(gl)
        , m_errors(errors)
    {
    }
    MeshStore(const MeshStore&) = delete;
    MeshStore& operator=(const MeshStore&) = delete;
    /// The context must be current, or `forget` have been called.
    ~MeshStore();

    /// Requests the upload of a mesh with that detail. Its shape must match its lists; a mesh that is pending, because
    /// it changed after the update of the scene, waits for the next picture. With a reduced mesh, those that are still
    /// coarser are requested too.
    void request(MeshRecord& mesh, MeshDetail detail);
    /// Has a mesh reduced, so that its reduced meshes can be requested later. Drops those of an older state of it.
    void wantReduced(MeshRecord& mesh);
    [[nodiscard]] MeshLevels& levels() noexcept { return m_levels; }
    [[nodiscard]] const MeshLevels& levels() const noexcept { return m_levels; }
    /// Uploads the requested meshes.
    void upload(NxDrawingCounts& counts);
    /// Frees the ranges of a mesh. Needs no context.
    void release(MeshRecord& mesh);
    /// Binds the vertex array of a page.
    void bind(Id page) const { m_gl.BindVertexArray(m_pages[page].vertexArray); }
    /// To be called when the context is lost. All meshes must be released before.
    void forget();

    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

private:
    struct Page {
        unsigned int layout = 0;
        unsigned int vertexArray = 0;
        std::array<unsigned int, MeshRecord::lists> buffers{};
        RangeList vertices;
        RangeList indices;
        std::size_t meshes = 0;
        std::size_t bytes = 0;
    };
    /// A mesh to be uploaded.
    struct Transfer {
        MeshRecord* mesh = nullptr;
        MeshDetail detail = fullDetail;
        std::shared_ptr<const SimplifiedMesh> simplified; // null for full detail
        unsigned int layout = 0;
        std::uint32_t vertexCount = 0;
        std::uint32_t indexCount = 0;
    };

    [[nodiscard]] static Transfer describe(MeshRecord& mesh, MeshDetail detail);
    [[nodiscard]] static std::span<const std::byte> bytesOf(const Transfer& transfer, std::size_t list);
    static void withdraw(MeshRecord& mesh, MeshDetail detail);
    void releaseRange(MeshRange& range);
    void releaseLevels(MeshRecord& mesh);
    void dropOldLevels(MeshRecord& mesh);
    [[nodiscard]] bool fitsInRange(const Transfer& transfer) const;
    bool findRange(const Transfer& transfer);
    bool takeRange(const Transfer& transfer, Id page);
    Id makePage(std::span<const Transfer> transfers, std::size_t first);
    void send(const Transfer& transfer, NxDrawingCounts& counts);
    void sendList(
        const Transfer& transfer, std::size_t list, std::span<const std::byte> bytes, NxDrawingCounts& counts);
    void deletePage(Page& page);
    void deleteEmptyPages();

    const NxGLFunctions& m_gl;
    GLErrors& m_errors;
    MeshLevels m_levels;
    std::vector<std::pair<MeshRecord*, MeshDetail>> m_requests;
    SlotTable<Page> m_pages;
    std::vector<Id> m_pageIds;
    std::size_t m_bytes = 0;
};

} // namespace meridane
