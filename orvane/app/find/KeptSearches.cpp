#include "orvane/app/find/KeptSearches.h"

#include "orvane/app/base/AppSettings.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

const QString keptKey = QStringLiteral("find/kept");

struct KeptSearchTexts {
    Q_DECLARE_TR_FUNCTIONS(KeptSearches)
};

} // namespace

KeptSearches::KeptSearches(AppSettings& settings)
    : m_settings(settings)
{
    // Names and texts by turns.
    const QStringList stored = settings.value(keptKey).toStringList();
    for (qsizetype i = 0; i + 1 < stored.size() && m_searches.size() < mostSearches; i += 2)
        m_searches.append({stored[i], stored[i + 1]});
}

QStringList KeptSearches::names() const
{
    QStringList names;
    for (const Search& search : m_searches)
        names.append(search.name);
    std::sort(names.begin(), names.end(),
        [](const QString& left, const QString& right) { return left.localeAwareCompare(right) < 0; });
    return names;
}

QString KeptSearches::text(const QString& name) const
{
    const qsizetype found = find(name);
    return found >= 0 ? m_searches[found].text : QString();
}

QString KeptSearches::nameOf(const QString& text) const
{
    const auto found = std::find_if(
        m_searches.begin(), m_searches.end(), [&text](const Search& search) { return search.text == text; });
    return found != m_searches.end() ? found->name : QString();
}

QString KeptSearches::refusal(const QString& name) const
{
    if (name.isEmpty())
        return KeptSearchTexts::tr("A search needs a name to be kept.");
    if (name.size() > mostCharacters)
        return KeptSearchTexts::tr("The name is longer than %1 characters.").arg(mostCharacters);
    return {};
}

QString KeptSearches::keep(const QString& name, const QString& text)
{
    const QString trimmed = name.simplified();
    if (QString reason = refusal(trimmed); !reason.isEmpty())
        return reason;
    if (find(trimmed) >= 0)
        return KeptSearchTexts::tr("There is a search of that name already.");
    if (m_searches.size() == mostSearches)
        return KeptSearchTexts::tr("%1 searches are kept already. Delete one first.").arg(mostSearches);
    m_searches.append({trimmed, text});
    store();
    return {};
}

QString KeptSearches::rename(const QString& name, const QString& newName)
{
    const QString trimmed = newName.simplified();
    if (QString reason = refusal(trimmed); !reason.isEmpty())
        return reason;
    const qsizetype other = find(trimmed);
    const qsizetype found = find(name);
    if (other >= 0 && other != found)
        return KeptSearchTexts::tr("There is a search of that name already.");
    if (found >= 0)
        m_searches[found].name = trimmed;
    store();
    return {};
}

void KeptSearches::remove(const QString& name)
{
    if (const qsizetype found = find(name); found >= 0)
        m_searches.removeAt(found);
    store();
}

qsizetype KeptSearches::find(const QString& name) const
{
    const auto found = std::find_if(m_searches.begin(), m_searches.end(),
        [&name](const Search& search) { return search.name.compare(name, Qt::CaseInsensitive) == 0; });
    return found != m_searches.end() ? found - m_searches.begin() : -1;
}

void KeptSearches::store()
{
    QStringList stored;
    for (const Search& search : m_searches)
        stored << search.name << search.text;
    m_settings.setValue(keptKey, stored);
}
