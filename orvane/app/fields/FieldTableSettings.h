#pragma once

#include <QSet>
#include <QString>

class AppSettings;

/// What the user has chosen for the field table, kept from run to run.
class FieldTableSettings {
public:
    /// The settings live longer.
    explicit FieldTableSettings(AppSettings& settings)
        : m_settings(settings)
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

    AppSettings& m_settings;
};
