#include "gl/DrawingBench.h"

#include "meridane/gl/painting/NxDrawingStyle.h"
#include "meridane/scene/nodes/NxComplexity.h"

#include <algorithm>
#include <cstring>

namespace {

/// What the driver does wrong.
struct Faults {
    bool hasNoMemoryForBuffers = false;
    bool hasNoMemoryForTextures = false;
    bool hasNoFramebuffers = false;
    bool compilesNothing = false;
    bool endsLogs = true; // with a NUL
    bool reportsErrorsWithoutEnd = false;
    bool isForwardCompatible = false;
    bool hasNoAnisotropy = false;
};
Faults faults;

/// The functions of the driver, which those below call where nothing is wrong.
NxGLFunctions driver;
GLenum pendingError = GL_NO_ERROR;
float widestLine = 0;
int filterCalls = 0;

void APIENTRY bufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage)
{
    if (faults.hasNoMemoryForBuffers)
        pendingError = GL_OUT_OF_MEMORY;
    else
        driver.BufferData(target, size, data, usage);
}

void APIENTRY texImage2D(GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height, GLint border,
    GLenum format, GLenum type, const void* pixels)
{
    if (faults.hasNoMemoryForTextures)
        pendingError = GL_OUT_OF_MEMORY;
    else
        driver.TexImage2D(target, level, internalFormat, width, height, border, format, type, pixels);
}

GLenum APIENTRY getError()
{
    if (faults.reportsErrorsWithoutEnd)
        return GL_OUT_OF_MEMORY;
    const GLenum error = std::exchange(pendingError, GLenum{GL_NO_ERROR});
    return error != GL_NO_ERROR ? error : driver.GetError();
}

GLenum APIENTRY checkFramebufferStatus(GLenum target)
{
    return faults.hasNoFramebuffers ? GL_FRAMEBUFFER_UNSUPPORTED : driver.CheckFramebufferStatus(target);
}

void APIENTRY getShaderiv(GLuint shader, GLenum name, GLint* value)
{
    driver.GetShaderiv(shader, name, value);
    if (!faults.compilesNothing)
        return;
    if (name == GL_COMPILE_STATUS)
        *value = GL_FALSE;
    else if (name == GL_INFO_LOG_LENGTH)
        *value = 4;
}

void APIENTRY getShaderInfoLog(GLuint, GLsizei size, GLsizei*, char* text)
{
    std::memset(text, 'x', static_cast<std::size_t>(size));
    if (faults.endsLogs)
        text[2] = '\0';
}

void APIENTRY getIntegerv(GLenum name, GLint* value)
{
    driver.GetIntegerv(name, value);
    if (name == GL_CONTEXT_FLAGS && faults.isForwardCompatible)
        *value |= GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT;
}

void APIENTRY getFloatv(GLenum name, GLfloat* value)
{
    constexpr GLenum maxAnisotropy = 0x84FF;
    if (name == maxAnisotropy && faults.hasNoAnisotropy)
        pendingError = GL_INVALID_ENUM;
    else
        driver.GetFloatv(name, value);
}

void APIENTRY samplerParameterf(GLuint sampler, GLenum name, GLfloat value)
{
    ++filterCalls;
    driver.SamplerParameterf(sampler, name, value);
}

void APIENTRY lineWidth(GLfloat width)
{
    widestLine = std::max(widestLine, width);
    driver.LineWidth(width);
}

} // namespace

