#include "Patience.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Theme.h"
#include "orvane/app/look/ThemePalette.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QProcess>
#include <QRegularExpression>
#include <QStyle>
#include <QTest>
#include <QToolTip>
#include <QWidget>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>

#include <array>
#include <memory>

using namespace orvane::look;

/// The settings of a desktop portal, as programs see them over the bus.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public Q_SLOTS:
    QDBusVariant Read(const QString& space, const QString& key) // NOLINT: the bus has this name
    {
        ++asked;
        const bool isKnown
            = space == QStringLiteral("org.freedesktop.appearance") && key == QStringLiteral("color-scheme");
        // In a second variant, as the first version of the portal has it.
        return isKnown ? QDBusVariant(QVariant::fromValue(QDBusVariant(scheme))) : QDBusVariant(QString());
    }

public:
    uint scheme = 0;
    int asked = 0;
};

// Light or dark windows, by the user's choice or the desktop's.
class TestTheme : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] std::unique_ptr<Theme> makeTheme()
    {
        return std::make_unique<Theme>(SettingsStore::of(*m_settings), nullptr);
    }

    static bool isLight() { return QApplication::palette() == lightPalette(); }
    static bool isDark() { return QApplication::palette() == darkPalette(); }

    /// The texts of a palette and what they are painted on.
    struct Pair {
        const char* name;
        QPalette::ColorRole text;
        QPalette::ColorRole background;
    };
    static constexpr std::array pairs{
        Pair{"texts of the window", QPalette::WindowText, QPalette::Window},
        Pair{"texts that are edited or listed", QPalette::Text, QPalette::Base},
        Pair{"every other row", QPalette::Text, QPalette::AlternateBase},
        Pair{"buttons", QPalette::ButtonText, QPalette::Button},
        Pair{"buttons without a frame", QPalette::ButtonText, QPalette::Window},
        Pair{"what is selected", QPalette::HighlightedText, QPalette::Highlight},
        Pair{"empty lines", QPalette::PlaceholderText, QPalette::Base},
        Pair{"links", QPalette::Link, QPalette::Window},
        Pair{"links in pages", QPalette::Link, QPalette::Base},
        Pair{"links that were followed", QPalette::LinkVisited, QPalette::Base},
        Pair{"tool tips", QPalette::ToolTipText, QPalette::ToolTipBase},
    };

