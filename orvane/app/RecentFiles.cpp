#include "orvane/app/RecentFiles.h"

#include "orvane/app/AppSettings.h"

#include <QFileInfo>

namespace {

const QString key = QStringLiteral("recentFiles");

} // namespace

RecentFiles::RecentFiles(AppSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QStringList RecentFiles::fileNames() const
{
    return m_settings.value(key).toStringList().mid(0, capacity);
}

void RecentFiles::add(const QString& fileName)
{
    const QString absolute = QFileInfo(fileName).absoluteFilePath();
    QStringList names = fileNames();
    names.removeAll(absolute);
    names.prepend(absolute);
    set(names.mid(0, capacity));
}

void RecentFiles::remove(const QString& fileName)
{
    QStringList names = fileNames();
    if (names.removeAll(QFileInfo(fileName).absoluteFilePath()) > 0)
        set(names);
}

void RecentFiles::clear()
{
    set({});
}

void RecentFiles::set(const QStringList& fileNames)
{
    m_settings.setValue(key, fileNames);
    Q_EMIT changed();
}
