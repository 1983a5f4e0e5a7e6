#include "orvane/app/images/ImageFolders.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isInside(const QString& path, const QString& folder)
{
    if (folder.isEmpty())
        return false;
    return path == folder || path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

} // namespace

void ImageFolders::setSceneFolder(const QString& folder)
{
    m_sceneFolder = folder.isEmpty() ? QString() : QDir::cleanPath(folder);
    m_realSceneFolder = folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath();
}

QString ImageFolders::pathOf(const QString& fileName) const
{
    if (m_sceneFolder.isEmpty() && QDir::isRelativePath(fileName))
        return {};
    return QDir::cleanPath(QDir(m_sceneFolder).filePath(fileName));
}

bool ImageFolders::contain(const QString& path) const
{
    return isInside(path, m_sceneFolder) || isInside(path, m_realSceneFolder)
        || std::any_of(m_allowed.begin(), m_allowed.end(), [&](const QString& each) { return isInside(path, each); });
}

bool ImageFolders::containReal(const QString& realPath, const QString& path) const
{
    // If the allowed folder is a symbolic link, its target is allowed too.
    return isInside(realPath, m_realSceneFolder)
        || std::any_of(m_allowed.begin(), m_allowed.end(), [&](const QString& each) {
               return isInside(realPath, each)
                   || (isInside(path, each) && isInside(realPath, QFileInfo(each).canonicalFilePath()));
           });
}
