// Drawing without a window: many triangles, many meshes, changes, and what the meshes take in memory.

#include "DrawingScenes.h"
#include "Figure.h"
#include "Timing.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/gl/NxSceneDrawing.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/geometry/detail/PictureFrame.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/NxOffscreenContext.h"
#include "meridane/gl/gpu/detail/SurfaceShaders.h"
#include "meridane/gl/places/detail/Lights.h"
#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include <malloc.h>

namespace {

constexpr int width = 800;
constexpr int height = 800;
constexpr int rounds = 9;

/// A context with a framebuffer to draw into.
class Screen {
public:
    Screen()
    {
        if (!m_context.makeCurrent() || !gl.load(&NxOffscreenContext::getProcAddress)) {
            std::fprintf(stderr, "no OpenGL: %s\n", gl.error().c_str());
            std::exit(EXIT_FAILURE);
        }
        gl.GenFramebuffers(1, &m_framebuffer);
        gl.BindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
        add(GL_RGBA8, GL_COLOR_ATTACHMENT0);
        add(GL_DEPTH_COMPONENT24, GL_DEPTH_ATTACHMENT);
    }

    NxGLFunctions gl;

private:
    void add(GLenum format, GLenum place) const
    {
        GLuint buffer = 0;
        gl.GenRenderbuffers(1, &buffer);
        gl.BindRenderbuffer(GL_RENDERBUFFER, buffer);
        gl.RenderbufferStorage(GL_RENDERBUFFER, format, width, height);
        gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    }

    NxOffscreenContext m_context;
    GLuint m_framebuffer = 0;
};

NxViewpoint front()
{
    NxViewpoint viewpoint;
    viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
    viewpoint.height = 2;
    return viewpoint;
}

NxDrawingStyle plainStyle()
{
    NxDrawingStyle style;
    style.grid = false;
    style.axes = false;
    return style;
}

/// A scene and its drawing, drawn once.
struct Drawn {
    Drawn(const Screen& screen, NxNode* root)
        : gl(screen.gl)
        , drawing(screen.gl)
    {
        drawing.setStyle(plainStyle());
        drawing.setScene(root);
        draw();
    }
    void draw(int side = width)
    {
        drawing.draw(front(), side, side, 1);
        gl.Finish();
    }
    /// From a change to the picture that shows it.
    double change(const std::function<void()>& edit, int side = width)
    {
        return bench::seconds([&] {
            edit();
            NxDelayQueue::getDefault().process();
            draw(side);
        });
    }

    const NxGLFunctions& gl;
    NxSceneDrawing drawing;
};

/// The baseline: draws a mesh in the same way with its lists in buffers, one program and one call.
class BareMesh {
public:
    BareMesh(const Screen& screen, const NxMesh& mesh, const NxBounds& bounds)
        : m_gl(screen.gl)
        , m_count(mesh.indices.getNum())
        , m_program(meridane::makeSurfaceProgram(m_gl, {meridane::SurfaceVariant::Smooth, false, false}))
        , m_frame(front(), bounds, width, height, 1)
    {
        m_gl.GenVertexArrays(1, &m_vertexArray);
        m_gl.BindVertexArray(m_vertexArray);
        m_gl.GenBuffers(static_cast<GLsizei>(m_buffers.size()), m_buffers.data());
        fill(0, GL_ARRAY_BUFFER, std::as_bytes(mesh.positions.getValues()));
        m_gl.VertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, 0, nullptr);
        fill(1, GL_ARRAY_BUFFER, std::as_bytes(mesh.normals.getValues()));
        m_gl.VertexAttribPointer(1, 3, GL_FLOAT, GL_FALSE, 0, nullptr);
        fill(2, GL_ELEMENT_ARRAY_BUFFER, std::as_bytes(mesh.indices.getValues()));
        m_gl.EnableVertexAttribArray(0);
        m_gl.EnableVertexAttribArray(1);
        meridane::LightsBlock block;
        block.count = 1;
        block.lights[0] = meridane::cameraLightValues();
        fill(3, GL_UNIFORM_BUFFER, std::as_bytes(std::span(&block, 1)));
    }

