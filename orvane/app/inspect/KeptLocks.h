#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <map>

class NodeLock;
class Session;

/// Keeps the locks of the inspectors in the settings, so that they are on again when the same file is opened the next
/// time: by the number of the inspector, the file and the path of the node.
class KeptLocks : public QObject {
    Q_OBJECT

public:
    /// More than this aren't kept: those of the files that were used last.
    static constexpr int mostKept = 100;

    /// The session lives longer.
    KeptLocks(Session& session, QObject* parent);

    /// Puts the lock of an inspector on again, and keeps it from now on, as long as it exists.
    void add(int number, NodeLock& lock);
    /// Forgets the lock of an inspector that the user has closed.
    void remove(int number);

Q_SIGNALS:
    /// A node that an inspector was locked on isn't there any more; for the user.
    void lost(const QString& message);

private:
    void restoreAll();
    void restore(int number, NodeLock& lock);
    void storeLater(int number);
    void store(int number, const QString& path);
    [[nodiscard]] QString keyOf(int number) const;

    Session& m_session;
    std::map<int, NodeLock*> m_locks;
};
