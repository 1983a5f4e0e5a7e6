#include "orvane/app/base/AppSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr qint64 mostBytes = qint64{16} << 20;
constexpr int longestWait = 2000; // milliseconds, for other programs

QString configFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane");
}

bool isSettingsLine(const QByteArray& line)
{
    return line.isEmpty() || line.startsWith(';') || line.startsWith('#') || line.contains('=')
        || (line.startsWith('[') && line.endsWith(']'));
}

/// Whether a file holds both alike: numbers, switches, and lists of one text are texts there, an empty list is nothing.
bool isSame(const QVariant& left, const QVariant& right)
{
    if (left.typeId() == right.typeId())
        return left == right;
    const auto text = [](const QVariant& value) {
        return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u'\n') : value.toString();
    };
    return text(left) == text(right);
}

bool isSame(const QVariantMap& left, const QVariantMap& right)
{
    return std::equal(left.constKeyValueBegin(), left.constKeyValueEnd(), right.constKeyValueBegin(),
        right.constKeyValueEnd(), [](const auto& one, const auto& other) {
            return one.first == other.first && isSame(one.second, other.second);
        });
}

} // namespace

AppSettings::AppSettings(Mode mode)
    : AppSettings(mode, defaultFileName())
{
}

AppSettings::AppSettings(Mode mode, QString fileName)
    : m_mode(mode)
    , m_fileName(std::move(fileName))
{
    if (mode == Mode::File)
        read();
}

AppSettings::~AppSettings()
{
    // Nobody may hear of it any more.
    blockSignals(true);
    if (!m_unwritten.isEmpty())
        sync();
}

void AppSettings::read()
{
    m_trouble = check();
    if (m_trouble == Trouble::NoFile || m_trouble == Trouble::Unreadable)
        return;
    m_values = valuesOf(m_fileName);
    if (m_trouble != Trouble::None)
        return;
    if (const int version = versionOf(m_values); version > currentVersion || version < 1) {
        m_trouble = Trouble::LaterVersion;
        m_number = version;
    } else if (version < currentVersion && !m_values.isEmpty()) {
        const QVariantMap values = converted(m_values);
        for (auto one = values.constBegin(); one != values.constEnd(); ++one)
            put(one.key(), *one);
    }
}

/// QSettings takes a file that it can't open for an empty one, and nearly any line for a setting; then it would write
/// over the file. So the file is checked first.
AppSettings::Trouble AppSettings::check()
{
    const QFileInfo info(m_fileName);
    if (!info.exists())
        return Trouble::None;
    if (!info.isFile() || info.size() > mostBytes)
        return Trouble::NoFile;
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_systemReason = file.errorString();
        return Trouble::Unreadable;
    }
    return checkLines(file);
}

AppSettings::Trouble AppSettings::checkLines(QIODevice& file)
{
    bool continued = false;
    bool ended = true;
    for (m_number = 1; !file.atEnd(); ++m_number) {
        QByteArray line = file.readLine();
        ended = line.endsWith('\n');
        line = line.trimmed();
        if ((!continued && !isSettingsLine(line)) || line.contains('\0'))
            return Trouble::NoSetting;
        continued = line.endsWith('\\');
    }
    --m_number;
    return ended ? Trouble::None : Trouble::NoEnd;
}

QVariantMap AppSettings::valuesOf(const QString& fileName)
{
    const QSettings file(fileName, QSettings::IniFormat);
    QVariantMap values;
    for (const QString& key : file.allKeys())
        values.insert(key, file.value(key));
    return values;
}

int AppSettings::versionOf(const QVariantMap& values)
{
    return values.value(versionKey(), 1).toInt();
}

QString AppSettings::versionKey()
{
    return QStringLiteral("settings/version");
}

/// Version 1 kept the choices of the handles by the names of their actions, and the background by its index.
QVariantMap AppSettings::converted(QVariantMap values)
{
    if (versionOf(values) >= currentVersion)
        return values;
    const auto replace = [&values](const QString& key, const QMap<QString, QString>& replacements) {
        const auto found = replacements.constFind(values.value(key).toString());
        if (found != replacements.constEnd())
            values.insert(key, *found);
    };
    replace(QStringLiteral("view/handles"),
        {{QStringLiteral("view.handlesNone"), QStringLiteral("none")},
            {QStringLiteral("view.handlesMove"), QStringLiteral("move")},
            {QStringLiteral("view.handlesTurn"), QStringLiteral("turn")},
            {QStringLiteral("view.handlesScale"), QStringLiteral("scale")}});
    replace(QStringLiteral("view/handleAxes"),
        {{QStringLiteral("view.axesWorld"), QStringLiteral("world")},
            {QStringLiteral("view.axesParent"), QStringLiteral("parent")},
            {QStringLiteral("view.axesOwn"), QStringLiteral("own")}});
    replace(QStringLiteral("view/background"),
        {{QStringLiteral("0"), QStringLiteral("window")}, {QStringLiteral("1"), QStringLiteral("light")},
            {QStringLiteral("2"), QStringLiteral("dark")}});
    values.insert(versionKey(), currentVersion);
    return values;
}

QVariant AppSettings::value(const QString& key, const QVariant& defaultValue) const
{
    return m_values.value(key, defaultValue);
}

void AppSettings::setValue(const QString& key, const QVariant& value)
{
    if (m_mode == Mode::File && m_values.isEmpty())
        put(versionKey(), currentVersion);
    put(key, value);
}

void AppSettings::remove(const QString& key)
{
    put(key, {});
}

