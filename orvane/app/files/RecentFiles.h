#pragma once

#include <QObject>
#include <QStringList>

class AppSettings;

/// The files that were opened or saved last, the latest first. Kept in the settings.
class RecentFiles : public QObject {
    Q_OBJECT

public:
    static constexpr int capacity = 10;

    /// The settings live longer than the object.
    explicit RecentFiles(AppSettings& settings, QObject* parent = nullptr);

    [[nodiscard]] QStringList fileNames() const;
    void add(const QString& fileName);
    void remove(const QString& fileName);
    void clear();

Q_SIGNALS:
    void changed();

private:
    void set(const QStringList& fileNames);

    AppSettings& m_settings;
};
