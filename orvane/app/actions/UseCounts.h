#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class AppSettings;

/// How often the user has chosen things that have names, kept in the settings.
class UseCounts {
public:
    /// So many names are kept; of more those that were used least and longest ago are forgotten.
    static constexpr qsizetype mostNames = 200;
    static constexpr int mostCount = 1000;

    /// The settings live longer. The key tells several lists apart.
    UseCounts(AppSettings& settings, const QString& key);

    [[nodiscard]] int count(const QString& name) const { return m_counts.value(name); }
    /// The names, the one that was used last first.
    [[nodiscard]] const QStringList& names() const noexcept { return m_names; }
    void add(const QString& name);

private:
    AppSettings& m_settings;
    QString m_key;
    QStringList m_names;
    QHash<QString, int> m_counts;
};
