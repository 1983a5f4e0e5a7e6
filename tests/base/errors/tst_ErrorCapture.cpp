#include "base/HandlerGuard.h"

#include "meridane/base/errors/ErrorCapture.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QTest>

using meridane::ErrorCapture;

class TestErrorCapture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void errorsOfAllClassesGoToTheHandler()
    {
        ErrorCapture::Callbacks callbacks{};
        ErrorCapture::UserData data{};
        ErrorCapture capture(callbacks, data);
        TextRecorder recorder;
        capture.begin(&TextRecorder::record, &recorder);
        NxDebugError::post(NxDebugError::Warning, "debug");
        NxError::post("plain");
        NxErrorStack::post({"outer", "inner"});
        NxGLError::post(0x0500, "draw");
        NxMemoryError::post(nullptr, 0, 5);
        NxReadError::post("file", 1, 2, "read");
        capture.end();
        const std::vector<std::string> expected{"debug", "plain", "outer: inner",
            "draw: OpenGL error 0x0500, invalid enum", "no memory for 5 bytes", "file:1:2: read"};
        QCOMPARE(recorder.texts(), expected);
    }

    void formerHandlersAreSavedInTheOrderOfTheClasses()
    {
        TextRecorder first;
        TextRecorder last;
        const HandlerGuard<NxDebugError> firstGuard(&TextRecorder::record, &first);
        const HandlerGuard<NxReadError> lastGuard(&TextRecorder::record, &last);
        ErrorCapture::Callbacks callbacks{};
        ErrorCapture::UserData data{};
        ErrorCapture capture(callbacks, data);
        TextRecorder captured;
        capture.begin(&TextRecorder::record, &captured);
        const ErrorCapture::Callbacks expectedCallbacks{
            &TextRecorder::record, nullptr, nullptr, nullptr, nullptr, &TextRecorder::record};
        const ErrorCapture::UserData expectedData{&first, nullptr, nullptr, nullptr, nullptr, &last};
        QVERIFY(callbacks == expectedCallbacks);
        QVERIFY(data == expectedData);
        capture.end();
    }

    void endPutsTheFormerHandlersBack()
    {
        TextRecorder former;
        const HandlerGuard<NxError> guard(&TextRecorder::record, &former);
        ErrorCapture::Callbacks callbacks{};
        ErrorCapture::UserData data{};
        ErrorCapture capture(callbacks, data);
        TextRecorder captured;
        capture.begin(&TextRecorder::record, &captured);
        NxError::post("meanwhile");
        capture.end();
        NxError::post("afterwards");
        QCOMPARE(captured.texts(), std::vector<std::string>{"meanwhile"});
        QCOMPARE(former.texts(), std::vector<std::string>{"afterwards"});
        QVERIFY(NxReadError::getHandlerCallback() == nullptr);
        QVERIFY(NxReadError::getHandlerData() == nullptr);
    }
};

QTEST_APPLESS_MAIN(TestErrorCapture)
#include "tst_ErrorCapture.moc"
