#include "orvane/app/files/RecentFiles.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/TextConversion.h"

namespace {

const QString key = QStringLiteral("recentFiles");
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
    QStringList names;
    for (const QString& text : m_settings.value(key).toStringList().mid(0, capacity))
        names.append(fromSetting(text));
    return names;
}

void RecentFiles::add(const QString& fileName)
{
    const QString absolute = orvane::absoluteFileName(fileName);
    QStringList names = fileNames();
    names.removeAll(absolute);
    names.prepend(absolute);
    set(names.mid(0, capacity));
}

void RecentFiles::remove(const QString& fileName)
{
    QStringList names = fileNames();
    if (names.removeAll(orvane::absoluteFileName(fileName)) > 0)
        set(names);
}

void RecentFiles::clear()
{
    set({});
}

void RecentFiles::set(const QStringList& fileNames)
{
    QStringList texts;
    for (const QString& fileName : fileNames)
        texts.append(toSetting(fileName));
    m_settings.setValue(key, texts);
    Q_EMIT changed();
}
