#include "app/WindowCase.h"

#include "orvane/app/base/SearchFolders.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>

#include <utility>

/// The first window on a screen of the size and scale that the environment gives, such as SCREEN=1366x768@1.5, and one
/// that comes back where its screen has gone.
class TestFirstWindow : public WindowCase {
    Q_OBJECT

private:
    void makeWholeWindow()
    {
        makeWindow();
        QVERIFY(m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders())).isEmpty());
        QVERIFY(m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)}).isEmpty());
        QVERIFY(m_session->activateProfile(QString()));
        QCOMPARE(open(QStringLiteral(ROBOT_FILE)), QString());
    }

    [[nodiscard]] QRect screen() const { return m_window->screen()->availableGeometry(); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(QGuiApplication::screens().size() == 1); }
    void cleanup() { endTool(); }

    void itFitsItsScreen()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        makeWholeWindow();
        m_window->followDesktop();
        QApplication::processEvents();
        const QSize least = m_window->minimumSizeHint();
        QVERIFY2(m_window->width() <= screen().width() && m_window->height() < screen().height(),
            qPrintable(QStringLiteral("%1x%2 at least %3x%4")
                           .arg(m_window->width())
                           .arg(m_window->height())
                           .arg(least.width())
                           .arg(least.height())));
        // As large as it can be, up to its usual size.
        QVERIFY(m_window->width() >= std::min(1270, screen().width() - 20));
        QVERIFY(m_window->height() >= std::min(790, screen().height() - 60));
    }

    /// Further to the right than all screens, and larger.
    void aPlaceOnAScreenThatHasGoneComesBack()
    {
        startTool();
        m_window->setGeometry(
            screen().right() + 500, screen().bottom() + 100, 2 * screen().width(), 3 * screen().height());
        m_window->close();
        makeWindow();
        m_window->followDesktop();
        const QRect place = m_window->geometry();
        QVERIFY2(screen().contains(place.topLeft()) && place.width() <= screen().width()
                && place.height() <= screen().height(),
            qPrintable(
                QStringLiteral("%1 %2 %3x%4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height())));
    }

    /// What is painted has the pixels of the screen.
    void itIsSharp()
    {
        startTool();
        const QPixmap picture = m_window->grab();
        QCOMPARE(picture.devicePixelRatio(), m_window->screen()->devicePixelRatio());
        QCOMPARE(picture.size(), m_window->size() * picture.devicePixelRatio());
    }
};

namespace {

/// The file that describes the screen for the platform without one.
QString describeScreen(const QTemporaryDir& folder)
{
    const QString text = qEnvironmentVariable("SCREEN", QStringLiteral("1280x1024@1"));
    const QStringList parts = text.split(u'@');
    const QStringList sides = parts[0].split(u'x');
    const double ratio = parts[1].toDouble();
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("screen")}, {QStringLiteral("x"), 0},
        {QStringLiteral("y"), 0}, {QStringLiteral("width"), sides[0].toInt() / ratio},
        {QStringLiteral("height"), sides[1].toInt() / ratio}, {QStringLiteral("dpr"), ratio},
        {QStringLiteral("logicalDpi"), 96}, {QStringLiteral("logicalBaseDpi"), 96}};
    QString fileName = folder.filePath(QStringLiteral("screen.json"));
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(
            QJsonObject{{QStringLiteral("synchronousWindowSystemEvents"), false},
                {QStringLiteral("windowFrameMargins"), true}, {QStringLiteral("screens"), QJsonArray{screen}}})
                       .toJson());
    return fileName;
}

} // namespace

int main(int count, char** arguments)
{
    const QTemporaryDir folder;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(describeScreen(folder)));
    QApplication application(count, arguments);
    TestFirstWindow test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_FirstWindow.moc"
