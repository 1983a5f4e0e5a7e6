#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/gpu/NxOffscreenContext.h"

#include <QTest>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

// Plain types, without the headers of a window system.
#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>

namespace {

void* handle(std::uintptr_t number)
{
    return reinterpret_cast<void*>(number);
}

void* const defaultDisplay = handle(1);
void* const surfacelessDisplay = handle(2);
constexpr std::uintptr_t firstDevice = 100;
void* const config = handle(30);
void* const surface = handle(40);
void* const context = handle(50);

/// What a driver can do. One of these takes the place of EGL.
struct Driver {
    void* defaultDisplay = ::defaultDisplay;
    bool hasPlatformDisplays = true;
    bool canListDevices = true;
    bool listsDevices = true;
    const char* clientExtensions = "EGL_MESA_platform_surfaceless EGL_EXT_platform_device";
    const char* displayExtensions = "EGL_KHR_surfaceless_context";
    int devices = 0;
    bool hasOpenGL = true;
    bool hasContexts = true;
    bool notifiesResets = true;
    bool canBeCurrent = true;
    int configs = 1;
    std::vector<void*> working{::defaultDisplay, surfacelessDisplay};
    std::string resetFunction = "glGetGraphicsResetStatus";
    unsigned int resetStatus = 0;

    std::vector<void*> tried;
    void* configOfContext = nullptr;
    void* current = nullptr;
    int contexts = 0;
    int surfaces = 0;
};
Driver driver;

EGLDisplay platformDisplay(EGLenum platform, void* native, const EGLint*)
{
    return platform == EGL_PLATFORM_DEVICE_EXT ? native : surfacelessDisplay;
}

EGLBoolean queryDevices(EGLint room, EGLDeviceEXT* devices, EGLint* count)
{
    *count = std::min(room, driver.devices);
    for (EGLint i = 0; i < *count; ++i)
        devices[i] = handle(firstDevice + static_cast<std::uintptr_t>(i));
    return driver.listsDevices ? EGL_TRUE : EGL_FALSE;
}

unsigned int resetStatus()
{
    return driver.resetStatus;
}

} // namespace

extern "C" {

const char* eglQueryString(EGLDisplay display, EGLint)
{
    return display == EGL_NO_DISPLAY ? driver.clientExtensions : driver.displayExtensions;
}
EGLDisplay eglGetDisplay(EGLNativeDisplayType)
{
    return driver.defaultDisplay;
}
__eglMustCastToProperFunctionPointerType eglGetProcAddress(const char* name)
{
    using Function = __eglMustCastToProperFunctionPointerType;
    const std::string wanted(name);
    if (wanted == "eglGetPlatformDisplayEXT" && driver.hasPlatformDisplays)
        return reinterpret_cast<Function>(&platformDisplay);
    if (wanted == "eglQueryDevicesEXT" && driver.canListDevices)
        return reinterpret_cast<Function>(&queryDevices);
    return wanted == driver.resetFunction ? reinterpret_cast<Function>(&resetStatus) : nullptr;
}
EGLBoolean eglInitialize(EGLDisplay display, EGLint*, EGLint*)
{
    driver.tried.push_back(display);
    return std::find(driver.working.begin(), driver.working.end(), display) != driver.working.end() ? EGL_TRUE
                                                                                                    : EGL_FALSE;
}
EGLBoolean eglBindAPI(EGLenum)
{
    return driver.hasOpenGL ? EGL_TRUE : EGL_FALSE;
}
EGLBoolean eglChooseConfig(EGLDisplay, const EGLint*, EGLConfig* configs, EGLint, EGLint* count)
{
    *configs = config;
    *count = driver.configs;
    return driver.configs < 0 ? EGL_FALSE : EGL_TRUE;
}
EGLContext eglCreateContext(EGLDisplay, EGLConfig chosen, EGLContext, const EGLint* attributes)
{
    bool asksForResets = false;
    for (; *attributes != EGL_NONE; attributes += 2)
        asksForResets = asksForResets || *attributes == EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY;
    if (!driver.hasContexts || (asksForResets && !driver.notifiesResets))
        return EGL_NO_CONTEXT;
    driver.configOfContext = chosen;
    ++driver.contexts;
    return context;
}
EGLBoolean eglDestroyContext(EGLDisplay, EGLContext)
{
    --driver.contexts;
    return EGL_TRUE;
}
EGLSurface eglCreatePbufferSurface(EGLDisplay, EGLConfig, const EGLint*)
{
    ++driver.surfaces;
    return surface;
}
EGLBoolean eglDestroySurface(EGLDisplay, EGLSurface)
{
    --driver.surfaces;
    return EGL_TRUE;
}
EGLContext eglGetCurrentContext()
{
    return driver.current;
}
EGLBoolean eglMakeCurrent(EGLDisplay, EGLSurface, EGLSurface, EGLContext made)
{
    if (!driver.canBeCurrent)
        return EGL_FALSE;
    driver.current = made;
    return EGL_TRUE;
}
}

