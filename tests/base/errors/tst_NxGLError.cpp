#include "meridane/base/errors/NxGLError.h"

#include <QTest>

class TestNxGLError : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextTellsOperationCodeAndMeaning_data()
    {
        QTest::addColumn<unsigned int>("code");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("enum") << 0x0500U << QByteArray("draw: OpenGL error 0x0500, invalid enum");
        QTest::newRow("value") << 0x0501U << QByteArray("draw: OpenGL error 0x0501, invalid value");
        QTest::newRow("operation") << 0x0502U << QByteArray("draw: OpenGL error 0x0502, invalid operation");
        QTest::newRow("overflow") << 0x0503U << QByteArray("draw: OpenGL error 0x0503, stack overflow");
        QTest::newRow("underflow") << 0x0504U << QByteArray("draw: OpenGL error 0x0504, stack underflow");
        QTest::newRow("memory") << 0x0505U << QByteArray("draw: OpenGL error 0x0505, out of memory");
        QTest::newRow("framebuffer") << 0x0506U
                                     << QByteArray("draw: OpenGL error 0x0506, invalid framebuffer operation");
        QTest::newRow("context") << 0x0507U << QByteArray("draw: OpenGL error 0x0507, context lost");
        QTest::newRow("unknown") << 0xFFFFFFFFU << QByteArray("draw: OpenGL error 0xffffffff, unknown error");
    }
    void theTextTellsOperationCodeAndMeaning()
    {
        QFETCH(const unsigned int, code);
        QFETCH(const QByteArray, text);
        const NxGLError error(code, "draw");
        QCOMPARE(QByteArray(error.getDebugString().toUtf8()), text);
        QCOMPARE(error.getCode(), code);
    }
};

QTEST_APPLESS_MAIN(TestNxGLError)
#include "tst_NxGLError.moc"