    void draw() const
    {
        constexpr std::array<float, 9> turn{1, 0, 0, 0, 1, 0, 0, 0, 1};
        const VbMatrix modelMatrix
            = meridane::narrowed(meridane::translationMatrix(meridane::scaled(m_frame.position, -1)));
        m_gl.Viewport(0, 0, width, height);
        m_gl.ClearColor(0, 0, 0, 1);
        m_gl.Clear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        m_gl.Enable(GL_DEPTH_TEST);
        m_gl.BindVertexArray(m_vertexArray);
        m_gl.BindBufferBase(GL_UNIFORM_BUFFER, meridane::lightsBinding, m_buffers[3]);
        m_program.program.use();
        m_gl.UniformMatrix4fv(m_program.modelMatrix, 1, GL_FALSE, modelMatrix[0].data());
        m_gl.UniformMatrix4fv(m_program.eyeToClip, 1, GL_FALSE, m_frame.eyeToClip[0].data());
        m_gl.UniformMatrix3fv(m_program.normalMatrix, 1, GL_FALSE, turn.data());
        m_gl.Uniform4fv(m_program.eye, 1, m_frame.eye.data());
        m_gl.Uniform4fv(m_program.material, 4, meridane::asFloats(meridane::materialValues(nullptr)).data());
        m_gl.DrawElements(GL_TRIANGLES, m_count, GL_UNSIGNED_INT, nullptr);
        m_gl.Finish();
        m_gl.Disable(GL_DEPTH_TEST);
    }

private:
    void fill(std::size_t buffer, GLenum target, std::span<const std::byte> bytes) const
    {
        m_gl.BindBuffer(target, m_buffers[buffer]);
        m_gl.BufferData(target, static_cast<GLsizeiptr>(bytes.size()), bytes.data(), GL_STATIC_DRAW);
    }

    const NxGLFunctions& m_gl;
    GLsizei m_count;
    meridane::SurfaceProgram m_program;
    meridane::PictureFrame m_frame;
    GLuint m_vertexArray = 0;
    std::array<GLuint, 4> m_buffers{};
};

std::size_t allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void measureTriangles(const Screen& screen)
{
    const NxRef<NxMesh> mesh = bench::wavyMesh(1000, 500, -1, -1, 2);
    const NxRef<NxGroup> tiles = bench::tiledScene(100, 10, 5);
    Drawn one(screen, mesh.get());
    Drawn many(screen, tiles.get());
    const BareMesh bare(screen, *mesh, one.drawing.bounds());
    bench::compare(
        "1,000,000 triangles in one mesh: draw", 1.2, rounds, [&] { return bench::seconds([&] { one.draw(); }); },
        [&] { return bench::seconds([&] { bare.draw(); }); });
    bench::compare(
        "1,000,000 triangles in 10,000 meshes: draw", 2, rounds, [&] { return bench::seconds([&] { many.draw(); }); },
        [&] { return bench::seconds([&] { one.draw(); }); });
}

/// The memory of the drawing, and its buffers on the GPU. The driver's own memory doesn't count. After the first
/// picture it can't be distinguished from the drawing's, so the drawing is measured before, and what the picture adds
/// is counted.
void measureMemory(const Screen& screen, const std::string& name, NxNode* root, std::size_t meshBytes)
{
    NxSceneDrawing drawing(screen.gl);
    drawing.setStyle(plainStyle());
    const std::size_t before = allocatedBytes();
    drawing.setScene(root);
    if (drawing.bounds().isEmpty())
        std::abort();
    const std::size_t kept = allocatedBytes() - before;
    const std::size_t counted = drawing.counts().ownBytes;
    drawing.draw(front(), width, height, 1);
    const NxDrawingCounts counts = drawing.counts();
    bench::report(
        {name + ": memory", "bytes", static_cast<double>(kept + counts.ownBytes - counted + counts.bufferBytes),
            static_cast<double>(meshBytes), 1.3});
}

