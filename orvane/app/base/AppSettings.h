#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <memory>

/// What the tool remembers from run to run: recent files, the window's place and state.
///
/// It is kept in an INI file. A file that can't be understood or read is left exactly as it is: its content isn't used,
/// nothing is written over it, and what is set holds for this run alone.
class AppSettings {
public:
    enum class Mode {
        File, ///< read from and written to the user's settings file
        None, ///< held in memory for this run
    };

    /// Uses the user's own settings file, `orvane/orvane.ini` in the folder for configuration.
    explicit AppSettings(Mode mode);
    AppSettings(Mode mode, const QString& fileName);

    [[nodiscard]] QVariant value(const QString& key, const QVariant& defaultValue = {}) const;
    void setValue(const QString& key, const QVariant& value);
    /// Writes what was set to the file.
    void sync();

    /// What is wrong with the settings file, or empty.
    [[nodiscard]] const QString& problem() const noexcept { return m_problem; }
    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }
    /// The user's settings file.
    [[nodiscard]] static QString defaultFileName();
    /// The user's file of toolkit preferences, in the same folder.
    [[nodiscard]] static QString preferencesFileName();

private:
    QString m_fileName;
    QString m_problem;
    std::unique_ptr<QSettings> m_file; // null where nothing is read or written
    QVariantMap m_memory;
};
