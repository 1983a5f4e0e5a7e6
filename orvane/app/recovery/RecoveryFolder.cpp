#include "orvane/app/recovery/RecoveryFolder.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/base/TextConversion.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

namespace {

const QString extension = QStringLiteral(".recovery");
const QString firstExtension = QStringLiteral(".part");

} // namespace

RecoveryFolder::RecoveryFolder(const QString& path)
    : m_path(path)
{
}

QString RecoveryFolder::defaultPath()
{
    return orvane::stateFolder() + QStringLiteral("/recovery");
}

orvane::Result<std::unique_ptr<LockedFile>> RecoveryFolder::createFile() const
{
    if (!QFileInfo::exists(m_path)) {
        const QString parent = QFileInfo(m_path).path();
        constexpr mode_t onlyForTheUser = 0700;
        if (!QDir().mkpath(parent) || ::mkdir(orvane::toStdFileName(m_path).c_str(), onlyForTheUser) != 0)
            return orvane::Failure{QStringLiteral("%1: %2").arg(m_path, QString::fromLocal8Bit(std::strerror(errno)))};
    }
    const auto create = [this] {
        const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
        return LockedFile::create(m_path + u'/' + name + firstExtension);
    };
    // Another process that looks for abandoned files may lock a new one for a moment.
    constexpr int attempts = 10;
    auto file = create();
    for (int i = 1; !file && i < attempts; ++i)
        file = create();
    return file;
}

QString RecoveryFolder::finalName(const QString& fileName)
{
    return fileName.chopped(firstExtension.size()) + extension;
}

std::vector<std::unique_ptr<LockedFile>> RecoveryFolder::lockAbandoned() const
{
    for (const auto& file : lock(firstExtension))
        file->remove();
    return lock(extension);
}

std::vector<std::unique_ptr<LockedFile>> RecoveryFolder::lock(const QString& withExtension) const
{
    std::vector<std::unique_ptr<LockedFile>> files;
    const QDir folder(m_path);
    for (const QString& name : folder.entryList({u'*' + withExtension}, QDir::Files | QDir::Hidden, QDir::Time)) {
        if (auto file = LockedFile::lock(folder.filePath(name)))
            files.push_back(std::move(file));
    }
    return files;
}