void AppSettings::put(const QString& key, const QVariant& value)
{
    const QVariant old = m_values.value(key);
    if (old.isValid() == value.isValid() && isSame(old, value))
        return;
    if (value.isValid())
        m_values.insert(key, value);
    else
        m_values.remove(key);
    if (m_mode == Mode::File && (m_trouble == Trouble::None || m_trouble == Trouble::Unwritable)) {
        m_unwritten.insert(key, value);
        if (!std::exchange(m_willSync, true))
            QMetaObject::invokeMethod(this, &AppSettings::sync, Qt::QueuedConnection);
    }
    Q_EMIT changed(key);
}

void AppSettings::sync()
{
    m_willSync = false;
    if (m_mode == Mode::None || (m_trouble != Trouble::None && m_trouble != Trouble::Unwritable))
        return;
    QDir().mkpath(QFileInfo(m_fileName).path());
    QLockFile lock(m_fileName + QStringLiteral(".lock"));
    if (!m_unwritten.isEmpty() && !lock.tryLock(longestWait)) {
        fail(Trouble::Unwritable);
        return;
    }
    // Another program, or the user, may have written what must not be written over.
    if (const Trouble trouble = check(); trouble != Trouble::None) {
        fail(trouble);
        return;
    }
    QVariantMap values = valuesOf(m_fileName);
    if (const int version = versionOf(values); version > currentVersion) {
        m_number = version;
        fail(Trouble::LaterVersion);
        return;
    }
    values = converted(std::move(values));
    for (auto one = m_unwritten.constBegin(); one != m_unwritten.constEnd(); ++one) {
        if (one->isValid())
            values.insert(one.key(), *one);
        else
            values.remove(one.key());
    }
    if (!m_unwritten.isEmpty() && !write(values)) {
        fail(Trouble::Unwritable);
        return;
    }
    m_trouble = Trouble::None;
    m_unwritten.clear();
    takeOver(values);
}

/// QSettings takes a file for written of which only a part has fitted on the disk. So it writes another one, which
/// takes the place of the file when all of it has been read back.
bool AppSettings::write(const QVariantMap& values) const
{
    const QFileInfo info(m_fileName);
    const QString target = info.exists() ? info.canonicalFilePath() : m_fileName; // the file behind a link
    const QString written = target + QStringLiteral(".new");
    const QString checked = target + QStringLiteral(".tmp"); // QSettings remembers what a file of the other name has
    QFile::remove(written);
    {
        QSettings file(written, QSettings::IniFormat);
        for (auto one = values.constBegin(); one != values.constEnd(); ++one)
            file.setValue(one.key(), *one);
        file.sync();
        if (file.status() != QSettings::NoError)
            return false;
    }
    QFile::remove(checked);
    if (!QFile::rename(written, checked))
        return false;
    if (info.exists())
        QFile::setPermissions(checked, info.permissions());
    const bool isWhole = isSame(valuesOf(checked), values)
        && std::rename(QFile::encodeName(checked).constData(), QFile::encodeName(target).constData()) == 0;
    if (!isWhole)
        QFile::remove(checked);
    return isWhole;
}

void AppSettings::takeOver(const QVariantMap& values)
{
    const QVariantMap before = std::exchange(m_values, values);
    for (auto one = values.constBegin(); one != values.constEnd(); ++one) {
        const auto old = before.constFind(one.key());
        if (old == before.constEnd() || !isSame(*old, *one))
            Q_EMIT changed(one.key());
    }
    for (auto one = before.constBegin(); one != before.constEnd(); ++one) {
        if (!values.contains(one.key()))
            Q_EMIT changed(one.key());
    }
}

void AppSettings::fail(Trouble trouble)
{
    const bool isNew = m_trouble == Trouble::None;
    m_trouble = trouble;
    if (isNew)
        Q_EMIT failed();
}

QString AppSettings::reason() const
{
    switch (m_trouble) {
    case Trouble::None:
        break;
    case Trouble::NoFile:
        return tr("it isn't a file of settings");
    case Trouble::Unreadable:
        return m_systemReason;
    case Trouble::NoSetting:
        return tr("line %1: expected a setting as in \"name=value\"").arg(m_number);
    case Trouble::NoEnd:
        return tr("line %1 isn't complete; the file may be half written").arg(m_number);
    case Trouble::LaterVersion:
        return tr("a later version of Orvane has written it (settings %1, this version writes %2)")
            .arg(m_number)
            .arg(currentVersion);
    case Trouble::Unwritable:
        return tr("the file or its folder can't be written, or the disk is full");
    }
    return {};
}

QString AppSettings::problem() const
{
    const QString name = QDir::toNativeSeparators(m_fileName);
    switch (m_trouble) {
    case Trouble::None:
        return {};
    case Trouble::LaterVersion:
        return tr("%1: The settings are used as far as this version knows them: %2. The file is left as it is, and "
                  "changes hold for this run only.")
            .arg(name, reason());
    case Trouble::Unwritable:
        return tr("%1: The settings can't be saved: %2. Changes hold for this run, and are saved as soon as that is "
                  "possible.")
            .arg(name, reason());
    default:
        return tr("%1: The settings can't be read, or in part only: %2. The file is left as it is, and changes hold "
                  "for this run only.")
            .arg(name, reason());
    }
}

QString AppSettings::defaultFileName()
{
    return configFolder() + QStringLiteral("/orvane.ini");
}

QString AppSettings::preferencesFileName()
{
    return configFolder() + QStringLiteral("/preferences.conf");
}
