#pragma once

#include "meridane/gl/geometry/detail/Frustum.h"
#include "meridane/gl/geometry/detail/PictureFrame.h"
#include "meridane/gl/gpu/detail/MeshStore.h"
#include "meridane/gl/gpu/detail/SurfaceShaders.h"
#include "meridane/gl/gpu/detail/TextureStore.h"
#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/gl/painting/detail/DrawingProgress.h"
#include "meridane/gl/painting/detail/ItemVariant.h"
#include "meridane/gl/painting/detail/LightBuffer.h"
#include "meridane/gl/painting/detail/LinePainter.h"
#include "meridane/gl/places/detail/PlacedScene.h"

#include <array>
#include <vector>

namespace meridane {

class GLStateScope;

/// Draws the items of a scene that are in view: first opaque ones in batches of the same state, then translucent ones
/// from back to front.
class ItemPainter {
public:
    ItemPainter(const NxGLFunctions& gl, GLErrors& errors);
    ItemPainter(const ItemPainter&) = delete;
    ItemPainter& operator=(const ItemPainter&) = delete;
    /// The context must be current, or `forget` have been called.
    ~ItemPainter();

    /// Finds the items in view, and uploads those of their meshes and textures that the GPU doesn't have. Meshes are
    /// reduced where that moves nothing by more than `error` pixels, and where their reduced meshes are there already.
    void prepare(PlacedScene& scene, const PictureFrame& frame, const NxDrawingStyle& style,
        const NxImageLoader& loader, float error, NxDrawingCounts& counts);
    /// Has the meshes reduced that are in view, after `prepare`.
    void wantReduced(PlacedScene& scene);
    /// Draws the opaque items, or some of them. Returns whether all are drawn.
    bool drawOpaque(PlacedScene& scene, DrawingProgress& progress, NxDrawingCounts& counts);
    void drawTranslucent(PlacedScene& scene, NxDrawingCounts& counts);
    /// Adds the boxes of items that are drawn as boxes, or of all items if the style says so.
    void addBoxes(PlacedScene& scene, LinePainter& lines) const;
    /// The locations of the variables that position a mesh: see `SurfaceProgram`.
    struct ModelUniforms {
        int origin;
        int modelMatrix;
        int number = -1; ///< gets the place of the item in the list, from 1 on, as a colour of four bytes
    };
    /// The items in view, after `prepare`.
    [[nodiscard]] const std::vector<Id>& found() const noexcept { return m_found; }
    /// Draws the shapes of some items, in view or not, with the bound program.
    void drawShapes(
        PlacedScene& scene, std::span<const Id> items, const ModelUniforms& uniforms, NxDrawingCounts& counts);
    /// The same, or a part of it. Returns whether all are drawn.
    bool drawShapes(PlacedScene& scene, std::span<const Id> items, const ModelUniforms& uniforms,
        DrawingProgress& progress, NxDrawingCounts& counts);

    [[nodiscard]] MeshStore& meshes() noexcept { return m_meshes; }
    [[nodiscard]] const MeshStore& meshes() const noexcept { return m_meshes; }
    [[nodiscard]] TextureStore& textures() noexcept { return m_textures; }
    [[nodiscard]] std::size_t bytes() const noexcept;
    /// To be called when the context is lost.
    void forget();

private:
    /// An item in view.
    struct Drawn {
        Id item;
        std::uint64_t order; ///< the batch: equal numbers need no change of state between them
        double depth;
        SurfaceVariant variant;
        MeshRange range;
        GLenum front; ///< the order of the corners of triangles that are drawn; none if all are
    };
    /// The present state of the context while items are drawn.
    struct State {
        unsigned int variant = SurfaceVariant::count;
        Id page = noId;
        Id look = noId;
        Id worldTransform = noId;
        VbVec3f origin;
        GLenum front = GL_NONE; ///< see `Drawn::front`
    };

    void setStyle(const NxDrawingStyle& style);
    [[nodiscard]] bool showsMaterials() const noexcept { return colorsOf(m_shading) == SurfaceColors::Material; }
    void sort(PlacedScene& scene);
    /// The value of `Drawn::front`.
    [[nodiscard]] GLenum frontOf(PlacedScene& scene, Id id, MeshDetail detail) const;
    [[nodiscard]] MeshDetail detailOf(PlacedScene& scene, Id id) const;
    [[nodiscard]] double depthOf(const PlacedScene& scene, const Item& item) const;
    void draw(PlacedScene& scene, const Drawn& drawn, State& state, NxDrawingCounts& counts);
    void setVariant(SurfaceVariant variant);
    void setLook(const Look& look, SurfaceVariant variant);
    void place(const PlacedScene& scene, const Item& item, const ModelUniforms& uniforms) const;
    void issue(const MeshRecord& mesh, const MeshRange& range, NxDrawingCounts& counts) const;

    const NxGLFunctions& m_gl;
    MeshStore m_meshes;
    TextureStore m_textures;
    std::array<SurfaceProgram, SurfaceVariant::count> m_programs;
    LightBuffer m_lights;

    PictureFrame m_frame;
    float m_error = 0; // in pixels
    float m_pointSize = 1;
    bool m_showsInsides = false; // of closed surfaces
    NxDrawingStyle::Shading m_shading = NxDrawingStyle::SHADED; // of the programs
    bool m_hasSection = false; // the programs have
    std::array<float, 4> m_section{};
    bool m_boxesOfAll = false;
    VbColor m_boxColor;
    std::vector<Drawn> m_opaque;
    std::vector<Drawn> m_translucent;
    std::vector<Id> m_boxes;
    std::vector<Id> m_found;
    std::vector<MeshDetail> m_details; // of those
    Frustum m_frustum;
};

} // namespace meridane
