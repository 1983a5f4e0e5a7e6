#include "orvane/app/actions/UseCounts.h"

#include "orvane/app/base/AppSettings.h"

#include <algorithm>

UseCounts::UseCounts(AppSettings& settings, const QString& key)
    : m_settings(settings)
    , m_key(key)
{
    for (const QString& entry : settings.value(key).toStringList()) {
        const qsizetype blank = entry.indexOf(u' ');
        bool isNumber = false;
        const int count = entry.left(blank).toInt(&isNumber);
        const QString name = entry.mid(blank + 1);
        if (blank <= 0 || !isNumber || count <= 0 || name.isEmpty() || m_counts.contains(name)
            || m_names.size() == mostNames)
            continue;
        m_names.append(name);
        m_counts.insert(name, std::min(count, mostCount));
    }
}

void UseCounts::add(const QString& name)
{
    m_names.removeOne(name);
    m_names.prepend(name);
    m_counts[name] = std::min(m_counts.value(name) + 1, mostCount);
    if (m_names.size() > mostNames) {
        // Of the older half, so that what is new has time to be used again.
        const auto old = m_names.begin() + mostNames / 2;
        const auto least = std::min_element(std::make_reverse_iterator(m_names.end()), std::make_reverse_iterator(old),
            [this](const QString& left, const QString& right) { return m_counts.value(left) < m_counts.value(right); });
        m_counts.remove(*least);
        m_names.erase(std::next(least).base());
    }
    QStringList entries;
    for (const QString& kept : m_names)
        entries.append(QStringLiteral("%1 %2").arg(m_counts.value(kept)).arg(kept));
    m_settings.setValue(m_key, entries);
}