/// Drivers that can't do everything. They are simulated, so that no machine needs them.
class TestNxOffscreenContextFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { driver = Driver(); }

    void aMissingAbilityIsNamed_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("error");
        QTest::newRow("display") << QStringLiteral("display") << QStringLiteral("there is no EGL display");
        QTest::newRow("OpenGL") << QStringLiteral("OpenGL") << QStringLiteral("the driver has no OpenGL");
        QTest::newRow("version") << QStringLiteral("version") << QStringLiteral("the driver has no OpenGL 3.3");
        QTest::newRow("window") << QStringLiteral("window") << QStringLiteral("the driver can't draw without a window");
    }

    void aMissingAbilityIsNamed()
    {
        QFETCH(const QString, missing);
        QFETCH(const QString, error);
        driver.hasPlatformDisplays = false;
        if (missing == QStringLiteral("display"))
            driver.defaultDisplay = EGL_NO_DISPLAY;
        driver.hasOpenGL = missing != QStringLiteral("OpenGL");
        driver.hasContexts = missing != QStringLiteral("version");
        driver.canBeCurrent = missing != QStringLiteral("window");
        NxOffscreenContext tested;
        QVERIFY(!tested.isValid());
        QCOMPARE(QString::fromUtf8(tested.error().toUtf8()), error);
        QVERIFY(!tested.makeCurrent());
        QCOMPARE(driver.contexts, 0);
    }

    void theDisplaysAreTriedInOrder_data()
    {
        QTest::addColumn<QByteArray>("extensions"); // empty: the driver has no list
        QTest::addColumn<bool>("canListDevices");
        QTest::addColumn<bool>("listsDevices");
        QTest::addColumn<QList<qulonglong>>("tried");
        const QByteArray surfaceless("EGL_MESA_platform_surfaceless");
        const QByteArray device("EGL_EXT_platform_device");
        using List = QList<qulonglong>;
        QTest::newRow("none but the default") << QByteArray("EGL_EXT_other") << true << true << List{1};
        QTest::newRow("no list of extensions") << QByteArray() << true << true << List{1};
        QTest::newRow("without a surface") << surfaceless << true << true << List{2, 1};
        QTest::newRow("devices") << device << true << true << List{100, 101, 1};
        QTest::newRow("both") << device + ' ' + surfaceless << true << true << List{2, 100, 101, 1};
        QTest::newRow("devices can't be listed") << device << false << true << List{1};
        QTest::newRow("listing the devices fails") << device << true << false << List{1};
        QTest::newRow("parts of longer names") << "X" + surfaceless + ' ' + device + "_drm" << true << true << List{1};
        QTest::newRow("behind a longer name") << device + "_drm " + device << true << true << List{100, 101, 1};
    }

    void theDisplaysAreTriedInOrder()
    {
        QFETCH(const QByteArray, extensions);
        QFETCH(const bool, canListDevices);
        QFETCH(const bool, listsDevices);
        QFETCH(const QList<qulonglong>, tried);
        driver.clientExtensions = extensions.isEmpty() ? nullptr : extensions.constData();
        driver.canListDevices = canListDevices;
        driver.listsDevices = listsDevices;
        driver.devices = 2;
        driver.working = {};
        QVERIFY(!NxOffscreenContext().isValid());
        QList<qulonglong> found;
        for (void* const display : driver.tried)
            found.append(reinterpret_cast<std::uintptr_t>(display));
        QCOMPARE(found, tried);
    }

    void theNextDisplayServesWhereOneFails()
    {
        driver.working = {defaultDisplay};
        const NxOffscreenContext tested;
        QVERIFY(tested.isValid());
        QVERIFY(tested.error().isEmpty());
        QCOMPARE(driver.tried, (std::vector<void*>{surfacelessDisplay, defaultDisplay}));
    }

    void aDriverThatReportsNoResetsIsUsed()
    {
        driver.notifiesResets = false;
        const NxOffscreenContext tested;
        QVERIFY(tested.isValid());
        QCOMPARE(driver.contexts, 1);
    }

    void aDriverThatNeedsASurfaceGetsTheSmallest()
    {
        driver.displayExtensions = "";
        {
            NxOffscreenContext tested;
            QVERIFY(tested.isValid());
            QCOMPARE(driver.surfaces, 1);
        }
        QCOMPARE(driver.surfaces, 0);
        QCOMPARE(driver.contexts, 0);
    }

    void aDisplayWithoutSurfacesNeedsNoConfiguration_data()
    {
        QTest::addColumn<int>("configs");
        QTest::addColumn<bool>("isChosen");
        QTest::newRow("one") << 1 << true;
        QTest::newRow("none") << 0 << false;
        QTest::newRow("the question fails") << -1 << false;
    }

    void aDisplayWithoutSurfacesNeedsNoConfiguration()
    {
        QFETCH(const int, configs);
        QFETCH(const bool, isChosen);
        driver.configs = configs;
        QVERIFY(NxOffscreenContext().isValid());
        QCOMPARE(driver.configOfContext, isChosen ? config : EGL_NO_CONFIG_KHR);
    }

    void theContextIsNoLongerCurrentAfterItsDestruction()
    {
        {
            NxOffscreenContext tested;
            QVERIFY(driver.current == nullptr);
            QVERIFY(tested.makeCurrent());
            QCOMPARE(driver.current, context);
            QVERIFY(tested.makeCurrent());
        }
        QVERIFY(driver.current == nullptr);
    }

    void aResetIsReported_data()
    {
        QTest::addColumn<QByteArray>("function");
        QTest::addColumn<uint>("status");
        QTest::addColumn<bool>("isLost");
        QTest::newRow("none") << QByteArray("glGetGraphicsResetStatus") << 0U << false;
        QTest::newRow("reset") << QByteArray("glGetGraphicsResetStatus") << 0x8253U << true;
        QTest::newRow("by the extension") << QByteArray("glGetGraphicsResetStatusARB") << 0x8253U << true;
        QTest::newRow("not known") << QByteArray() << 0x8253U << false;
    }

    void aResetIsReported()
    {
        QFETCH(const QByteArray, function);
        QFETCH(const uint, status);
        QFETCH(const bool, isLost);
        driver.resetFunction = function.toStdString();
        driver.resetStatus = status;
        QCOMPARE(NxOffscreenContext::isLost(), isLost);
    }

    void theFirstMissingFunctionIsNamed()
    {
        NxGLFunctions functions;
        QVERIFY(!functions.load(&NxOffscreenContext::getProcAddress));
        QCOMPARE(functions.error(), std::string("the OpenGL function glActiveTexture is missing"));
    }
};

QTEST_APPLESS_MAIN(TestNxOffscreenContextFaults)
#include "tst_NxOffscreenContextFaults.moc"