void measureMemory(const Screen& screen)
{
    const NxRef<NxMesh> mesh = bench::wavyMesh(1000, 500, -1, -1, 2);
    measureMemory(screen, "1,000,000 triangles in one mesh", mesh.get(), bench::bytesOf(*mesh));
    const NxRef<NxGroup> tiles = bench::tiledScene(100, 10, 5);
    std::size_t bytes = 0;
    for (const NxNode* node : tiles->getChildren())
        bytes += bench::bytesOf(static_cast<const NxMesh&>(*node));
    measureMemory(screen, "1,000,000 triangles in 10,000 meshes", tiles.get(), bytes);
}

/// A scene to change, of which a hundred nodes are in view.
struct ChangedScene {
    ChangedScene(const Screen& screen, int nodes)
        : scene(bench::spreadScene(100, nodes))
        , transform(static_cast<NxTransform*>(scene->getChild(0)))
        , material(static_cast<NxMaterial*>(transform->getChild(0)))
        , mesh(bench::wavyMesh(5, 5, 0, 0, 0.1F))
        , choice(new NxSwitch)
        , drawn(screen, (choice->addChild(mesh.get()), scene->addChild(choice.get()), scene.get()))
    {
    }

    NxRef<NxGroup> scene;
    NxRef<NxTransform> transform;
    NxRef<NxMaterial> material;
    NxRef<NxMesh> mesh;
    NxRef<NxSwitch> choice;
    Drawn drawn;
    float step = 0;
};

void measureChanges(const Screen& screen)
{
    constexpr int many = 100'000;
    constexpr int few = 100;
    constexpr int changes = 51;
    constexpr int smallSide = 100; // so that the cost of the change isn't hidden by that of the pixels
    ChangedScene large(screen, many);
    ChangedScene small(screen, few);
    using Edit = void (*)(ChangedScene&);
    const std::pair<const char*, Edit> edits[] = {
        {"a transform",
            [](ChangedScene& scene) { scene.transform->translation.setValue(VbVec3f(scene.step += 1e-4F, 0, 0)); }},
        {"a material",
            [](ChangedScene& scene) { scene.material->diffuseColor.setValue(VbColor(scene.step += 1e-4F, 0, 0)); }},
        {"a position",
            [](ChangedScene& scene) { scene.mesh->positions.set1Value(0, VbVec3f(scene.step += 1e-4F, 0, 0)); }},
        {"a switch",
            [](ChangedScene& scene) {
                scene.choice->whichChild.setValue(
                    scene.choice->whichChild.getValue() == NxSwitch::ALL ? NxSwitch::NONE : NxSwitch::ALL);
            }},
    };
    for (const auto& [name, edit] : edits) {
        bench::compare(
            std::string("one change among 100,000 nodes, ") + name, 2, changes,
            [&, edit = edit] { return large.drawn.change([&] { edit(large); }, smallSide); },
            [&, edit = edit] { return small.drawn.change([&] { edit(small); }, smallSide); });
    }
}

void measureSliderStep(const Screen& screen)
{
    const NxRef<NxMaterial> material = new NxMaterial;
    const NxRef<NxGroup> scene = bench::tiledScene(10, 100, 50);
    scene->insertChild(material.get(), 0);
    Drawn drawn(screen, scene.get());
    float step = 0;
    bench::compare(
        "slider step of a material: event to picture", 1.2, 2 * rounds,
        [&] { return drawn.change([&] { material->diffuseColor.setValue(VbColor(step += 1e-3F, 0.5F, 0.5F)); }); },
        [&] { return bench::seconds([&] { drawn.draw(); }); });
}

} // namespace

int main()
{
    const Screen screen;
    measureMemory(screen);
    measureTriangles(screen);
    measureChanges(screen);
    measureSliderStep(screen);
    return 0;
}
