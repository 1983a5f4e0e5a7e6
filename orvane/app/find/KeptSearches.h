#pragma once

#include <QString>
#include <QStringList>

class AppSettings;

/// The searches that the user keeps by a name, stored with the settings. Names are in their alphabetical order.
class KeptSearches {
public:
    static constexpr int mostSearches = 100;
    static constexpr int mostCharacters = 60; ///< of a name

    /// The settings live longer.
    explicit KeptSearches(AppSettings& settings);

    [[nodiscard]] QStringList names() const;
    /// The text of a search; empty if there is none of that name.
    [[nodiscard]] QString text(const QString& name) const;
    /// The name of a search with that text; empty if there is none.
    [[nodiscard]] QString nameOf(const QString& text) const;

    /// Keeps a search. Returns why it can't be kept by that name, or nothing.
    QString keep(const QString& name, const QString& text);
    /// Gives a search another name. Returns why it can't have it, or nothing.
    QString rename(const QString& name, const QString& newName);
    void remove(const QString& name);

private:
    struct Search {
        QString name;
        QString text;
    };

    [[nodiscard]] QString refusal(const QString& name) const;
    [[nodiscard]] qsizetype find(const QString& name) const;
    void store();

    AppSettings& m_settings;
    QList<Search> m_searches;
};
