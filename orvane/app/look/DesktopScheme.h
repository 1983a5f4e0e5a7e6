#pragma once

#include <QObject>
#include <QtDBus/QDBusVariant> // complete, or the bus doesn't know the type of the slot's parameter

class QDBusPendingCallWatcher;

/// Whether the desktop prefers light or dark windows, as the desktop portal reports it over D-Bus, now and when it
/// changes. Says nothing where there is no bus or no portal.
class DesktopScheme : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~DesktopScheme() override;

    /// Asks without waiting for the answer.
    void start();

Q_SIGNALS:
    /// What the desktop prefers, first and after each change. Light is also meant where it prefers neither.
    void changed(bool isDark);

private Q_SLOTS:
    void takeChange(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void takeAnswer(QDBusPendingCallWatcher* call);
    void take(const QVariant& value);
};
