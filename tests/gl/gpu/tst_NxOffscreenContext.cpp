#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/NxOffscreenContext.h"

#include <QTest>

#include <array>

class TestNxOffscreenContext : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasAllFunctionsWithoutAWindowSystem()
    {
        NxOffscreenContext context;
        QVERIFY2(context.isValid(), context.error().toUtf8());
        QVERIFY(context.error().isEmpty());
        QVERIFY(context.makeCurrent());
        QVERIFY(!NxOffscreenContext::isLost());
        NxGLFunctions functions;
        QVERIFY2(functions.load(&NxOffscreenContext::getProcAddress), functions.error().c_str());
    }

    void isDrawnToThroughAFramebuffer()
    {
        NxOffscreenContext context;
        QVERIFY(context.makeCurrent());
        NxGLFunctions gl;
        QVERIFY(gl.load(&NxOffscreenContext::getProcAddress));
        GLuint framebuffer = 0;
        GLuint colors = 0;
        gl.GenFramebuffers(1, &framebuffer);
        gl.BindFramebuffer(GL_FRAMEBUFFER, framebuffer);
        gl.GenRenderbuffers(1, &colors);
        gl.BindRenderbuffer(GL_RENDERBUFFER, colors);
        gl.RenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, 4, 4);
        gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colors);
        QCOMPARE(gl.CheckFramebufferStatus(GL_FRAMEBUFFER), GLenum(GL_FRAMEBUFFER_COMPLETE));
        gl.ClearColor(1, 0, 1, 1);
        gl.Clear(GL_COLOR_BUFFER_BIT);
        std::array<unsigned char, 4> pixel{};
        gl.ReadPixels(2, 2, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
        QCOMPARE(pixel, (std::array<unsigned char, 4>{255, 0, 255, 255}));
        QCOMPARE(gl.GetError(), GLenum(GL_NO_ERROR));
    }

    void standsBesideOthers()
    {
        NxOffscreenContext first;
        {
            NxOffscreenContext second;
            QVERIFY(second.makeCurrent());
            QVERIFY(first.makeCurrent());
            QVERIFY(second.makeCurrent());
        }
        QVERIFY(first.makeCurrent());
        NxGLFunctions gl;
        QVERIFY(gl.load(&NxOffscreenContext::getProcAddress));
    }
};

QTEST_GUILESS_MAIN(TestNxOffscreenContext)
#include "tst_NxOffscreenContext.moc"
