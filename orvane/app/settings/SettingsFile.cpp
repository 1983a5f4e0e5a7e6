#include "orvane/app/settings/SettingsFile.h"

#include "orvane/app/settings/SettingList.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

constexpr qint64 mostBytes = qint64{1} << 20;

struct SettingsFiles {
    Q_DECLARE_TR_FUNCTIONS(SettingsFiles)
};

orvane::Failure failure(const QString& fileName, const QString& reason)
{
    return {QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(fileName), reason)};
}

orvane::Failure failureAt(const QString& fileName, int line, const QString& reason)
{
    return failure(fileName, SettingsFiles::tr("line %1: %2").arg(line).arg(reason));
}

/// The line of each key of an INI file.
using Lines = QHash<QString, int>;

orvane::Result<Lines> readLines(const QString& fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || file.size() > mostBytes)
        return failure(fileName, SettingsFiles::tr("it isn't a file of settings"));
    if (!file.open(QIODevice::ReadOnly))
        return failure(fileName, file.errorString());
    Lines lines;
    QString group;
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine().trimmed();
        const qsizetype sign = line.indexOf('=');
        if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
            continue;
        if (line.contains('\0'))
            return failureAt(fileName, number, SettingsFiles::tr("it isn't text"));
        if (line.startsWith('[') && line.endsWith(']'))
            group = QString::fromUtf8(line.mid(1, line.size() - 2)) + u'/';
        else if (sign > 0)
            lines.insert(group + QString::fromUtf8(line.left(sign).trimmed()), number);
        else
            return failureAt(fileName, number, SettingsFiles::tr("expected a setting as in \"name=value\""));
    }
    return lines;
}

QByteArray settingsBytes(const SettingsStore& store)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("settings.ini"));
    {
        QSettings file(fileName, QSettings::IniFormat);
        file.setValue(AppSettings::versionKey(), AppSettings::currentVersion);
        for (const Setting& setting : orvane::settingList())
            file.setValue(setting.key, store.ownValue(setting));
    }
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

orvane::Result<> orvane::writeSettings(const SettingsStore& store, const QString& fileName)
{
    const QByteArray bytes = settingsBytes(store);
    if (bytes.isEmpty())
        return failure(fileName, SettingsFiles::tr("there is no room for temporary files"));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return failure(fileName, file.errorString());
    return {};
}

orvane::Result<std::vector<orvane::SettingChange>> orvane::readSettings(
    const SettingsStore& store, const QString& fileName)
{
    const Result<Lines> lines = readLines(fileName);
    if (!lines)
        return Failure{lines.error()};
    const QVariantMap values = AppSettings::valuesOf(fileName);
    if (const int version = AppSettings::versionOf(values); version > AppSettings::currentVersion || version < 1)
        return failureAt(fileName, lines.value().value(AppSettings::versionKey()),
            SettingsFiles::tr("a later version of Orvane has written it (settings %1, this version reads up to %2)")
                .arg(version)
                .arg(AppSettings::currentVersion));
    const QVariantMap present = AppSettings::converted(values);
    std::vector<SettingChange> changes;
    bool hasSettings = false;
    for (const Setting& setting : settingList()) {
        if (!present.contains(setting.key))
            continue;
        hasSettings = true;
        const std::optional<QVariant> after = setting.usable(present.value(setting.key));
        if (!after)
            return failureAt(fileName, lines.value().value(setting.key),
                SettingsFiles::tr("%1 can't have this value; allowed is: %2").arg(setting.key, setting.allowedText()));
        if (const QVariant before = store.ownValue(setting); before != *after)
            changes.push_back({&setting, before, *after});
    }
    if (!hasSettings)
        return failure(fileName, SettingsFiles::tr("there are no settings in it"));
    return changes;
}

orvane::Result<QString> orvane::putSettingsAway(const QString& fileName)
{
    if (!QFileInfo::exists(fileName))
        return QString();
    QString name = fileName + QStringLiteral(".old");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = fileName + QStringLiteral(".old%1").arg(number);
    QFile file(fileName);
    if (!file.rename(name))
        return failure(fileName, file.errorString());
    return name;
}
