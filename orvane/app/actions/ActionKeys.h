#pragma once

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

class AppSettings;
class QAction;
class QMainWindow;

/// The keys of the actions of a window: those that the actions came with, and those that the user gave them.
///
/// In a part of the window that has a key of its own, such as the List dock, an action of the whole window leaves that
/// key to it.
///
/// The settings keep the keys that differ. Keys of actions that this window doesn't have, such as those of an extension
/// that isn't loaded, are kept as they are. User-interface thread only.
class ActionKeys : public QObject {
    Q_OBJECT

public:
    /// Gives the actions the user's keys, also those that the window gets later. Both live longer.
    ActionKeys(QMainWindow* window, AppSettings& settings);
    ~ActionKeys() override;

    using Keys = QList<QKeySequence>;

    [[nodiscard]] Keys keys(const QString& name) const;
    [[nodiscard]] Keys defaults(const QString& name) const;
    [[nodiscard]] bool isChanged(const QString& name) const { return m_changed.contains(name); }
    [[nodiscard]] bool hasChanges() const { return !m_changed.isEmpty(); }

    /// Why a key can't be given to an action; empty if it can.
    [[nodiscard]] QString refusal(const QString& name, const QKeySequence& key) const;
    /// The names of the other actions that have this key, or one that begins with it or that it begins with, where both
    /// could be meant. A part of the window may have a key that an action of the whole window has, too.
    [[nodiscard]] QStringList conflicts(const QString& name, const QKeySequence& key) const;

    /// Gives an action these keys and no others.
    void setKeys(const QString& name, const Keys& keys);
    /// Takes a key from an action, which keeps its others.
    void takeKey(const QString& name, const QKeySequence& key);
    /// Gives an action its own keys again.
    void reset(const QString& name);
    void resetAll();

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void changed();

private:
    void read();
    void store();
    void apply();
    void applyTo(const QString& name);
    void leaveKeysTo(const QWidget* focus);
    [[nodiscard]] Keys ownKeys(const QAction& action) const;

    QMainWindow* m_window;
    AppSettings& m_settings;
    QHash<QString, Keys> m_changed;
    QStringList m_unread; ///< entries of the settings that make no sense to this version
    QTimer m_applySoon;
    QList<QPointer<QAction>> m_leaving; ///< actions of the whole window that leave their keys to the focus
};
