#include "orvane/app/plugins/LoadingMark.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/base/TextConversion.h"

#include <QDir>
#include <QFile>
#include <QUuid>

namespace {

const QString extension = QStringLiteral(".loading");
// A path has at most 4 KiB, and a start loads tens of plug-ins.
constexpr qint64 mostBytes = qint64{4} << 20;

// Each note is a line; the last one is that of the plug-in that was being loaded.
QString lastLine(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostBytes)
        return {};
    const QList<QByteArray> lines = file.readAll().split('\n');
    return lines.size() < 2 ? QString() : QFile::decodeName(lines.at(lines.size() - 2));
}

} // namespace

LoadingMark::LoadingMark(const QString& folder)
    : m_folder(folder)
{
    takeAbandoned();
}

LoadingMark::~LoadingMark()
{
    if (m_file != nullptr)
        m_file->remove();
}

QString LoadingMark::defaultFolder()
{
    return orvane::stateFolder() + QStringLiteral("/loading");
}

void LoadingMark::takeAbandoned()
{
    const QDir folder(m_folder);
    const QStringList names = folder.entryList({u'*' + extension}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        const std::unique_ptr<LockedFile> file = LockedFile::lock(folder.filePath(name));
        if (file == nullptr)
            continue;
        const QString unfinished = lastLine(file->fileName());
        if (!unfinished.isEmpty() && !m_unfinished.contains(unfinished))
            m_unfinished.append(unfinished);
        file->remove();
    }
}

void LoadingMark::begin(const QString& fileName)
{
    if (m_file == nullptr && m_isWritable) {
        const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces) + extension;
        auto created
            = QDir().mkpath(m_folder) ? LockedFile::create(QDir(m_folder).filePath(name)) : orvane::Failure{m_folder};
        m_isWritable = static_cast<bool>(created);
        if (created)
            m_file = std::move(created).value();
    }
    // A name with a line break would be read as two; no plug-in has one.
    if (m_file == nullptr || fileName.contains(u'\n'))
        return;
    if (const auto noted = m_file->append(orvane::toStdFileName(fileName) + '\n'); !noted)
        m_isWritable = false;
}
