#include "orvane/app/fields/FieldTableSettings.h"

#include "orvane/app/base/AppSettings.h"

#include <QStringList>

#include <algorithm>

namespace {

const QString favoritesKey = QStringLiteral("fieldTable/favorites");
const QString deferredKey = QStringLiteral("fieldTable/deferred");
const QString foldedKey = QStringLiteral("fieldTable/folded");
const QString typeShownKey = QStringLiteral("fieldTable/typeShown");
constexpr int widestColumn = 10'000;

QString widthKey(int column)
{
    return QStringLiteral("fieldTable/width%1").arg(column);
}

} // namespace

QSet<QString> FieldTableSettings::favorites() const
{
    const QStringList list = m_settings.value(favoritesKey).toStringList();
    return {list.begin(), list.end()};
}

void FieldTableSettings::setFavorite(const QString& key, bool favorite)
{
    change(favoritesKey, key, favorite);
}

bool FieldTableSettings::isDeferred(const QString& key) const
{
    return m_settings.value(deferredKey).toStringList().contains(key);
}

void FieldTableSettings::setDeferred(const QString& key, bool deferred)
{
    change(deferredKey, key, deferred);
}

bool FieldTableSettings::isFolded(const QString& key) const
{
    return m_settings.value(foldedKey).toStringList().contains(key);
}

void FieldTableSettings::setFolded(const QString& key, bool folded)
{
    change(foldedKey, key, folded);
}

int FieldTableSettings::columnWidth(int column) const
{
    return std::clamp(columnValue(widthKey(column)).toInt(), 0, widestColumn);
}

void FieldTableSettings::setColumnWidth(int column, int width)
{
    setColumnValue(widthKey(column), width);
}

bool FieldTableSettings::isTypeShown() const
{
    return columnValue(typeShownKey).toBool();
}

void FieldTableSettings::setTypeShown(bool shown)
{
    setColumnValue(typeShownKey, shown);
}

QVariant FieldTableSettings::columnValue(const QString& key) const
{
    return m_settings.value(key + m_table, m_table.isEmpty() ? QVariant() : m_settings.value(key));
}

void FieldTableSettings::setColumnValue(const QString& key, const QVariant& value)
{
    m_settings.setValue(key + m_table, value);
}

void FieldTableSettings::change(const QString& list, const QString& key, bool contained)
{
    QStringList keys = m_settings.value(list).toStringList();
    keys.removeAll(key);
    if (contained)
        keys += key;
    m_settings.setValue(list, keys);
}
