#include "orvane/app/base/AppSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString configFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane");
}

bool isSettingsLine(const QByteArray& line)
{
    return line.isEmpty() || line.startsWith(';') || line.startsWith('#') || line.contains('=')
        || (line.startsWith('[') && line.endsWith(']'));
}

/// QSettings takes a file that it can't open for an empty one, and nearly any line for a setting; then it would write
/// over the file. So the file is checked first.
QString findProblem(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return {};
    if (!info.isFile())
        return QStringLiteral("it isn't a file");
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    bool continued = false;
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine().trimmed();
        if (!continued && !isSettingsLine(line))
            return QStringLiteral("line %1: expected a setting as in \"name=value\"").arg(number);
        continued = line.endsWith('\\');
    }
    return {};
}

} // namespace

AppSettings::AppSettings(Mode mode)
    : AppSettings(mode, defaultFileName())
{
}

AppSettings::AppSettings(Mode mode, const QString& fileName)
    : m_fileName(fileName)
{
    if (mode == Mode::None)
        return;
    QString problem = findProblem(fileName);
    if (problem.isEmpty()) {
        m_file = std::make_unique<QSettings>(fileName, QSettings::IniFormat);
        if (m_file->status() == QSettings::NoError)
            return;
        problem = QStringLiteral("it isn't a settings file");
        m_file.reset();
    }
    m_problem
        = QStringLiteral("%1: The settings can't be read: %2. The file is left as it is, and settings aren't saved.")
              .arg(QDir::toNativeSeparators(fileName), problem);
}

QVariant AppSettings::value(const QString& key, const QVariant& defaultValue) const
{
    return m_file != nullptr ? m_file->value(key, defaultValue) : m_memory.value(key, defaultValue);
}

void AppSettings::setValue(const QString& key, const QVariant& value)
{
    if (m_file != nullptr)
        m_file->setValue(key, value);
    else
        m_memory.insert(key, value);
}

void AppSettings::sync()
{
    if (m_file != nullptr)
        m_file->sync();
}

QString AppSettings::defaultFileName()
{
    return configFolder() + QStringLiteral("/orvane.ini");
}

QString AppSettings::preferencesFileName()
{
    return configFolder() + QStringLiteral("/preferences.conf");
}
