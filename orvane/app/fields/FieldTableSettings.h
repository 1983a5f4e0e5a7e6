#pragma once

#include <QSet>
#include <QString>
#include <QVariant>

#include <utility>

class AppSettings;

/// What the user has chosen for the field table, kept from run to run.
class FieldTableSettings {
public:
    /// The settings live longer. `table` tells the columns of several tables apart; what wasn't chosen for one is as in
    /// the table with the empty name.
    explicit FieldTableSettings(AppSettings& settings, QString table = {})
        : m_settings(settings)
        , m_table(std::move(table))
    {
    }

    /// The keys of the favourite fields, see `orvane::favoriteKey`.
    [[nodiscard]] QSet<QString> favorites() const;
    void setFavorite(const QString& key, bool favorite);

    /// Whether the field with that key, see `orvane::favoriteKey`, is written only when its edit is done.
    [[nodiscard]] bool isDeferred(const QString& key) const;
    void setDeferred(const QString& key, bool deferred);

    /// Whether the group with that key is folded.
    [[nodiscard]] bool isFolded(const QString& key) const;
    void setFolded(const QString& key, bool folded);

    /// The width of a column in pixels; 0 if the user hasn't chosen one.
    [[nodiscard]] int columnWidth(int column) const;
    void setColumnWidth(int column, int width);

    /// Whether the column with the types is shown.
    [[nodiscard]] bool isTypeShown() const;
    void setTypeShown(bool shown);

private:
    void change(const QString& list, const QString& key, bool contained);

    [[nodiscard]] QVariant columnValue(const QString& key) const;
    void setColumnValue(const QString& key, const QVariant& value);

    AppSettings& m_settings;
    QString m_table;
};