/// Pictures of a driver that fails. What it can't do is reported and left out, and the rest is drawn.
class TestDrawingFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        NxGLFunctions& gl = m_bench.gl();
        driver = gl;
        gl.BufferData = &bufferData;
        gl.TexImage2D = &texImage2D;
        gl.GetError = &getError;
        gl.CheckFramebufferStatus = &checkFramebufferStatus;
        gl.GetShaderiv = &getShaderiv;
        gl.GetShaderInfoLog = &getShaderInfoLog;
        gl.GetIntegerv = &getIntegerv;
        gl.GetFloatv = &getFloatv;
        gl.SamplerParameterf = &samplerParameterf;
        gl.LineWidth = &lineWidth;
    }
    // A drawing of its own, so that nothing is on the GPU yet.
    void init()
    {
        faults = Faults();
        m_bench.renew(nullptr);
    }
    void cleanup()
    {
        faults = Faults();
        m_bench.drawing().setScene(nullptr);
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void meshesThatFindNoRoomAreLeftOut()
    {
        const auto scene = groupOf(
            {plain(1, 0, 0).get(), rectangle(-1, -1, 0, 1).get(), rectangle(0, -1, 1, 1).get(), ball(0.5F).get()});
        m_bench.drawing().setScene(scene.get());
        faults.hasNoMemoryForBuffers = true;
        const QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, -0.5, 0, black);
        COMPARE_PIXEL(picture, 0.5, 0, black);
        QVERIFY(m_bench.takeMessages().contains(
            QStringLiteral("Making room for meshes: OpenGL error 0x0505, out of memory")));
    }

    void aTextureThatFindsNoRoomIsLeftOut()
    {
        const auto scene = groupOf({fourPixels().get(), plain(1, 1, 1).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        faults.hasNoMemoryForTextures = true;
        COMPARE_PIXEL(m_bench.draw(), -0.5, -0.5, white);
        // Later calls for the same image may fail too.
        QCOMPARE(m_bench.takeMessages().value(0),
            QStringLiteral("Making the image of a texture: OpenGL error 0x0505, out of memory"));
    }

    void aSelectionIsDrawnWithoutItsOutline()
    {
        const auto selected = rectangle(-0.5F, -0.5F, 0.5F, 0.5F);
        const auto scene = groupOf({plain(0, 0, 1).get(), selected.get()});
        m_bench.restyle([](NxDrawingStyle& style) { style.outlineWidth = 8; });
        m_bench.drawing().setScene(scene.get());
        m_bench.drawing().setSelectedNode(selected.get());
        faults.hasNoFramebuffers = true;
        for (int i = 0; i < 2; ++i) {
            const QImage picture = m_bench.draw();
            COMPARE_PIXEL(picture, 0, 0, blue);
            COMPARE_PIXEL(picture, 0.54, 0, black);
        }
        QCOMPARE(m_bench.takeMessages(),
            QStringList{
                QStringLiteral("Making an image for outlines: OpenGL error 0x0506, invalid framebuffer operation")});
    }

    void withoutShadersNothingIsDrawn_data()
    {
        QTest::addColumn<bool>("endsLogs");
        QTest::addColumn<QString>("log");
        QTest::newRow("a log with an end") << true << QStringLiteral("xx");
        QTest::newRow("a log without an end") << false << QStringLiteral("xxxx");
    }
    void withoutShadersNothingIsDrawn()
    {
        QFETCH(const bool, endsLogs);
        QFETCH(const QString, log);
        const auto mesh = rectangle(-1, -1, 1, 1);
        const auto scene = groupOf({plain(1, 0, 0).get(), mesh.get(), plain(0, 1, 0, 0.5F).get(), ball(0.5F).get()});
        m_bench.restyle([](NxDrawingStyle& style) { style.boundingBoxes = true; });
        m_bench.drawing().setScene(scene.get());
        m_bench.drawing().setSelectedNode(mesh.get());
        faults.compilesNothing = true;
        faults.endsLogs = endsLogs;
        for (int i = 0; i < 2; ++i) {
            const QImage picture = m_bench.draw();
            COMPARE_PIXEL(picture, 0, 0, pixelAt(picture, -0.9, 0.9));
        }
        QStringList messages = m_bench.takeMessages();
        for (const char* name : {"meshes", "lines", "shapes"}) {
            const QString message
                = QStringLiteral("Compiling the shaders for %1 failed: %2: OpenGL error 0x0502, invalid operation")
                      .arg(QLatin1String(name), log);
            QVERIFY2(messages.contains(message), qPrintable(messages.join(u'\n')));
        }
        // Each shader is compiled once: none of them is tried again for the next picture.
        m_bench.drawing().setSelectedNode(nullptr);
        (void)m_bench.draw();
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void aDriverThatReportsErrorsWithoutEndIsDrawnWith()
    {
        const auto scene = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        faults.reportsErrorsWithoutEnd = true;
        (void)m_bench.draw();
        (void)m_bench.draw();
        QStringList messages = m_bench.takeMessages();
        QVERIFY(!messages.isEmpty());
        QCOMPARE(messages.removeDuplicates(), 0);
    }

    void linesAreAsThickAsTheContextAllows_data()
    {
        QTest::addColumn<bool>("isForwardCompatible");
        QTest::newRow("any") << false;
        QTest::newRow("one pixel") << true;
    }
    void linesAreAsThickAsTheContextAllows()
    {
        QFETCH(const bool, isForwardCompatible);
        faults.isForwardCompatible = isForwardCompatible;
        widestLine = 0;
        (void)m_bench.drawUntold(DrawingBench::front(), 50, 50, 2);
        std::array<float, 2> range{1, 1};
        driver.GetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, range.data());
        QCOMPARE(widestLine, isForwardCompatible ? 1 : std::min(range[1], 2.F));
    }

    void texturesAreFilteredAsTheDriverCan_data()
    {
        QTest::addColumn<bool>("hasNoAnisotropy");
        QTest::newRow("along the slope") << false;
        QTest::newRow("plainly") << true;
    }
    void texturesAreFilteredAsTheDriverCan()
    {
        QFETCH(const bool, hasNoAnisotropy);
        faults.hasNoAnisotropy = hasNoAnisotropy;
        const auto quality = make<NxComplexity>();
        quality->textureQuality.setValue(1);
        const auto clamped = fourPixels();
        clamped->wrapS.setValue(NxTexture::CLAMP);
        const auto scene = groupOf({quality.get(), plain(1, 1, 1).get(), fourPixels().get(),
            rectangle(-1, -1, 0, 1).get(), clamped.get(), rectangle(0, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        filterCalls = 0;
        const QImage picture = m_bench.draw();
        QVERIFY(isNear(pixelAt(picture, -0.75, -0.5), red, 64));
        QVERIFY(isNear(pixelAt(picture, 0.75, 0.5), white, 64));
        QCOMPARE(filterCalls, hasNoAnisotropy ? 0 : 2);
    }

    void aPictureWithoutSizeIsNotDrawn()
    {
        const auto scene = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        m_bench.drawing().draw(DrawingBench::front(), 10, 0, 1);
        m_bench.drawing().draw(DrawingBench::front(), 0, 10, 1);
        QCOMPARE(m_bench.counts().drawCalls, 0);
    }

private:
    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestDrawingFaults)
#include "tst_DrawingFaults.moc"
