#include "orvane/app/settings/SettingsStore.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/settings/SettingList.h"

#include "meridane/base/NxPreferences.h"

#include <QLocale>

namespace {

/// As toolkit preferences have it, where switches are 0 and 1.
VbString preferenceText(const QVariant& value)
{
    QString text = value.toString();
    if (value.typeId() == QMetaType::Bool)
        text = QString::number(value.toBool() ? 1 : 0);
    else if (value.typeId() == QMetaType::Double)
        text = QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return VbString(text.toStdString());
}

} // namespace

SettingsStore& SettingsStore::of(AppSettings& settings)
{
    if (auto* const store = settings.findChild<SettingsStore*>(QString(), Qt::FindDirectChildrenOnly))
        return *store;
    return *new SettingsStore(settings);
}

SettingsStore::SettingsStore(AppSettings& settings)
    : QObject(&settings)
    , m_settings(settings)
{
    for (const Setting& setting : orvane::settingList())
        applyPreference(setting);
    connect(&settings, &AppSettings::changed, this, &SettingsStore::announce);
}

SettingsStore::~SettingsStore()
{
    for (const char* const preference : m_preferences)
        NxPreferences::unset(preference);
}

void SettingsStore::announce(const QString& key)
{
    if (const Setting* const setting = orvane::findSetting(key)) {
        applyPreference(*setting);
        Q_EMIT changed(key);
    }
}

void SettingsStore::applyPreference(const Setting& setting)
{
    if (setting.preference == nullptr)
        return;
    if (const std::optional<QVariant> value = stored(setting)) {
        NxPreferences::set(setting.preference, preferenceText(*value));
        m_preferences.insert(setting.preference);
    } else if (m_preferences.erase(setting.preference) > 0) {
        NxPreferences::unset(setting.preference);
    }
}

std::optional<QVariant> SettingsStore::stored(const Setting& setting) const
{
    return m_settings.contains(setting.key) ? setting.usable(m_settings.value(setting.key)) : std::nullopt;
}

QVariant SettingsStore::ownValue(const Setting& setting) const
{
    return stored(setting).value_or(setting.defaultValue);
}

QVariant SettingsStore::value(const QString& key) const
{
    const Setting* const setting = orvane::findSetting(key);
    Q_ASSERT_X(setting != nullptr, "SettingsStore::value", "the setting must be listed");
    if (const auto overruled = overruling(*setting); overruled && overruled->value.isValid())
        return overruled->value;
    if (const std::optional<QVariant> own = stored(*setting))
        return *own;
    const QVariant fromPreferences = preferred(*setting);
    return fromPreferences.isValid() ? fromPreferences : setting->defaultValue;
}

bool SettingsStore::isChanged(const Setting& setting) const
{
    // The default itself is kept only where it replaces a toolkit preference.
    const std::optional<QVariant> own = stored(setting);
    return own && (*own != setting.defaultValue || setting.preference != nullptr);
}

void SettingsStore::set(const QString& key, const QVariant& value)
{
    const Setting* const setting = orvane::findSetting(key);
    Q_ASSERT_X(setting != nullptr && setting->usable(value), "SettingsStore::set", "the value must be usable");
    // With a value among the toolkit preferences, only a stored default says that the user wants the default.
    if (value == setting->defaultValue && !preferred(*setting).isValid())
        reset(key);
    else
        m_settings.setValue(key, *setting->usable(value));
}

void SettingsStore::reset(const QString& key)
{
    m_settings.remove(key);
}

void SettingsStore::resetAll()
{
    for (const Setting& setting : orvane::settingList())
        reset(setting.key);
}

void SettingsStore::overrule(const QString& key, const QVariant& value, const QString& source)
{
    m_overruled.insert_or_assign(key, Overruling{value, source});
    Q_EMIT changed(key);
}

void SettingsStore::announcePreferences()
{
    for (const Setting& setting : orvane::settingList()) {
        if (setting.preference != nullptr)
            Q_EMIT changed(setting.key);
    }
}

std::optional<SettingsStore::Overruling> SettingsStore::overruling(const Setting& setting) const
{
    if (const auto found = m_overruled.find(setting.key); found != m_overruled.end())
        return found->second;
    if (setting.preference == nullptr || !qEnvironmentVariableIsSet(setting.preference))
        return std::nullopt;
    return Overruling{setting.usable(qEnvironmentVariable(setting.preference)).value_or(QVariant()),
        QString::fromLatin1(setting.preference)};
}

QVariant SettingsStore::preferred(const Setting& setting) const
{
    if (setting.preference == nullptr || qEnvironmentVariableIsSet(setting.preference) || stored(setting))
        return {};
    const QString text = orvane::toQString(NxPreferences::getString(setting.preference, VbString()));
    return text.isEmpty() ? QVariant() : setting.usable(text).value_or(QVariant());
}

QString SettingsStore::unusableValue(const Setting& setting) const
{
    if (!m_settings.contains(setting.key) || stored(setting))
        return {};
    const QVariant value = m_settings.value(setting.key);
    const QString text
        = value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString();
    constexpr int mostShown = 60;
    return text.isEmpty() ? QStringLiteral("?") : orvane::shortLine(text, mostShown);
}

QStringList SettingsStore::unusableValues() const
{
    QStringList sentences;
    for (const Setting& setting : orvane::settingList()) {
        if (const QString value = unusableValue(setting); !value.isEmpty())
            sentences.append(
                tr("The setting %1 has a value that can't be used, \"%2\"; allowed is: %3. It counts as %4.")
                    .arg(setting.key, value, setting.allowedText(), setting.valueText(setting.defaultValue)));
    }
    return sentences;
}