private Q_SLOTS:
    void initTestCase() { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); }
    void init() { m_settings = std::make_unique<AppSettings>(AppSettings::Mode::None); }
    void cleanup()
    {
        QApplication::setPalette(QPalette());
        m_settings.reset();
    }

    void withoutADesktopItIsLight()
    {
        QCOMPARE(QApplication::palette(), QApplication::style()->standardPalette());
        const auto theme = makeTheme();
        QCOMPARE(theme->choice(), Theme::Choice::System);
        theme->followPortal();
        QVERIFY(isLight());
    }

    void theChoiceHoldsAtOnceAndIsKept()
    {
        auto theme = makeTheme();
        QWidget window;
        window.show();
        theme->actions().at(2)->trigger();
        QVERIFY(isDark());
        QTRY_COMPARE(window.palette().color(QPalette::Window), darkPalette().color(QPalette::Window));
        QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase), darkPalette().color(QPalette::ToolTipBase));
        QVERIFY(theme->actions().at(2)->isChecked());
        theme.reset();
        QApplication::setPalette(QPalette());
        theme = makeTheme();
        QCOMPARE(theme->choice(), Theme::Choice::Dark);
        QVERIFY(isDark());
        theme->followPortal();
        theme->actions().at(1)->trigger();
        QVERIFY(isLight());
        theme->actions().at(0)->trigger();
        QCOMPARE(theme->choice(), Theme::Choice::System);
        QVERIFY(isLight());
    }

    /// The Settings window sets the same.
    void theSettingIsFollowed()
    {
        const auto theme = makeTheme();
        theme->followPortal();
        SettingsStore::of(*m_settings).set(QStringLiteral("look/theme"), QStringLiteral("dark"));
        QVERIFY(isDark());
        QVERIFY(theme->actions().at(2)->isChecked());
        SettingsStore::of(*m_settings).reset(QStringLiteral("look/theme"));
        QVERIFY(isLight());
        QVERIFY(theme->actions().at(0)->isChecked());
    }

    /// On a bus of its own.
    void thePortalIsFollowed()
    {
        QProcess bus;
        bus.start(QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        QVERIFY2(bus.waitForStarted(testPatience), qPrintable(bus.errorString()));
        QVERIFY(bus.waitForReadyRead(testPatience));
        const QByteArray address = bus.readLine().trimmed();
        Portal portal;
        portal.scheme = 1;
        auto service = QDBusConnection::connectToBus(QString::fromUtf8(address), QStringLiteral("portal"));
        QVERIFY(service.isConnected());
        QVERIFY(service.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), &portal, QDBusConnection::ExportAllSlots));
        QVERIFY(service.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));

        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        const auto theme = makeTheme();
        theme->followPortal();
        QVERIFY(isLight()); // until it answers
        QTRY_VERIFY_WITH_TIMEOUT(isDark(), testPatience);
        QCOMPARE(portal.asked, 1);
        // The user's own choice counts more.
        theme->choose(Theme::Choice::Light);
        QVERIFY(isLight());
        theme->choose(Theme::Choice::System);
        QTRY_VERIFY_WITH_TIMEOUT(isDark(), testPatience);
        // What changes later is followed; other settings are not.
        const auto announce = [&service](const char* key, uint value) {
            auto change = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
            change << QStringLiteral("org.freedesktop.appearance") << QString(QLatin1String(key))
                   << QVariant::fromValue(QDBusVariant(value));
            QVERIFY(service.send(change));
        };
        announce("color-scheme", 2);
        QTRY_VERIFY_WITH_TIMEOUT(isLight(), testPatience);
        announce("contrast", 1);
        announce("color-scheme", 0);
        announce("color-scheme", 1);
        QTRY_VERIFY_WITH_TIMEOUT(isDark(), testPatience);
        QCOMPARE(portal.asked, 1);
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
        bus.terminate();
        QVERIFY(bus.waitForFinished(testPatience));
    }

    void noBusCostsNothing()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
        const auto theme = makeTheme();
        theme->followPortal();
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        QVERIFY(isLight());
    }

    void eachTextIsReadable()
    {
        for (const QPalette& palette : {lightPalette(), darkPalette()}) {
            for (const Pair& pair : pairs) {
                for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                    const double found
                        = contrast(palette.color(group, pair.text), palette.color(group, pair.background));
                    QVERIFY2(found >= (group == QPalette::Disabled ? markContrast : textContrast),
                        qPrintable(QStringLiteral("%1 %2 %3").arg(QLatin1String(pair.name)).arg(group).arg(found)));
                }
            }
        }
    }

    void theDocumentationHasTheFigures()
    {
        QStringList rows;
        for (const Pair& pair : pairs) {
            QString row = QStringLiteral("| %1 |").arg(QLatin1String(pair.name));
            for (const QPalette& palette : {lightPalette(), darkPalette()}) {
                for (const auto group : {QPalette::Active, QPalette::Disabled}) {
                    const QColor text = palette.color(group, pair.text);
                    const QColor background = palette.color(group, pair.background);
                    row += group == QPalette::Active ? QStringLiteral(" %1 on %2 |").arg(text.name(), background.name())
                                                     : QString();
                    row += QStringLiteral(" %1 |").arg(contrast(text, background), 0, 'f', 1);
                }
            }
            rows += row;
        }
        QFile page(QString::fromUtf8(ORVANE_SOURCES "/docs/look.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        for (const QString& row : std::as_const(rows))
            QVERIFY2(text.contains(row), qPrintable(rows.join(u'\n')));
    }

private:
    std::unique_ptr<AppSettings> m_settings;
};

QTEST_MAIN(TestTheme)
#include "tst_Theme.moc"
