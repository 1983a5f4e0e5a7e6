#pragma once

#include <QObject>
#include <QStringList>

class AppSettings;

/// The files that were opened or saved last, the latest first, and those that the user has pinned. Kept in the
/// settings, which several programs may share. Nothing here asks the file system.
class RecentFiles : public QObject {
    Q_OBJECT

public:
    static constexpr int capacity = 200;
    /// So many are shown where there is little room.
    static constexpr int menuCapacity = 10;

    /// The settings live longer than the object.
    explicit RecentFiles(AppSettings& settings, QObject* parent = nullptr);

    [[nodiscard]] QStringList fileNames() const;
    void add(const QString& fileName);
    /// Takes a file off the list, pinned or not.
    void remove(const QString& fileName);
    void remove(const QStringList& fileNames);
    /// Forgets all but the pinned ones.
    void clear();

    /// The files that are kept until the user removes them, in the order in which they were pinned.
    [[nodiscard]] QStringList pinned() const;
    void setPinned(const QString& fileName, bool pinned);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QStringList read(const QString& name) const;
    void write(const QString& name, const QStringList& fileNames);

    AppSettings& m_settings;
};
