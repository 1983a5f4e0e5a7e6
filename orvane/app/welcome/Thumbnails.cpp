#include "orvane/app/welcome/Thumbnails.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

#include <sys/stat.h>

namespace {

const QString uriKey = QStringLiteral("Thumb::URI");
const QString largeSize = QStringLiteral("large");

/// The file as a URI, with the same characters escaped as other programs do: its hash is the name of the picture.
QByteArray thumbnailUri(const QString& fileName)
{
    return "file://" + QByteArray::fromStdString(orvane::toStdFileName(fileName)).toPercentEncoding("!$&'()*+,/:=@");
}

bool makePrivateFolder(const QString& path)
{
    const QFileDevice::Permissions onlyForTheUser
        = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    return QFileInfo(path).isDir() || (QDir().mkpath(QFileInfo(path).path()) && QDir().mkdir(path, onlyForTheUser))
        || QFileInfo(path).isDir(); // another program was faster
}

} // namespace

Thumbnails::Thumbnails()
    : Thumbnails(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/thumbnails"))
{
}

Thumbnails::Thumbnails(QString folder)
    : m_folder(std::move(folder))
{
}

QString Thumbnails::pathOf(const QString& fileName) const
{
    return pathOf(fileName, largeSize);
}

QString Thumbnails::pathOf(const QString& fileName, const QString& size) const
{
    const QByteArray hash = QCryptographicHash::hash(thumbnailUri(fileName), QCryptographicHash::Md5).toHex();
    return m_folder + u'/' + size + u'/' + QString::fromLatin1(hash) + QStringLiteral(".png");
}

QImage Thumbnails::read(const QString& fileName) const
{
    // A small picture takes much less; the folder is the user's own, but anything may have got into it.
    constexpr qint64 mostBytes = qint64{1} << 20;
    for (const QString& size : {largeSize, QStringLiteral("normal")}) {
        const QFileInfo file(pathOf(fileName, size));
        if (!file.isFile() || file.size() > mostBytes)
            continue;
        QImageReader reader(file.filePath(), "png");
        const QSize pixels = reader.size();
        if (pixels.width() > 2 * side || pixels.height() > 2 * side)
            continue;
        QImage picture = reader.read();
        if (!picture.isNull() && picture.text(uriKey).toUtf8() == thumbnailUri(fileName))
            return picture;
    }
    return {};
}

orvane::Result<> Thumbnails::write(const QString& fileName, const QImage& picture) const
{
    struct stat status { };
    if (::stat(orvane::toStdFileName(fileName).c_str(), &status) != 0)
        return orvane::Failure{QStringLiteral("%1: The file is gone.").arg(fileName)};
    const QString path = pathOf(fileName);
    if (!makePrivateFolder(m_folder) || !makePrivateFolder(QFileInfo(path).path()))
        return orvane::Failure{QStringLiteral("%1: The folder can't be made.").arg(QFileInfo(path).path())};
    const QSize size(side, side);
    QImage small = picture.width() > side || picture.height() > side
        ? picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : picture;
    small.setDevicePixelRatio(1);
    small.setText(uriKey, QString::fromLatin1(thumbnailUri(fileName)));
    small.setText(QStringLiteral("Thumb::MTime"), QString::number(status.st_mtim.tv_sec));
    small.setText(QStringLiteral("Software"), QStringLiteral("Orvane"));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        if (small.save(&file, "PNG") && file.commit())
            return {};
    }
    return orvane::Failure{QStringLiteral("%1: %2").arg(path, file.errorString())};
}
