#include "gl/DrawingBench.h"

#include <array>
#include <cmath>
#include <numbers>
#include <utility>

DrawingTarget::DrawingTarget(const NxGLFunctions& functions, int width, int height)
    : m_gl(functions)
    , m_width(width)
    , m_height(height)
{
    m_gl.GenFramebuffers(1, &m_framebuffer);
    m_gl.GenRenderbuffers(2, m_buffers.data());
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    const auto add = [&](unsigned int buffer, GLenum format, GLenum place) {
        m_gl.BindRenderbuffer(GL_RENDERBUFFER, buffer);
        m_gl.RenderbufferStorage(GL_RENDERBUFFER, format, width, height);
        m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    };
    add(m_buffers[0], GL_RGBA8, GL_COLOR_ATTACHMENT0);
    add(m_buffers[1], GL_DEPTH_COMPONENT24, GL_DEPTH_ATTACHMENT);
}

DrawingTarget::~DrawingTarget()
{
    m_gl.DeleteFramebuffers(1, &m_framebuffer);
    m_gl.DeleteRenderbuffers(2, m_buffers.data());
}

QImage DrawingTarget::read() const
{
    QImage image(m_width, m_height, QImage::Format_RGBA8888);
    m_gl.ReadPixels(0, 0, m_width, m_height, GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    return image.mirrored();
}

QImage DrawingBench::draw(const NxViewpoint& viewpoint, int width, int height, float error)
{
    NxDelayQueue::getDefault().process();
    return drawUntold(viewpoint, width, height, 1, error);
}

QImage DrawingBench::drawUntold(const NxViewpoint& viewpoint, int width, int height, float scale, float error)
{
    const DrawingTarget target(m_gl, width, height);
    m_drawing->draw(viewpoint, width, height, scale, error);
    return target.read();
}

QImage DrawingBench::drawInParts(const NxViewpoint& viewpoint, int width, int height, std::uint64_t corners, int& parts)
{
    const DrawingTarget target(m_gl, width, height);
    m_drawing->begin(viewpoint, width, height, 1);
    parts = 1;
    while (m_drawing->proceed(corners) == NxPictureState::Unfinished)
        ++parts;
    return target.read();
}

QImage DrawingBench::pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint)
{
    const auto scene = groupOf(nodes);
    m_drawing->setScene(scene.get());
    QImage picture = draw(viewpoint);
    m_drawing->setScene(nullptr);
    return picture;
}

QStringList DrawingBench::takeMessages()
{
    QStringList messages;
    const std::vector<std::string> all = m_recorder.texts();
    for (; m_taken < all.size(); ++m_taken)
        messages.append(QString::fromStdString(all[m_taken]));
    return messages;
}

void DrawingBench::renew(NxNode* scene)
{
    m_former = std::exchange(m_drawing, std::make_unique<NxSceneDrawing>(m_gl));
    m_drawing->setStyle(m_former->style());
    m_drawing->setScene(scene);
}

void DrawingBench::loseContext()
{
    m_context = std::make_unique<NxOffscreenContext>();
    if (!m_context->makeCurrent())
        qFatal("no OpenGL: %s", m_context->error().toUtf8());
    m_drawing->contextLost();
}

QColor pixelAt(const QImage& picture, double x, double y)
{
    const auto place
        = [](double at, int size) { return std::clamp(static_cast<int>((at + 1) / 2 * size), 0, size - 1); };
    return picture.pixelColor(place(x, picture.width()), place(-y, picture.height()));
}

bool isNear(const QColor& color, const QColor& expected, int tolerance)
{
    return std::abs(color.red() - expected.red()) <= tolerance
        && std::abs(color.green() - expected.green()) <= tolerance
        && std::abs(color.blue() - expected.blue()) <= tolerance;
}

QByteArray text(const QColor& color)
{
    return color.name().toUtf8();
}

QColor color(double r, double g, double b)
{
    return QColor::fromRgbF(static_cast<float>(r), static_cast<float>(g), static_cast<float>(b));
}

NxRef<NxMaterial> plain(float r, float g, float b, float transparency)
{
    NxRef<NxMaterial> material = new NxMaterial;
    material->ambientColor.setValue(VbColor());
    material->diffuseColor.setValue(VbColor(r, g, b));
    material->transparency.setValue(transparency);
    return material;
}

NxRef<NxTexture> fourPixels()
{
    constexpr unsigned char bytes[] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255};
    NxRef<NxTexture> texture = new NxTexture;
    texture->image.setValue(VbVec2s(2, 2), 3, bytes);
    return texture;
}

NxRef<NxMesh> rectangle(float left, float bottom, float right, float top, float z)
{
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues({{left, bottom, z}, {right, bottom, z}, {right, top, z}, {left, top, z}});
    mesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0, 0, 1)));
    mesh->textureCoordinates.setValues({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    mesh->indices.setValues({0, 1, 2, 0, 2, 3});
    return mesh;
}

NxRef<NxMesh> ball(float radius, int steps)
{
    std::vector<VbVec3f> positions;
    std::vector<VbVec3f> normals;
    std::vector<int> indices;
    for (int i = 0; i <= steps; ++i) {
        for (int j = 0; j <= steps; ++j) {
            const double across = 2 * std::numbers::pi * j / steps;
            const double down = std::numbers::pi * i / steps;
            const VbVec3f normal(static_cast<float>(std::sin(down) * std::sin(across)),
                static_cast<float>(std::cos(down)), static_cast<float>(std::sin(down) * std::cos(across)));
            normals.push_back(normal);
            positions.emplace_back(normal[0] * radius, normal[1] * radius, normal[2] * radius);
            if (i == steps || j == steps)
                continue;
            const int first = i * (steps + 1) + j;
            indices.insert(
                indices.end(), {first, first + steps + 1, first + 1, first + 1, first + steps + 1, first + steps + 2});
        }
    }
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues(std::move(positions));
    mesh->normals.setValues(std::move(normals));
    mesh->indices.setValues(std::move(indices));
    return mesh;
}

NxRef<NxMesh> meshOf(std::vector<VbVec3f> positions, int primitive)
{
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues(std::move(positions));
    mesh->primitive.setValue(primitive);
    return mesh;
}

NxRef<NxGroup> groupOf(std::initializer_list<NxNode*> nodes)
{
    NxRef<NxGroup> group = new NxGroup;
    for (NxNode* node : nodes)
        group->addChild(node);
    return group;
}
