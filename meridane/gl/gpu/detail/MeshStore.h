#pragma once

#include "meridane/gl/gpu/NxDrawingCounts.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/detail/GLErrors.h"
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

/// The buffers of the meshes on the card. Meshes with the same lists share buffers, so that drawing many small meshes
/// needs no change from one to the next; a buffer is made just large enough for the meshes that are uploaded together.
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

    /// Asks for a mesh to be on the GPU as it is now, with that much detail (see `simplified`), 0 for all. Its shape
    /// must be that of its lists; a mesh that is pending, since it changed after the scene was updated, waits for the
    /// next picture.
    void request(MeshRecord& mesh, std::uint32_t cells);
    /// Uploads what was asked for.
    void upload(NxDrawingCounts& counts);
    /// Gives up the place of a mesh. Needs no context.
    void release(MeshRecord& mesh);
    /// Lets the vertices of a page be drawn.
    void bind(Id page) const { m_gl.BindVertexArray(m_pages[page].vertexArray); }
    /// The context is gone; all meshes must be released before.
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
    /// A mesh on its way to the card.
    struct Transfer {
        MeshRecord* mesh = nullptr;
        std::uint32_t cells = 0;
        std::shared_ptr<const SimplifiedMesh> simplified; // with less detail only
        unsigned int layout = 0;
        std::uint32_t vertexCount = 0;
        std::uint32_t indexCount = 0;
    };

    [[nodiscard]] static Transfer describe(MeshRecord& mesh, std::uint32_t cells);
    [[nodiscard]] static std::span<const std::byte> bytesOf(const Transfer& transfer, std::size_t list);
    static void withdraw(MeshRecord& mesh, std::uint32_t cells);
    void releaseRange(MeshRange& range);
    void releaseLevels(MeshRecord& mesh);
    [[nodiscard]] bool fitsInPlace(const Transfer& transfer) const;
    bool findPlace(const Transfer& transfer);
    bool takePlace(const Transfer& transfer, Id page);
    Id makePage(std::span<const Transfer> transfers, std::size_t first);
    void send(const Transfer& transfer, NxDrawingCounts& counts);
    void sendList(
        const Transfer& transfer, std::size_t list, std::span<const std::byte> bytes, NxDrawingCounts& counts);
    void deletePage(Page& page);
    void deleteEmptyPages();

    const NxGLFunctions& m_gl;
    GLErrors& m_errors;
    std::vector<std::pair<MeshRecord*, std::uint32_t>> m_requests;
    SlotTable<Page> m_pages;
    std::vector<Id> m_pageIds;
    std::size_t m_bytes = 0;
};

} // namespace meridane
