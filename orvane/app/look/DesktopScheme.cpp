#include "orvane/app/look/DesktopScheme.h"

#include <QFile>
#include <QMetaType>
#include <QStandardPaths>
#include <QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>

namespace {

constexpr uint prefersDark = 1; // 2 is light, 0 neither

const QString connectionName = QStringLiteral("orvane-look");
const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString space = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

/// The address of the bus, or empty. The bus library starts a bus of its own where it finds none, which takes time.
QString addressOfBus()
{
    const QString given = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    return !given.isEmpty() || !QFile::exists(socket) ? given : QStringLiteral("unix:path=") + socket;
}

} // namespace

DesktopScheme::~DesktopScheme()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

void DesktopScheme::start()
{
    const QString address = addressOfBus();
    if (address.isEmpty())
        return;
    QDBusConnection bus = QDBusConnection::connectToBus(address, connectionName);
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // the bus looks up the types of the slot by their names
    // Without the name of the service, whose owner would be asked for while this waits.
    bus.connect(QString(), path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(takeChange(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(portal, path, interface, QStringLiteral("Read"));
    question << space << key;
    auto* const call = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &DesktopScheme::takeAnswer);
}

void DesktopScheme::takeAnswer(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<QDBusVariant> answer = *call;
    if (!answer.isError())
        take(answer.value().variant());
    call->deleteLater();
}

void DesktopScheme::takeChange(const QString& changedSpace, const QString& changedKey, const QDBusVariant& value)
{
    if (changedSpace == space && changedKey == key)
        take(value.variant());
}

void DesktopScheme::take(const QVariant& value)
{
    // Some portals put the value into a second variant.
    const QVariant plain = value.canConvert<QDBusVariant>() ? qvariant_cast<QDBusVariant>(value).variant() : value;
    bool isNumber = false;
    const uint scheme = plain.toUInt(&isNumber);
    if (isNumber)
        Q_EMIT changed(scheme == prefersDark);
}
