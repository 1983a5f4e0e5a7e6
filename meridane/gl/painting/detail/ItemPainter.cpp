#include "meridane/gl/painting/detail/ItemPainter.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/detail/ItemVariant.h"
#include "meridane/gl/painting/detail/NumberColor.h"
#include "meridane/gl/places/detail/DetailLevel.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <tuple>
#include <utility>

namespace meridane {
namespace {

GLenum primitiveOf(const MeshRecord& mesh)
{
    switch (mesh.shape.primitive) {
    case NxMesh::LINES:
        return GL_LINES;
    case NxMesh::POINTS:
        return GL_POINTS;
    default:
        return GL_TRIANGLES;
    }
}

} // namespace

ItemPainter::ItemPainter(const NxGLFunctions& gl, GLErrors& errors)
    : m_gl(gl)
    , m_meshes(gl, errors)
    , m_textures(gl, errors)
    , m_lights(gl)
    , m_frustum(m_frame.eyeToClip)
{
}

ItemPainter::~ItemPainter() = default;

void ItemPainter::forget()
{
    m_meshes.forget();
    m_textures.forget();
    for (SurfaceProgram& program : m_programs) {
        program.program.forget();
        program = SurfaceProgram();
    }
    m_lights.forget();
}

void ItemPainter::prepare(PlacedScene& scene, const PictureFrame& frame, const NxDrawingStyle& style,
    const NxImageLoader& loader, float error, NxDrawingCounts& counts)
{
    m_frame = frame;
    m_error = error;
    m_pointSize = style.pointSize * frame.scale;
    m_lights.start(style.headLight, frame.position);
    setStyle(style);
    m_boxesOfAll = style.boundingBoxes;
    m_boxColor = style.boundingBoxColor;
    m_showsInsides = style.section.isOn || style.surfaces != NxDrawingStyle::SOLID;
    m_found.clear();
    counts.fullCorners = 0;
    m_frustum = Frustum(frame.eyeToClip, frame.position);
    scene.tree().find(m_frustum, m_found);
    m_details.assign(m_found.size(), fullDetail);
    for (std::size_t i = 0; i < m_found.size(); ++i) {
        const Item& item = scene.table().item(m_found[i]);
        const Look& look = scene.looks()[item.look];
        if (isBox(look))
            continue;
        counts.fullCorners += item.mesh->shape.cornerCount;
        m_details[i] = detailOf(scene, m_found[i]);
        m_meshes.request(*item.mesh, m_details[i]);
        for (TextureRecord* texture : look.textures) {
            if (texture != nullptr)
                m_textures.update(*texture, loader, scene.problems(), counts);
        }
    }
    const auto before = std::chrono::steady_clock::now();
    m_meshes.upload(counts);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - before;
    counts.uploadMilliseconds = taken.count();
    m_textures.clean();
    sort(scene);
    counts.drawnCorners = 0;
    counts.drawnTriangles = 0;
    counts.drawnItems = m_found.size();
    counts.culledItems = scene.tree().count() - m_found.size();
}

void ItemPainter::setStyle(const NxDrawingStyle& style)
{
    const bool isShadingNew = std::exchange(m_shading, style.shading) != style.shading;
    if (std::exchange(m_hasSection, style.section.isOn) != style.section.isOn || isShadingNew) {
        for (SurfaceProgram& program : m_programs)
            program = SurfaceProgram();
    }
    m_section = m_frame.sectionFor(style.section.normal, style.section.position);
}

void ItemPainter::sort(PlacedScene& scene)
{
    constexpr unsigned int variantShift = 56;
    constexpr unsigned int pageShift = 32;
    m_opaque.clear();
    m_translucent.clear();
    m_boxes.clear();
    for (std::size_t i = 0; i < m_found.size(); ++i) {
        const Id id = m_found[i];
        const Item& item = scene.table().item(id);
        const Look& look = scene.looks()[item.look];
        if (isBox(look)) {
            m_boxes.push_back(id);
            continue;
        }
        const MeshRange range = item.mesh->rangeOf(m_details[i]);
        if (range.page == noId)
            continue;
        const SurfaceVariant variant = variantOf(item.mesh->shape, look, m_shading);
        const bool isSeenThrough = showsMaterials() && isTranslucent(item.mesh->shape, look, variant);
        // Without a GPU, a pixel that isn't seen in the end costs far more than another page.
        const bool isByDepth = m_error > 0 && !isSeenThrough;
        const std::uint64_t order = std::uint64_t{variant.number()} << variantShift
            | std::uint64_t{isByDepth ? 0 : range.page} << pageShift | item.look;
        const double depth = isByDepth || isSeenThrough ? depthOf(scene, item) : 0;
        (isSeenThrough ? m_translucent : m_opaque)
            .push_back({id, order, depth, variant, range, frontOf(scene, id, m_details[i])});
    }
    std::sort(m_opaque.begin(), m_opaque.end(), [](const Drawn& a, const Drawn& b) {
        return std::tie(a.order, a.depth, a.item) < std::tie(b.order, b.depth, b.item);
    });
    std::sort(m_translucent.begin(), m_translucent.end(), [](const Drawn& a, const Drawn& b) {
        return std::tie(b.depth, a.order, a.item) < std::tie(a.depth, b.order, b.item);
    });
}

GLenum ItemPainter::frontOf(PlacedScene& scene, Id id, MeshDetail detail) const
{
    const Item& item = scene.table().item(id);
    if (item.mesh->shape.primitive != NxMesh::TRIANGLES)
        return GL_NONE;
    const Look& look = scene.looks()[item.look];
    HiddenSides hidden = isSingleSided(look) ? HiddenSides::Back : HiddenSides::None;
    const bool hidesInside = !m_showsInsides && !(materialOf(look).alphaCutoff > 0);
    if (hidden == HiddenSides::None && (detail & reducedBit) != 0 && hidesInside
        && m_frustum.isAllInFront(scene.tree().boundsOf(id)))
        hidden = item.mesh->reduction->levels[detail & ~reducedBit].hiddenSides;
    if (hidden == HiddenSides::None)
        return GL_NONE;
    const bool isMirrored = determinant(scene.table().worldTransformOf(item)) < 0;
    return isMirrored == (hidden == HiddenSides::Back) ? GL_CW : GL_CCW;
}

MeshDetail ItemPainter::detailOf(PlacedScene& scene, Id id) const
{
    const Item& item = scene.table().item(id);
    const ComplexityRecord* const complexity = scene.looks()[item.look].complexity;
    if (complexity == nullptr && !(m_error > 0))
        return fullDetail;
    const NxBounds bounds = scene.boundsOf(item, m_frame.position);
    MeshDetail detail = fullDetail;
    if (complexity != nullptr)
        detail = detailCells(complexity->values, item.mesh->shape, bounds, m_frame);
    if (detail == fullDetail && m_error > 0)
        detail = detailWithin(m_error, *item.mesh, scene.table().worldTransformOf(item), bounds, m_frame);
    return detail;
}

void ItemPainter::wantReduced(PlacedScene& scene)
{
    for (const Id id : m_found) {
        if (const Item& item = scene.table().item(id); !isBox(scene.looks()[item.look]))
            m_meshes.wantReduced(*item.mesh);
    }
}

double ItemPainter::depthOf(const PlacedScene& scene, const Item& item) const
{
    return m_frame.depthOf(transformPoint(item.mesh->shape.bounds.center(), scene.table().worldTransformOf(item)));
}

bool ItemPainter::drawOpaque(PlacedScene& scene, DrawingProgress& progress, NxDrawingCounts& counts)
{
    m_lights.bind();
    GLStateScope culling(m_gl);
    State state;
    while (progress.item < m_opaque.size()) {
        if (progress.cornersLeft == 0)
            return false;
        Drawn drawn = m_opaque[progress.item];
        drawn.range = progress.take(drawn.range);
        if (state.front != drawn.front) {
            state.front = drawn.front;
            culling.setEnabled(GL_CULL_FACE, drawn.front != GL_NONE);
            if (drawn.front != GL_NONE)
                culling.setFrontFace(drawn.front);
        }
        draw(scene, drawn, state, counts);
    }
    return true;
}

void ItemPainter::drawTranslucent(PlacedScene& scene, NxDrawingCounts& counts)
{
    if (m_translucent.empty())
        return;
    m_lights.bind();
    GLStateScope blending(m_gl);
    blending.blend();
    blending.setDepthWrites(false);
    State state;
    for (const Drawn& drawn : m_translucent) {
        const Item& item = scene.table().item(drawn.item);
        if (item.mesh->shape.primitive != NxMesh::TRIANGLES) {
            draw(scene, drawn, state, counts);
            continue;
        }
        // On every convex body, surfaces that face away are behind those that face the eye.
        blending.setEnabled(GL_CULL_FACE);
        blending.setFrontFace(determinant(scene.table().worldTransformOf(item)) < 0 ? GL_CW : GL_CCW);
        for (const int hidden : {GL_FRONT, GL_BACK}) {
            if (hidden == GL_FRONT && isSingleSided(scene.looks()[item.look]))
                continue;
            blending.setCulledFace(static_cast<GLenum>(hidden));
            draw(scene, drawn, state, counts);
        }
        blending.setEnabled(GL_CULL_FACE, false);
    }
}

void ItemPainter::draw(PlacedScene& scene, const Drawn& drawn, State& state, NxDrawingCounts& counts)
{
    const Item& item = scene.table().item(drawn.item);
    const Look& look = scene.looks()[item.look];
    const unsigned int number = drawn.variant.number();
    if (state.variant != number) {
        setVariant(drawn.variant);
        const GLenum front = state.front;
        state = State();
        state.variant = number;
        state.front = front;
    }
    const SurfaceProgram& program = m_programs[number];
    if (!program.program.isUsable())
        return;
    if (state.look != item.look) {
        state.look = item.look;
        setLook(look, drawn.variant);
        m_lights.set(scene, look.lights.get());
    }
    if (state.page != drawn.range.page) {
        state.page = drawn.range.page;
        m_meshes.bind(state.page);
    }
    if (item.mesh->shape.colors == MeshShape::Colors::One) {
        const VbVec4f& color = item.mesh->shape.oneColor;
        m_gl.VertexAttrib4f(static_cast<GLuint>(Attribute::Color), color[0], color[1], color[2], color[3]);
    }
    const Id worldTransform = scene.table().place(item.place).worldTransform;
    const VbVec3f& origin = item.mesh->shape.origin;
    if (state.worldTransform != worldTransform || !(state.origin == origin)) {
        state.worldTransform = worldTransform;
        state.origin = origin;
        place(scene, item, {program.origin, program.modelMatrix});
        if (program.normalMatrix >= 0)
            m_gl.UniformMatrix3fv(
                program.normalMatrix, 1, GL_FALSE, normalMatrixOf(scene.table().worldTransformOf(item)).data());
    }
    issue(*item.mesh, drawn.range, counts);
}

void ItemPainter::setVariant(SurfaceVariant variant)
{
    SurfaceProgram& program = m_programs[variant.number()];
    if (!program.program.isMade())
        program = makeSurfaceProgram(m_gl, variant, colorsOf(m_shading), m_hasSection);
    if (!program.program.isUsable())
        return;
    program.program.use();
    m_gl.UniformMatrix4fv(program.eyeToClip, 1, GL_FALSE, m_frame.eyeToClip[0].data());
    m_gl.Uniform4fv(program.eye, 1, m_frame.eye.data());
    m_gl.Uniform1f(program.pointSize, m_pointSize);
    if (m_hasSection)
        m_gl.Uniform4fv(program.section, 1, m_section.data());
}

void ItemPainter::setLook(const Look& look, SurfaceVariant variant)
{
    m_gl.Uniform4fv(m_programs[variant.number()].material, 5, asFloats(materialOf(look)).data());
    if (!showsMaterials())
        return;
    const std::array<bool, NxTexture::roleCount> isShown{
        variant.isTextured, variant.hasNormalMap, variant.hasSurfaceMap};
    for (unsigned int role = 0; role < isShown.size(); ++role) {
        if (isShown[role])
            m_textures.bind(*look.textures[role], textureQuality(look), role);
    }
}

void ItemPainter::place(const PlacedScene& scene, const Item& item, const ModelUniforms& uniforms) const
{
    const VbVec3f& origin = item.mesh->shape.origin;
    const VbMatrix modelMatrix = narrowed(relativeTo(m_frame.position, origin, scene.table().worldTransformOf(item)));
    m_gl.Uniform3fv(uniforms.origin, 1, origin.getValue());
    m_gl.UniformMatrix4fv(uniforms.modelMatrix, 1, GL_FALSE, modelMatrix[0].data());
}

void ItemPainter::issue(const MeshRecord& mesh, const MeshRange& range, NxDrawingCounts& counts) const
{
    const GLenum primitive = primitiveOf(mesh);
    const std::uint64_t corners = range.indexCount != 0 ? range.indexCount : range.vertexCount;
    counts.drawnCorners += corners;
    if (primitive == GL_TRIANGLES)
        counts.drawnTriangles += corners / 3;
    if (range.indexCount != 0) {
        const auto* const start = reinterpret_cast<const void*>(range.firstIndex * sizeof(std::uint32_t));
        m_gl.DrawElementsBaseVertex(primitive, static_cast<GLsizei>(range.indexCount), GL_UNSIGNED_INT, start,
            static_cast<GLint>(range.firstVertex));
    } else if (!mesh.shape.hasIndices) {
        m_gl.DrawArrays(primitive, static_cast<GLint>(range.firstVertex), static_cast<GLsizei>(range.vertexCount));
    }
    ++counts.drawCalls;
}

void ItemPainter::addBoxes(PlacedScene& scene, LinePainter& lines) const
{
    for (const Id id : m_boxes) {
        const Item& item = scene.table().item(id);
        const MaterialValues& material = materialOf(scene.looks()[item.look]);
        lines.addBox(item.mesh->shape.bounds,
            relativeTo(m_frame.position, VbVec3d(), scene.table().worldTransformOf(item)),
            VbColorRGBA(material.diffuse[0], material.diffuse[1], material.diffuse[2], 1));
    }
    if (!m_boxesOfAll)
        return;
    for (const Id id : m_found)
        lines.addBox(scene.boundsOf(scene.table().item(id), m_frame.position), Matrix4d(),
            VbColorRGBA(m_boxColor[0], m_boxColor[1], m_boxColor[2], 1));
}

void ItemPainter::drawShapes(
    PlacedScene& scene, std::span<const Id> items, const ModelUniforms& uniforms, NxDrawingCounts& counts)
{
    DrawingProgress progress;
    static_cast<void>(drawShapes(scene, items, uniforms, progress, counts));
}

bool ItemPainter::drawShapes(PlacedScene& scene, std::span<const Id> items, const ModelUniforms& uniforms,
    DrawingProgress& progress, NxDrawingCounts& counts)
{
    Id page = noId;
    while (progress.item < items.size()) {
        if (progress.cornersLeft == 0)
            return false;
        const Id id = items[progress.item];
        const Item& item = scene.table().item(id);
        const MeshRange range = item.mesh->rangeOf(detailOf(scene, id));
        if (range.page == noId) {
            ++progress.item;
            continue;
        }
        if (page != range.page) {
            page = range.page;
            m_meshes.bind(page);
        }
        place(scene, item, uniforms);
        if (uniforms.number >= 0)
            m_gl.Uniform4fv(uniforms.number, 1, colorOfNumber(static_cast<std::uint32_t>(progress.item) + 1).data());
        issue(*item.mesh, progress.take(range), counts);
    }
    return true;
}

std::size_t ItemPainter::bytes() const noexcept
{
    return (m_opaque.capacity() + m_translucent.capacity()) * sizeof(Drawn)
        + (m_boxes.capacity() + m_found.capacity()) * sizeof(Id) + m_details.capacity() * sizeof(MeshDetail);
}

} // namespace meridane
