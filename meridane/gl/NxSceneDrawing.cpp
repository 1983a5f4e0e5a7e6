#include "meridane/gl/NxSceneDrawing.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/detail/Ground.h"
#include "meridane/gl/painting/detail/ItemPainter.h"
#include "meridane/gl/painting/detail/LinePainter.h"
#include "meridane/gl/painting/detail/MarkPainter.h"
#include "meridane/gl/painting/detail/OutlinePainter.h"
#include "meridane/gl/painting/detail/ScreenPass.h"
#include "meridane/gl/painting/detail/SeenItems.h"
#include "meridane/gl/painting/detail/WirePainter.h"
#include "meridane/gl/places/detail/OutlinedItems.h"
#include "meridane/gl/places/detail/PlacedScene.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace meridane;

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

class NxSceneDrawing::Private {
public:
    explicit Private(const NxGLFunctions& functions)
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

    void noteChange()
    {
        if (!std::exchange(isChangeReported, true) && changeHook)
            changeHook();
    }
    void drawOutlines(const PictureFrame& frame);
    [[nodiscard]] float lineWidth(float wanted) const;
    void drawBackground(int height);
    void drawMeshesAndLines(const Ground& ground, const PictureFrame& frame);
    void drawMarks(const PictureFrame& frame);

    const NxGLFunctions& gl;
    NxDrawingStyle style;
    NxImageLoader loader;
    std::function<void()> changeHook;
    NxDrawingCounts counts;
    OutlinedItems selected;
    OutlinedItems otherSelected;
    OutlinedItems hovered;
    bool isChangeReported = false;

    GLErrors errors;
    ItemPainter painter;
    LinePainter lines;
    OutlinePainter outline;
    SeenItems seenItems;
    MarkPainter marks;
    WirePainter wires;
    std::vector<NxRef<NxNode>> markedPath;
    ScreenPass background;
    PlacedScene scene; // last: its destructor releases objects of the painters
};

void NxSceneDrawing::Private::drawOutlines(const PictureFrame& frame)
{
    NxDrawingStyle weaker = style;
    weaker.outlineWidth /= 2;
    weaker.outlineColor = style.otherOutlineColor;
    outline.draw(scene, otherSelected.update(scene), painter, frame, weaker, counts);
    weaker.outlineColor = style.hoverOutlineColor;
    outline.draw(scene, hovered.update(scene), painter, frame, weaker, counts);
    outline.draw(scene, selected.update(scene), painter, frame, style, counts);
}

// Limited to what the context supports.
float NxSceneDrawing::Private::lineWidth(float wanted) const
{
    int flags = 0;
    gl.GetIntegerv(GL_CONTEXT_FLAGS, &flags);
    if ((flags & GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT) != 0 || !(wanted > 1))
        return 1;
    std::array<float, 2> range{1, 1};
    gl.GetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, range.data());
    return std::clamp(wanted, range[0], range[1]);
}

void NxSceneDrawing::Private::drawBackground(int height)
{
    gl.Clear(GL_DEPTH_BUFFER_BIT);
    if (!background.use())
        return;
    gl.Uniform3fv(background.uniform("bottom"), 1, style.backgroundBottom.getValue());
    gl.Uniform3fv(background.uniform("top"), 1, style.backgroundTop.getValue());
    gl.Uniform1f(background.uniform("height"), static_cast<float>(height));
    background.draw();
}

void NxSceneDrawing::Private::drawMeshesAndLines(const Ground& ground, const PictureFrame& frame)
{
    const GLenum polygonMode = style.surfaces == NxDrawingStyle::WIREFRAME ? GL_LINE : GL_FILL;
    GLStateScope depth(gl);
    depth.setEnabled(GL_DEPTH_TEST);
    depth.setDepthFunction(GL_LEQUAL);
    {
        GLStateScope surfaces(gl);
        surfaces.setPolygonMode(polygonMode);
        surfaces.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
        painter.drawOpaque(scene, counts);
    }
    wires.draw(scene, painter, frame, style, counts);
    {
        GLStateScope blending(gl);
        blending.blend();
        ground.addLines(lines);
        painter.addBoxes(scene, lines);
        lines.draw(frame.eyeToClip, counts);
    }
    GLStateScope surfaces(gl);
    surfaces.setPolygonMode(polygonMode);
    surfaces.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
    painter.drawTranslucent(scene, counts);
}

