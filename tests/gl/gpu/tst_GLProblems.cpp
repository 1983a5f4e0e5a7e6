#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/detail/GLProgram.h"

#include <string_view>

/// What is wrong with OpenGL itself is reported or refused.
class TestGLProblems : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void errorsOfOthersAreReportedOnce()
    {
        m_bench.drawing().setScene(nullptr);
        for (int i = 0; i < 3; ++i) {
            m_bench.gl().Enable(GL_INVALID_ENUM);
            (void)m_bench.draw();
        }
        QCOMPARE(m_bench.takeMessages(),
            QStringList{QStringLiteral("Drawing the scene: OpenGL error 0x0500, invalid enum")});
    }

    void brokenShadersAreReported()
    {
        const meridane::GLProgram uncompiled(m_bench.gl(), "a test", "void main() {}", "void main() { nonsense; }");
        QVERIFY(!uncompiled.isUsable());
        QStringList messages = m_bench.takeMessages();
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages[0].startsWith(QStringLiteral("Compiling the shaders for a test failed: "))
                && messages[0].contains(QStringLiteral("nonsense")),
            messages[0].toUtf8().constData());
        const meridane::GLProgram unlinked(m_bench.gl(), "a test", "void missing(); void main() { missing(); }",
            "out vec4 color; void main() { color = vec4(1.0); }");
        QVERIFY(!unlinked.isUsable());
        messages = m_bench.takeMessages();
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages[0].startsWith(QStringLiteral("Linking the shaders for a test failed: ")),
            messages[0].toUtf8().constData());
    }

    void aContextWithoutAFunctionIsRefused()
    {
        NxGLFunctions functions;
        QVERIFY(!functions.error().empty());
        QVERIFY(!functions.load([](const char* name) -> void* {
            return std::string_view(name) == "glDrawArrays" ? nullptr : NxOffscreenContext::getProcAddress(name);
        }));
        QCOMPARE(functions.error(), std::string("the OpenGL function glDrawArrays is missing"));
    }

    void anOldContextIsRefused()
    {
        NxGLFunctions functions;
        QVERIFY(!functions.load([](const char* name) -> void* {
            if (std::string_view(name) != "glGetIntegerv")
                return NxOffscreenContext::getProcAddress(name);
            const PFNGLGETINTEGERVPROC version
                = [](GLenum what, GLint* value) { *value = what == GL_MAJOR_VERSION ? 3 : 2; };
            return reinterpret_cast<void*>(version);
        }));
        QVERIFY2(QByteArray::fromStdString(functions.error()).startsWith("OpenGL 3.3 is needed, this is "),
            functions.error().c_str());
        QVERIFY(!functions.load([](const char* name) -> void* {
            if (std::string_view(name) == "glGetString")
                return reinterpret_cast<void*>(PFNGLGETSTRINGPROC([](GLenum) -> const GLubyte* { return nullptr; }));
            if (std::string_view(name) == "glGetIntegerv")
                return reinterpret_cast<void*>(PFNGLGETINTEGERVPROC([](GLenum, GLint* value) { *value = 0; }));
            return NxOffscreenContext::getProcAddress(name);
        }));
        QCOMPARE(functions.error(), std::string("OpenGL 3.3 is needed, this is no context"));
        QVERIFY(functions.load(&NxOffscreenContext::getProcAddress));
        QCOMPARE(functions.error(), std::string());
    }

private:
    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestGLProblems)
#include "tst_GLProblems.moc"
