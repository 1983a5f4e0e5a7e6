#include "meridane/gl/NxSceneDrawing.h"

#include "meridane/gl/detail/ScenePainter.h"

#include <utility>

using namespace meridane;

class NxSceneDrawing::Private : public ScenePainter {
public:
    using ScenePainter::ScenePainter;
};

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

void NxSceneDrawing::draw(const NxViewpoint& viewpoint, int width, int height, float scale, float error)
{
    if (width > 0 && height > 0)
        m_private->draw(viewpoint, width, height, scale, error);
}

void NxSceneDrawing::begin(const NxViewpoint& viewpoint, int width, int height, float scale)
{
    if (width > 0 && height > 0)
        m_private->begin(viewpoint, width, height, scale, 0);
}

NxPictureState NxSceneDrawing::proceed(std::uint64_t corners)
{
    return m_private->proceed(corners);
}

void NxSceneDrawing::reduceMeshes(const std::function<bool()>& isTimeOver)
{
    m_private->reduceMeshes(isTimeOver);
}

bool NxSceneDrawing::isReducing() const
{
    return m_private->isReducing();
}

bool NxSceneDrawing::canReduceMore() const
{
    return m_private->canReduceMore();
}

std::vector<std::vector<NxNode*>> NxSceneDrawing::seenIn(
    const NxPixelRectangle& part, const NxViewpoint& viewpoint, int width, int height, float scale)
{
    return m_private->seenIn(part, viewpoint, width, height, scale);
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
    m_private->forget();
    m_private->noteChange();
}