void NxSceneDrawing::Private::drawMarks(const PictureFrame& frame)
{
    if (marks.isEmpty() || scene.root() == nullptr)
        return;
    Matrix4d worldTransform = localTransformOf(*scene.root());
    for (const NxRef<NxNode>& node : markedPath)
        worldTransform = multiply(localTransformOf(*node), worldTransform);
    marks.draw(worldTransform, frame, style, counts);
}

NxSceneDrawing::NxSceneDrawing(const NxGLFunctions& functions)
    : m_private(std::make_unique<Private>(functions))
{
}

NxSceneDrawing::~NxSceneDrawing() = default;

void NxSceneDrawing::setScene(NxNode* root)
{
    m_private->errors.forget();
    for (OutlinedItems* items : {&m_private->selected, &m_private->otherSelected, &m_private->hovered})
        items->setNodes({});
    m_private->markedPath.clear();
    m_private->marks.setPoints({});
    m_private->scene.setRoot(root);
    m_private->noteChange();
}

NxNode* NxSceneDrawing::scene() const
{
    return m_private->scene.root();
}

void NxSceneDrawing::setSelectedNode(NxNode* node)
{
    m_private->selected.setNodes(std::span(&node, node != nullptr ? 1 : 0));
    m_private->noteChange();
}

void NxSceneDrawing::setSelectedPath(std::span<NxNode* const> nodes)
{
    m_private->selected.setPath(nodes);
    m_private->noteChange();
}

void NxSceneDrawing::setHoveredPath(std::span<NxNode* const> nodes)
{
    m_private->hovered.setPath(nodes);
    m_private->noteChange();
}

void NxSceneDrawing::setOtherSelectedNodes(std::span<NxNode* const> nodes)
{
    m_private->otherSelected.setNodes(nodes);
    m_private->noteChange();
}

void NxSceneDrawing::setVisibility(const NxNodeVisibility& visibility)
{
    m_private->scene.setVisibility(visibility);
    m_private->noteChange();
}

void NxSceneDrawing::setMarkedPoints(std::span<NxNode* const> nodes, std::vector<VbVec3f> points)
{
    if (points.empty() && m_private->marks.isEmpty())
        return;
    m_private->markedPath.assign(nodes.begin(), nodes.end());
    m_private->marks.setPoints(std::move(points));
    m_private->noteChange();
}

void NxSceneDrawing::setStyle(const NxDrawingStyle& style)
{
    if (style == m_private->style)
        return;
    m_private->style = style;
    m_private->noteChange();
}

const NxDrawingStyle& NxSceneDrawing::style() const
{
    return m_private->style;
}

void NxSceneDrawing::setImageLoader(NxImageLoader loader)
{
    m_private->loader = std::move(loader);
    // The new loader may load files that the old one couldn't. Equal images aren't uploaded again.
    m_private->scene.forEach<TextureRecord>(NodeKind::Texture, [](TextureRecord& texture) { texture.isStale = true; });
    m_private->noteChange();
}

void NxSceneDrawing::reloadImage(const std::string& path)
{
    bool isNamed = false;
    m_private->scene.forEach<TextureRecord>(NodeKind::Texture, [&](TextureRecord& record) {
        const NxTexture* const texture = record.texture();
        if (texture == nullptr || texture->filePath.getValue().view() != path)
            return;
        record.isStale = true;
        isNamed = true;
    });
    if (isNamed)
        m_private->noteChange();
}

void NxSceneDrawing::setChangeHook(std::function<void()> hook)
{
    m_private->changeHook = std::move(hook);
}

