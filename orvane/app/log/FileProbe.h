#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>

/// Finds out which files exist, in a thread of its own, since a file system may take its time or never answer.
///
/// It waits for nothing when it is destroyed. Thread of the user interface only.
class FileProbe : public QObject {
    Q_OBJECT

public:
    enum class State { Unknown, Missing, File, Folder };

    explicit FileProbe(QObject* parent = nullptr);
    ~FileProbe() override;

    /// What is known of an absolute path. If that is nothing, it is looked for.
    [[nodiscard]] State look(const QString& path);

Q_SIGNALS:
    /// Something is known that wasn't.
    void answered();

private:
    struct Receiver;

    void start();
    void take(const QHash<QString, State>& answers);

    std::shared_ptr<Receiver> m_receiver; // shared with the thread
    QHash<QString, State> m_known;
    QStringList m_waiting;
    bool m_isLooking = false;
};
