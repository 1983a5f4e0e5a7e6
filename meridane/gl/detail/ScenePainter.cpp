#include "meridane/gl/detail/ScenePainter.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace meridane {
namespace {

constexpr const char* backgroundSource = R"(
uniform vec3 bottom;
uniform vec3 top;
uniform float height;
out vec4 pictureColor;
void main()
{
    pictureColor = vec4(mix(bottom, top, gl_FragCoord.y / height), 1.0);
}
)";

} // namespace

ScenePainter::ScenePainter(const NxGLFunctions& functions)
    : gl(functions)
    , errors(functions)
    , painter(functions, errors)
    , lines(functions)
    , outline(functions)
    , seenItems(functions)
    , marks(functions)
    , wires(functions)
    , background(functions, "the background", backgroundSource)
    , scene({[this] { noteChange(); }, [this](MeshRecord& mesh) { painter.meshes().release(mesh); },
          [this](TextureRecord& texture) { painter.textures().release(texture); }})
{
}

void ScenePainter::noteChange()
{
    if (!std::exchange(isChangeReported, true) && changeHook)
        changeHook();
}

void ScenePainter::begin(const NxViewpoint& viewpoint, int width, int height, float scale, float error)
{
    isChangeReported = false;
    counts.drawCalls = 0;
    scene.update();
    const Ground ground(viewpoint, style);
    NxBounds shown = scene.tree().bounds();
    shown.include(ground.bounds());
    m_underWay.emplace(UnderWay{ground, PictureFrame(viewpoint, shown, width, height, scale), scene.revision(), {}});
    gl.Viewport(0, 0, width, height);
    gl.ActiveTexture(GL_TEXTURE0);
    GLStateScope picture(gl);
    picture.bindObjects();
    drawBackground(height);
    painter.prepare(scene, m_underWay->frame, style, loader, error, counts);
    m_foundRevision = scene.revision();
}

void ScenePainter::draw(const NxViewpoint& viewpoint, int width, int height, float scale, float error)
{
    begin(viewpoint, width, height, scale, error);
    // What changes from now on, because a report of a problem leads to it, is for the next picture.
    static_cast<void>(drawMore(std::numeric_limits<std::uint64_t>::max()));
}

NxPictureState ScenePainter::proceed(std::uint64_t corners)
{
    scene.update();
    if (!m_underWay || m_underWay->revision != scene.revision()) {
        m_underWay.reset();
        return NxPictureState::Outdated;
    }
    return drawMore(corners);
}

NxPictureState ScenePainter::drawMore(std::uint64_t corners)
{
    UnderWay& picture = *m_underWay;
    const PictureFrame& frame = picture.frame;
    picture.progress.cornersLeft = corners;
    gl.Viewport(0, 0, frame.width, frame.height);
    gl.ActiveTexture(GL_TEXTURE0);
    {
        GLStateScope state(gl);
        state.bindObjects();
        state.setEnabled(GL_PROGRAM_POINT_SIZE);
        state.setLineWidth(lineWidth(frame.scale));
        if (!picture.areSurfacesDrawn && !drawSurfaces(picture))
            return NxPictureState::Unfinished;
        if (!drawOutlines(picture))
            return NxPictureState::Unfinished;
        drawMarks(frame);
    }
    m_underWay.reset();
    ++counts.pictures;
    errors.report("Drawing the scene");
    return NxPictureState::Finished;
}

bool ScenePainter::drawSurfaces(UnderWay& picture)
{
    GLStateScope depth(gl);
    depth.setEnabled(GL_DEPTH_TEST);
    depth.setDepthFunction(GL_LEQUAL);
    {
        GLStateScope surfaces(gl);
        surfaces.setPolygonMode(style.surfaces == NxDrawingStyle::WIREFRAME ? GL_LINE : GL_FILL);
        surfaces.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
        if (!painter.drawOpaque(scene, picture.progress, counts))
            return false;
    }
    drawLinesAndTranslucent(picture);
    picture.areSurfacesDrawn = true;
    picture.progress.item = 0;
    return true;
}

void ScenePainter::drawLinesAndTranslucent(const UnderWay& picture)
{
    wires.draw(scene, painter, picture.frame, style, counts);
    {
        GLStateScope blending(gl);
        blending.blend();
        picture.ground.addLines(lines);
        painter.addBoxes(scene, lines);
        lines.draw(picture.frame.eyeToClip, counts);
    }
    GLStateScope surfaces(gl);
    surfaces.setPolygonMode(style.surfaces == NxDrawingStyle::WIREFRAME ? GL_LINE : GL_FILL);
    surfaces.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
    painter.drawTranslucent(scene, counts);
}

