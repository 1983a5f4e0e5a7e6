#include "meridane/gl/painting/detail/ItemPainter.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/detail/ItemVariant.h"
#include "meridane/gl/painting/detail/NumberColor.h"
#include "meridane/gl/places/detail/DetailLevel.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace meridane {
namespace {

/// The axes transformed by a matrix.
std::array<VbVec3f, 3> rowsOf(const Matrix4d& m) noexcept
{
    std::array<VbVec3f, 3> rows;
    for (std::size_t row = 0; row < 3; ++row)
        rows[row] = narrowed(VbVec3d(m[row][0], m[row][1], m[row][2]));
    return rows;
}

/// The matrix that transforms normals. Their direction is right for any scale, and finite for singular matrices.
std::array<float, 9> normalMatrixOf(const Matrix4d& m) noexcept
{
    const std::array<VbVec3f, 3> rows = rowsOf(m);
    std::array<float, 9> result{};
    for (std::size_t row = 0; row < 3; ++row) {
        const VbVec3f cofactors = cross(rows[(row + 1) % 3], rows[(row + 2) % 3]);
        std::copy_n(cofactors.getValue(), 3, result.begin() + static_cast<std::ptrdiff_t>(3 * row));
    }
    return result;
}

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
{
}

ItemPainter::~ItemPainter()
{
    m_gl.DeleteBuffers(1, &m_lightBuffer);
}

void ItemPainter::forget()
{
    m_meshes.forget();
    m_textures.forget();
    for (SurfaceProgram& program : m_programs) {
        program.program.forget();
        program = SurfaceProgram();
    }
    m_lightBuffer = 0;
    m_hasLights = false;
}

void ItemPainter::prepare(PlacedScene& scene, const PictureFrame& frame, const NxDrawingStyle& style,
    const NxImageLoader& loader, NxDrawingCounts& counts)
{
    m_frame = frame;
    m_pointSize = style.pointSize * frame.scale;
    if (m_lightBuffer != 0)
        m_gl.BindBufferBase(GL_UNIFORM_BUFFER, lightsBinding, m_lightBuffer);
    setStyle(style);
    m_boxesOfAll = style.boundingBoxes;
    m_boxColor = style.boundingBoxColor;
    m_found.clear();
    scene.tree().find(Frustum(frame.eyeToClip, frame.position), m_found);
    for (const Id id : m_found) {
        const Item& item = scene.table().item(id);
        const Look& look = scene.looks()[item.look];
        if (isBox(look))
            continue;
        m_meshes.request(*item.mesh, cellsOf(scene, id));
        for (TextureRecord* texture : look.textures) {
            if (texture != nullptr)
                m_textures.update(*texture, loader, scene.problems(), counts);
        }
    }
    m_meshes.upload(counts);
    m_textures.clean();
    sort(scene, m_found);
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
    if (std::exchange(m_headLight, style.headLight) != style.headLight)
        m_hasLights = false;
    m_section = m_frame.sectionFor(style.section.normal, style.section.position);
}

void ItemPainter::sort(PlacedScene& scene, const std::vector<Id>& found)
{
    constexpr unsigned int variantShift = 56;
    constexpr unsigned int pageShift = 32;
    m_opaque.clear();
    m_translucent.clear();
    m_boxes.clear();
    for (const Id id : found) {
        const Item& item = scene.table().item(id);
        const Look& look = scene.looks()[item.look];
        if (isBox(look)) {
            m_boxes.push_back(id);
            continue;
        }
        const MeshRange range = item.mesh->rangeOf(cellsOf(scene, id));
        if (range.page == noId)
            continue;
        const SurfaceVariant variant = variantOf(item.mesh->shape, look, m_shading);
        const std::uint64_t order
            = std::uint64_t{variant.number()} << variantShift | std::uint64_t{range.page} << pageShift | item.look;
        if (showsMaterials() && isTranslucent(item.mesh->shape, look, variant))
            m_translucent.push_back({id, order, depthOf(scene, item), variant, range});
        else
            m_opaque.push_back({id, order, 0, variant, range});
    }
    std::sort(m_opaque.begin(), m_opaque.end(),
        [](const Drawn& a, const Drawn& b) { return std::tie(a.order, a.item) < std::tie(b.order, b.item); });
    std::sort(m_translucent.begin(), m_translucent.end(), [](const Drawn& a, const Drawn& b) {
        return std::tie(b.depth, a.order, a.item) < std::tie(a.depth, b.order, b.item);
    });
}

std::uint32_t ItemPainter::cellsOf(PlacedScene& scene, Id id) const
{
    const Item& item = scene.table().item(id);
    const ComplexityRecord* const complexity = scene.looks()[item.look].complexity;
    return complexity == nullptr
        ? 0
        : detailCells(complexity->values, item.mesh->shape, scene.boundsOf(item, m_frame.position), m_frame);
}

double ItemPainter::depthOf(const PlacedScene& scene, const Item& item) const
{
    return m_frame.depthOf(transformPoint(item.mesh->shape.bounds.center(), scene.table().worldTransformOf(item)));
}

void ItemPainter::drawOpaque(PlacedScene& scene, NxDrawingCounts& counts)
{
    GLStateScope culling(m_gl);
    State state;
    for (const Drawn& drawn : m_opaque) {
        cull(scene, drawn, state, culling);
        draw(scene, drawn, state, counts);
    }
}

void ItemPainter::drawTranslucent(PlacedScene& scene, NxDrawingCounts& counts)
{
    if (m_translucent.empty())
        return;
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
        setLights(scene, look.lights.get());
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

void ItemPainter::cull(const PlacedScene& scene, const Drawn& drawn, State& state, GLStateScope& culling)
{
    const Item& item = scene.table().item(drawn.item);
    const bool isSame = state.variant == drawn.variant.number() && state.look == item.look;
    if (isSame && state.front == GL_NONE)
        return;
    GLenum front = GL_NONE;
    if (item.mesh->shape.primitive == NxMesh::TRIANGLES && isSingleSided(scene.looks()[item.look]))
        front = determinant(scene.table().worldTransformOf(item)) < 0 ? GLenum{GL_CW} : GLenum{GL_CCW};
    if (state.front == front)
        return;
    state.front = front;
    culling.setEnabled(GL_CULL_FACE, front != GL_NONE);
    if (front != GL_NONE)
        culling.setFrontFace(front);
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

void ItemPainter::setLights(const PlacedScene& scene, const LightList* lights)
{
    if (m_hasLights && m_lights == lights && m_lighting == scene.lighting() && m_lightingEye == m_frame.position)
        return;
    m_hasLights = true;
    m_lights = lights;
    m_lighting = scene.lighting();
    m_lightingEye = m_frame.position;
    LightsBlock block;
    std::size_t count = 0;
    for (const LightList* list = lights; list != nullptr; list = list->above())
        block.lights[count++] = lightValues(
            list->light().light(), scene.table().worldTransforms[list->worldTransform()], m_frame.position);
    if (lights == nullptr || (m_headLight && count < block.lights.size()))
        block.lights[count++] = cameraLightValues();
    block.count = static_cast<float>(count);
    if (m_lightBuffer == 0)
        m_gl.GenBuffers(1, &m_lightBuffer);
    m_gl.BindBufferBase(GL_UNIFORM_BUFFER, lightsBinding, m_lightBuffer);
    m_gl.BufferData(GL_UNIFORM_BUFFER, sizeof(block), nullptr, GL_DYNAMIC_DRAW);
    const std::size_t usedBytes = offsetof(LightsBlock, lights) + count * sizeof(LightValues);
    m_gl.BufferSubData(GL_UNIFORM_BUFFER, 0, static_cast<GLsizeiptr>(usedBytes), &block);
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
    Id page = noId;
    std::uint32_t number = 0;
    for (const Id id : items) {
        ++number;
        const Item& item = scene.table().item(id);
        const MeshRange range = item.mesh->rangeOf(cellsOf(scene, id));
        if (range.page == noId)
            continue;
        if (page != range.page) {
            page = range.page;
            m_meshes.bind(page);
        }
        place(scene, item, uniforms);
        if (uniforms.number >= 0)
            m_gl.Uniform4fv(uniforms.number, 1, colorOfNumber(number).data());
        issue(*item.mesh, range, counts);
    }
}

std::size_t ItemPainter::bytes() const noexcept
{
    return (m_opaque.capacity() + m_translucent.capacity()) * sizeof(Drawn)
        + (m_boxes.capacity() + m_found.capacity()) * sizeof(Id);
}

} // namespace meridane
