#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

/// What the tool keeps from run to run: the settings, and what it remembers, such as recent files and the window's
/// place.
///
/// It is kept in an INI file with a version. A file of an older version is converted. What is set is written soon
/// after, value by value, so that programs that run at the same time don't lose each other's values. A file that can't
/// be understood or read, or that a later version has written, is left exactly as it is: what is readable in it is
/// used, and what is set holds for this run alone.
class AppSettings : public QObject {
    Q_OBJECT

public:
    enum class Mode {
        File, ///< read from and written to the user's settings file
        None, ///< held in memory for this run
    };

    /// The version of the files that this program writes. Files without a version have version 1.
    static constexpr int currentVersion = 2;

    /// Uses the user's own settings file, `orvane/orvane.ini` in the folder for configuration.
    explicit AppSettings(Mode mode);
    AppSettings(Mode mode, QString fileName);
    /// Writes what was set.
    ~AppSettings() override;

    [[nodiscard]] QVariant value(const QString& key, const QVariant& defaultValue = {}) const;
    [[nodiscard]] bool contains(const QString& key) const { return m_values.contains(key); }
    void setValue(const QString& key, const QVariant& value);
    void remove(const QString& key);
    /// Writes what was set to the file, and takes over what other programs have written there since.
    void sync();

    /// Why the file isn't read or written, in the present language, or empty.
    [[nodiscard]] QString problem() const;
    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }
    /// All values of a settings file that can be read, as they are in it. Nothing is written.
    [[nodiscard]] static QVariantMap valuesOf(const QString& fileName);
    /// The version of the file with these values.
    [[nodiscard]] static int versionOf(const QVariantMap& values);
    /// The values as the present version has them.
    [[nodiscard]] static QVariantMap converted(QVariantMap values);
    [[nodiscard]] static QString versionKey();
    /// The user's settings file.
    [[nodiscard]] static QString defaultFileName();
    /// The user's file of toolkit preferences, in the same folder.
    [[nodiscard]] static QString preferencesFileName();

Q_SIGNALS:
    /// A value has changed: it was set to another one or removed, here or, at `sync`, by another program.
    void changed(const QString& key);
    /// There is a problem now that wasn't there when the file was read: it can't be written any more. Emitted once.
    void failed();

private:
    enum class Trouble {
        None,
        NoFile, ///< something else has the file's name
        Unreadable,
        NoSetting, ///< a line isn't one
        NoEnd, ///< the last line isn't complete
        LaterVersion,
        Unwritable,
    };

    void read();
    [[nodiscard]] Trouble check();
    [[nodiscard]] Trouble checkLines(QIODevice& file);
    void put(const QString& key, const QVariant& value);
    void takeOver(const QVariantMap& values);
    [[nodiscard]] bool write(const QVariantMap& values) const;
    void fail(Trouble trouble);
    [[nodiscard]] QString reason() const;

    Mode m_mode;
    QString m_fileName;
    Trouble m_trouble = Trouble::None;
    QString m_systemReason; // of a file that can't be opened
    int m_number = 0; // the line, or the version, with the trouble
    QVariantMap m_values; // an invalid one of the map is never kept
    QMap<QString, QVariant> m_unwritten; // invalid for what is to be removed
    bool m_willSync = false;
};