void NxSceneDrawing::draw(const NxViewpoint& viewpoint, int width, int height, float scale)
{
    if (width <= 0 || height <= 0)
        return;
    Private& self = *m_private;
    const NxGLFunctions& gl = self.gl;
    self.isChangeReported = false;
    self.counts.drawCalls = 0;
    self.scene.update();
    const Ground ground(viewpoint, self.style);
    NxBounds shown = self.scene.tree().bounds();
    shown.include(ground.bounds());
    const PictureFrame frame(viewpoint, shown, width, height, scale);

    gl.Viewport(0, 0, width, height);
    gl.ActiveTexture(GL_TEXTURE0);
    {
        GLStateScope picture(gl);
        picture.bindObjects();
        self.drawBackground(height);
        self.painter.prepare(self.scene, frame, self.style, self.loader, self.counts);
        picture.setEnabled(GL_PROGRAM_POINT_SIZE);
        picture.setLineWidth(self.lineWidth(scale));
        self.drawMeshesAndLines(ground, frame);
        self.drawOutlines(frame);
        self.drawMarks(frame);
    }
    ++self.counts.pictures;
    self.errors.report("Drawing the scene");
}

std::vector<std::vector<NxNode*>> NxSceneDrawing::seenIn(
    const NxPixelRectangle& part, const NxViewpoint& viewpoint, int width, int height, float scale)
{
    Private& self = *m_private;
    self.scene.update();
    const PictureFrame frame(viewpoint, self.scene.tree().bounds(), width, height, scale);
    GLStateScope picture(self.gl);
    picture.bindObjects();
    self.gl.ActiveTexture(GL_TEXTURE0);
    self.painter.prepare(self.scene, frame, self.style, self.loader, self.counts);
    std::vector<std::vector<NxNode*>> paths;
    for (const Id item : self.seenItems.find(self.scene, self.painter, frame, self.style, part, self.counts))
        paths.push_back(self.scene.pathOf(item));
    self.errors.report("Finding what is seen");
    return paths;
}

NxBounds NxSceneDrawing::bounds()
{
    m_private->scene.update();
    return m_private->scene.tree().bounds();
}

NxBounds NxSceneDrawing::bounds(const NxNode* node)
{
    m_private->scene.update();
    NxBounds bounds;
    for (const Id id : m_private->scene.itemsBelow(node))
        bounds.include(m_private->scene.tree().boundsOf(id));
    return bounds;
}

NxBounds NxSceneDrawing::bounds(std::span<NxNode* const> nodes)
{
    m_private->scene.update();
    const std::vector<const NxNode*> path(nodes.begin(), nodes.end());
    NxBounds bounds;
    for (const Id id : m_private->scene.itemsBelow(path))
        bounds.include(m_private->scene.tree().boundsOf(id));
    return bounds;
}

NxDrawingCounts NxSceneDrawing::counts() const
{
    NxDrawingCounts counts = m_private->counts;
    counts.nodes = m_private->scene.nodeCount();
    counts.bufferBytes = m_private->painter.meshes().bytes();
    counts.textureBytes = m_private->painter.textures().bytes();
    counts.ownBytes = m_private->scene.bytes() + m_private->painter.bytes();
    return counts;
}

std::uint64_t NxSceneDrawing::structure() const
{
    return m_private->scene.structure();
}

void NxSceneDrawing::contextLost()
{
    Private& self = *m_private;
    self.scene.forEach<MeshRecord>(NodeKind::Mesh, [&](MeshRecord& mesh) { self.painter.meshes().release(mesh); });
    self.scene.forEach<TextureRecord>(NodeKind::Texture, [&](TextureRecord& texture) {
        self.painter.textures().release(texture);
        texture.isStale = true;
    });
    self.painter.forget();
    self.lines.forget();
    self.outline.forget();
    self.seenItems.forget();
    self.marks.forget();
    self.wires.forget();
    self.background.forget();
    self.noteChange();
}
