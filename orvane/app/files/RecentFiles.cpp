#include "orvane/app/files/RecentFiles.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/TextConversion.h"

namespace {

const QString recentKey = QStringLiteral("recentFiles");
const QString pinnedKey = QStringLiteral("pinnedFiles");
const QString urlStart = QStringLiteral("file://");

// A settings file is text, so a name that isn't is kept as a URL.
QString toSetting(const QString& fileName)
{
    return fileName.isValidUtf16() ? fileName : QString::fromLatin1(orvane::toFileUrl(fileName));
}

QString fromSetting(const QString& text)
{
    return text.startsWith(urlStart) ? orvane::fromFileUrl(text.toLatin1()) : text;
}

} // namespace

RecentFiles::RecentFiles(AppSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QStringList RecentFiles::fileNames() const
{
    return read(recentKey);
}

QStringList RecentFiles::pinned() const
{
    return read(pinnedKey);
}

void RecentFiles::add(const QString& fileName)
{
    m_settings.sync(); // another program may have added its files
    const QString absolute = orvane::absoluteFileName(fileName);
    QStringList names = fileNames();
    names.removeAll(absolute);
    names.prepend(absolute);
    write(recentKey, names);
}

void RecentFiles::remove(const QString& fileName)
{
    remove(QStringList(fileName));
}

void RecentFiles::remove(const QStringList& fileNames)
{
    m_settings.sync();
    for (const QString& name : {recentKey, pinnedKey}) {
        QStringList names = read(name);
        qsizetype removed = 0;
        for (const QString& fileName : fileNames)
            removed += names.removeAll(orvane::absoluteFileName(fileName));
        if (removed > 0)
            write(name, names);
    }
}

void RecentFiles::clear()
{
    write(recentKey, {});
}

void RecentFiles::setPinned(const QString& fileName, bool pinned)
{
    m_settings.sync();
    const QString absolute = orvane::absoluteFileName(fileName);
    QStringList names = this->pinned();
    names.removeAll(absolute);
    if (pinned)
        names.append(absolute);
    write(pinnedKey, names);
}

QStringList RecentFiles::read(const QString& name) const
{
    QStringList names;
    for (const QString& text : m_settings.value(name).toStringList().mid(0, capacity))
        names.append(fromSetting(text));
    return names;
}

void RecentFiles::write(const QString& name, const QStringList& fileNames)
{
    QStringList texts;
    for (const QString& fileName : fileNames.mid(0, capacity))
        texts.append(toSetting(fileName));
    m_settings.setValue(name, texts);
    m_settings.sync();
    Q_EMIT changed();
}
