#include "base/HandlerGuard.h"
#include "base/errors/StreamCapture.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/VbName.h"

#include <QTest>

#include <functional>

namespace {

/// One of the six classes: what all of them offer, and a way to post.
struct ErrorClass {
    const char* name;
    NxType type;
    NxErrorHandler (*callback)();
    void* (*data)();
    void (*set)(NxErrorHandler, void*);
    std::function<void()> post;
    std::string text;
};

template <typename T>
ErrorClass describe(const char* name, std::function<void()> post, const char* text)
{
    return {name, T::getClassTypeId(), T::getHandlerCallback, T::getHandlerData, T::setHandlerCallback, std::move(post),
        text};
}

const std::vector<ErrorClass>& errorClasses()
{
    static const std::vector<ErrorClass> classes = {
        describe<NxDebugError>(
            "DebugError", [] { NxDebugError::post(NxDebugError::Error, "debug"); }, "debug"),
        describe<NxError>(
            "Error", [] { NxError::post("plain"); }, "plain"),
        describe<NxErrorStack>(
            "ErrorStack",
            [] {
                NxErrorStack::post({"outer", "inner"});
            },
            "outer: inner"),
        describe<NxGLError>(
            "GLError", [] { NxGLError::post(0x0502, "drawing"); }, "drawing: OpenGL error 0x0502, invalid operation"),
        describe<NxMemoryError>(
            "MemoryError", [] { NxMemoryError::post("a.cpp", 7, 42); }, "a.cpp:7: no memory for 42 bytes"),
        describe<NxReadError>(
            "ReadError", [] { NxReadError::post("a.mrd", 3, 9, "bad"); }, "a.mrd:3:9: bad"),
    };
    return classes;
}

struct Seen {
    int count = 0;
    NxType type;
    std::string text;
};

void see(const NxError* error, void* data)
{
    auto* const seen = static_cast<Seen*>(data);
    ++seen->count;
    seen->type = error->getTypeId();
    seen->text = error->getDebugString().view();
}

} // namespace

class TestNxError : public QObject {
    Q_OBJECT

private:
    static void addClassRows()
    {
        QTest::addColumn<int>("row");
        for (std::size_t i = 0; i < errorClasses().size(); ++i)
            QTest::newRow(errorClasses()[i].name) << static_cast<int>(i);
    }
    static const ErrorClass& currentClass()
    {
        QFETCH(const int, row);
        return errorClasses()[static_cast<std::size_t>(row)];
    }

private Q_SLOTS:
    void everyClassIsRegisteredAndDerivesFromError_data() { addClassRows(); }
    void everyClassIsRegisteredAndDerivesFromError()
    {
        const ErrorClass& tested = currentClass();
        QVERIFY(!tested.type.isBad());
        QCOMPARE(tested.type.getName().getString(), tested.name);
        QVERIFY(tested.type.isDerivedFrom(NxError::getClassTypeId()));
        QVERIFY(tested.type.isDerivedFrom(NxTypedObject::getClassTypeId()));
    }

    void aClassStartsWithoutAHandler_data() { addClassRows(); }
    void aClassStartsWithoutAHandler()
    {
        QVERIFY(currentClass().callback() == nullptr);
        QVERIFY(currentClass().data() == nullptr);
    }

    void handlerAndDataReadBack_data() { addClassRows(); }
    void handlerAndDataReadBack()
    {
        const ErrorClass& tested = currentClass();
        Seen seen;
        tested.set(see, &seen);
        QVERIFY(tested.callback() == see);
        QVERIFY(tested.data() == &seen);
        tested.set(nullptr, nullptr);
        QVERIFY(tested.callback() == nullptr);
        QVERIFY(tested.data() == nullptr);
    }

    void aPostReachesTheHandlerOfItsClassAlone_data() { addClassRows(); }
    void aPostReachesTheHandlerOfItsClassAlone()
    {
        const ErrorClass& tested = currentClass();
        std::vector<Seen> seen(errorClasses().size());
        for (std::size_t i = 0; i < seen.size(); ++i)
            errorClasses()[i].set(see, &seen[i]);
        tested.post();
        for (const ErrorClass& other : errorClasses())
            other.set(nullptr, nullptr);
        for (std::size_t i = 0; i < seen.size(); ++i)
            QCOMPARE(seen[i].count, &errorClasses()[i] == &tested ? 1 : 0);
        const Seen& own = seen[static_cast<std::size_t>(&tested - errorClasses().data())];
        QVERIFY(own.type == tested.type);
        QCOMPARE(own.text, tested.text);
    }

    void withoutAHandlerOneLineGoesToTheErrorStream_data() { addClassRows(); }
    void withoutAHandlerOneLineGoesToTheErrorStream()
    {
        const StreamCapture capture;
        currentClass().post();
        QCOMPARE(capture.text(), "error: " + currentClass().text + "\n");
    }

    void lineBreaksInTheTextBecomeBlanksOnTheErrorStream()
    {
        const StreamCapture capture;
        NxError::post("one\ntwo\r\nthree");
        QCOMPARE(capture.text(), std::string("error: one two  three\n"));
    }

    void anErrorKeepsItsTextAsItStands()
    {
        QCOMPARE(NxError("gr\xC3\xBC\xC3\x9F\n").getDebugString().view(), std::string_view("gr\xC3\xBC\xC3\x9F\n"));
        QVERIFY(NxError(VbString()).getDebugString().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestNxError)
#include "tst_NxError.moc"