bool ScenePainter::drawOutlines(UnderWay& picture)
{
    NxDrawingStyle weaker = style;
    weaker.outlineWidth /= 2;
    weaker.outlineColor = style.otherOutlineColor;
    NxDrawingStyle hover = weaker;
    hover.outlineColor = style.hoverOutlineColor;
    const std::array<std::pair<OutlinedItems*, const NxDrawingStyle*>, 3> outlines{
        {{&otherSelected, &weaker}, {&hovered, &hover}, {&selected, &style}}};
    for (; picture.outline < outlines.size(); ++picture.outline) {
        const auto [items, itemStyle] = outlines[picture.outline];
        if (!outline.draw(scene, items->update(scene), painter, picture.frame, *itemStyle, picture.progress, counts))
            return false;
        picture.progress.item = 0;
        picture.progress.corner = 0;
    }
    return true;
}

// Limited to what the context supports.
float ScenePainter::lineWidth(float wanted) const
{
    int flags = 0;
    gl.GetIntegerv(GL_CONTEXT_FLAGS, &flags);
    if ((flags & GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT) != 0 || !(wanted > 1))
        return 1;
    std::array<float, 2> range{1, 1};
    gl.GetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, range.data());
    return std::clamp(wanted, range[0], range[1]);
}

void ScenePainter::drawBackground(int height)
{
    gl.Clear(GL_DEPTH_BUFFER_BIT);
    if (!background.use())
        return;
    gl.Uniform3fv(background.uniform("bottom"), 1, style.backgroundBottom.getValue());
    gl.Uniform3fv(background.uniform("top"), 1, style.backgroundTop.getValue());
    gl.Uniform1f(background.uniform("height"), static_cast<float>(height));
    background.draw();
}

void ScenePainter::drawMarks(const PictureFrame& frame)
{
    if (marks.isEmpty() || scene.root() == nullptr)
        return;
    Matrix4d worldTransform = localTransformOf(*scene.root());
    for (const NxRef<NxNode>& node : markedPath)
        worldTransform = multiply(localTransformOf(*node), worldTransform);
    marks.draw(worldTransform, frame, style, counts);
}

std::vector<std::vector<NxNode*>> ScenePainter::seenIn(
    const NxPixelRectangle& part, const NxViewpoint& viewpoint, int width, int height, float scale)
{
    m_underWay.reset();
    m_foundRevision.reset();
    scene.update();
    const PictureFrame frame(viewpoint, scene.tree().bounds(), width, height, scale);
    GLStateScope picture(gl);
    picture.bindObjects();
    gl.ActiveTexture(GL_TEXTURE0);
    painter.prepare(scene, frame, style, loader, 0, counts);
    std::vector<std::vector<NxNode*>> paths;
    for (const Id item : seenItems.find(scene, painter, frame, style, part, counts))
        paths.push_back(scene.pathOf(item));
    errors.report("Finding what is seen");
    return paths;
}

void ScenePainter::reduceMeshes(const std::function<bool()>& isTimeOver)
{
    scene.update();
    if (std::exchange(m_foundRevision, std::nullopt) == scene.revision())
        painter.wantReduced(scene);
    painter.meshes().levels().proceed(isTimeOver);
}

bool ScenePainter::isReducing() const
{
    return m_foundRevision.has_value() || painter.meshes().levels().isBusy();
}

bool ScenePainter::canReduceMore() const
{
    return m_foundRevision.has_value() || !painter.meshes().levels().isWaiting();
}

void ScenePainter::forget()
{
    m_underWay.reset();
    m_foundRevision.reset();
    scene.forEach<MeshRecord>(NodeKind::Mesh, [this](MeshRecord& mesh) { painter.meshes().release(mesh); });
    scene.forEach<TextureRecord>(NodeKind::Texture, [this](TextureRecord& texture) {
        painter.textures().release(texture);
        texture.isStale = true;
    });
    painter.forget();
    lines.forget();
    outline.forget();
    seenItems.forget();
    marks.forget();
    wires.forget();
    background.forget();
}

} // namespace meridane
